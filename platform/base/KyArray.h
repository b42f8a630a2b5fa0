// KyArray<T, R>: the host's growable array. R is the reallocator that moves
// elements into a new block: KyArrayMemCopyReallocator copies raw bytes (ids,
// pointers, plain records), KyArrayObjectCopyReallocator runs constructors and
// assignments (KyString, values). The growth rule is part of the contract:
// callers rely on the physical length it gives.
#pragma once

#include <algorithm>
#include <cassert>
#include <cstring>
#include <new>
#include <type_traits>
#include <utility>

template <typename T>
class KyArrayMemCopyReallocator {
public:
    static void reallocateArray(T* destination, const T* source, int count) {
        if (count > 0) {
            std::memcpy(static_cast<void*>(destination), static_cast<const void*>(source),
                        static_cast<size_t>(count) * sizeof(T));
        }
    }
};

template <typename T>
class KyArrayObjectCopyReallocator {
public:
    static void reallocateArray(T* destination, T* source, int count) {
        for (int i = 0; i < count; ++i) {
            destination[i] = std::move(source[i]);
        }
    }
};

template <typename T>
using KyArrayDefaultReallocator =
    std::conditional_t<std::is_trivially_copyable_v<T>, KyArrayMemCopyReallocator<T>,
                       KyArrayObjectCopyReallocator<T>>;

template <typename T, typename R = KyArrayDefaultReallocator<T>>
class KyArray {
public:
    static constexpr int kDefaultGrowLength = 8;
    // Above this many bytes the array grows by a fixed block instead of doubling.
    static constexpr int kByteStep = 0x10000;

    KyArray() noexcept = default;
    explicit KyArray(int physicalLength, int growLength = kDefaultGrowLength)
        : m_growLength(growLength > 0 ? growLength : kDefaultGrowLength) {
        if (physicalLength > 0) {
            m_data = new T[physicalLength];
            m_physicalLength = physicalLength;
        }
    }
    KyArray(const KyArray& other) : m_growLength(other.m_growLength) { copyFrom(other); }
    KyArray(KyArray&& other) noexcept
        : m_data(other.m_data),
          m_physicalLength(other.m_physicalLength),
          m_logicalLength(other.m_logicalLength),
          m_growLength(other.m_growLength) {
        other.m_data = nullptr;
        other.m_physicalLength = 0;
        other.m_logicalLength = 0;
    }
    ~KyArray() { delete[] m_data; }

    KyArray& operator=(const KyArray& other) {
        if (this != &other) {
            copyFrom(other);
        }
        return *this;
    }
    KyArray& operator=(KyArray&& other) noexcept {
        if (this != &other) {
            delete[] m_data;
            m_data = std::exchange(other.m_data, nullptr);
            m_physicalLength = std::exchange(other.m_physicalLength, 0);
            m_logicalLength = std::exchange(other.m_logicalLength, 0);
            m_growLength = other.m_growLength;
        }
        return *this;
    }

    // Equal when the used elements are equal, in order.
    bool operator==(const KyArray& other) const {
        if (m_logicalLength != other.m_logicalLength) {
            return false;
        }
        for (int i = 0; i < m_logicalLength; ++i) {
            if (!(m_data[i] == other.m_data[i])) {
                return false;
            }
        }
        return true;
    }

    T& operator[](int i) {
        assert(isValid(i));
        return m_data[i];
    }
    const T& operator[](int i) const {
        assert(isValid(i));
        return m_data[i];
    }
    T& at(int i) { return (*this)[i]; }
    const T& at(int i) const { return (*this)[i]; }
    T& first() { return (*this)[0]; }
    const T& first() const { return (*this)[0]; }
    T& last() { return (*this)[m_logicalLength - 1]; }
    const T& last() const { return (*this)[m_logicalLength - 1]; }

    // Appends; answers the index of the new element.
    int append(const T& value) {
        if (m_logicalLength >= m_physicalLength) {
            // The value may live in this array: copy it before the block moves.
            T copy(value);
            setPhysicalLength(m_physicalLength + std::max(m_growLength, stepFor(m_logicalLength)));
            m_data[m_logicalLength] = std::move(copy);
        } else {
            m_data[m_logicalLength] = value;
        }
        return m_logicalLength++;
    }
    KyArray& append(const KyArray& other) {
        const int count = other.m_logicalLength;
        if (count == 0) {
            return *this;
        }
        if (this == &other) {
            KyArray copy(other);
            return append(copy);
        }
        const int start = m_logicalLength;
        setLogicalLength(start + count);
        for (int i = 0; i < count; ++i) {
            m_data[start + i] = other.m_data[i];
        }
        return *this;
    }
    KyArray& insertAt(int index, const T& value) {
        assert(index >= 0 && index <= m_logicalLength);
        T copy(value);
        append(copy);
        for (int i = m_logicalLength - 1; i > index; --i) {
            m_data[i] = std::move(m_data[i - 1]);
        }
        m_data[index] = std::move(copy);
        return *this;
    }
    // Removal keeps the order of what remains.
    KyArray& removeAt(int index) {
        assert(isValid(index));
        for (int i = index; i + 1 < m_logicalLength; ++i) {
            m_data[i] = std::move(m_data[i + 1]);
        }
        --m_logicalLength;
        if constexpr (!std::is_trivially_copyable_v<T>) {
            m_data[m_logicalLength] = T();
        }
        return *this;
    }
    KyArray& removeFirst() { return removeAt(0); }
    KyArray& removeLast() { return removeAt(m_logicalLength - 1); }
    // Removes the first element equal to `value`; false when there is none.
    bool remove(const T& value, int start = 0) {
        int index = -1;
        if (!find(value, index, start)) {
            return false;
        }
        removeAt(index);
        return true;
    }
    KyArray& removeAll() {
        setLogicalLength(0);
        return *this;
    }

    bool contains(const T& value, int start = 0) const {
        int index = -1;
        return find(value, index, start);
    }
    bool find(const T& value, int& index, int start = 0) const {
        for (int i = std::max(start, 0); i < m_logicalLength; ++i) {
            if (m_data[i] == value) {
                index = i;
                return true;
            }
        }
        return false;
    }
    int find(const T& value) const {
        int index = -1;
        find(value, index);
        return index;
    }

    int length() const { return m_logicalLength; }
    int logicalLength() const { return m_logicalLength; }
    int physicalLength() const { return m_physicalLength; }
    int growLength() const { return m_growLength; }
    bool isEmpty() const { return m_logicalLength == 0; }
    bool isValid(int i) const { return i >= 0 && i < m_logicalLength; }

    KyArray& setGrowLength(int growLength) {
        if (growLength > 0) {
            m_growLength = growLength;
        }
        return *this;
    }

    // Sets the number of elements in use. A negative length counts as 0; a
    // length beyond the block grows it to at least the next step.
    KyArray& setLogicalLength(int n) {
        if (n < 0) {
            n = 0;
        }
        if (n > m_physicalLength) {
            setPhysicalLength(
                std::max(n, m_physicalLength + std::max(stepFor(m_physicalLength), m_growLength)));
        }
        if constexpr (!std::is_trivially_copyable_v<T>) {
            for (int i = n; i < m_logicalLength; ++i) {
                m_data[i] = T();
            }
        }
        m_logicalLength = n;
        return *this;
    }

    // Sets the number of elements allocated. The same length or a negative one
    // changes nothing; a shorter block cuts the logical length.
    KyArray& setPhysicalLength(int n) {
        if (n == m_physicalLength || n < 0) {
            return *this;
        }
        T* old = m_data;
        const int keep = std::min(m_logicalLength, n);
        if (n == 0) {
            m_data = nullptr;
        } else {
            m_data = new T[n];
            if (keep > 0) {
                R::reallocateArray(m_data, old, keep);
            }
        }
        delete[] old;
        m_physicalLength = n;
        m_logicalLength = keep;
        return *this;
    }

    KyArray& reverse() {
        std::reverse(begin(), end());
        return *this;
    }
    KyArray& setAll(const T& value) {
        std::fill(begin(), end(), value);
        return *this;
    }

    T* asArrayPtr() { return m_data; }
    const T* asArrayPtr() const { return m_data; }
    T* begin() { return m_data; }
    T* end() { return m_data + m_logicalLength; }
    const T* begin() const { return m_data; }
    const T* end() const { return m_data + m_logicalLength; }

private:
    // The growth step for an array of `count` elements: as many again while the
    // block is small, a fixed 0x10000 bytes' worth once it is large.
    static int stepFor(int count) {
        if (static_cast<long long>(count) * static_cast<long long>(sizeof(T)) < kByteStep) {
            return count;
        }
        return static_cast<int>(kByteStep / sizeof(T));
    }

    void copyFrom(const KyArray& other) {
        if (other.m_logicalLength > m_physicalLength) {
            delete[] m_data;
            m_data = new T[other.m_logicalLength];
            m_physicalLength = other.m_logicalLength;
        }
        for (int i = 0; i < other.m_logicalLength; ++i) {
            m_data[i] = other.m_data[i];
        }
        if constexpr (!std::is_trivially_copyable_v<T>) {
            for (int i = other.m_logicalLength; i < m_logicalLength; ++i) {
                m_data[i] = T();
            }
        }
        m_logicalLength = other.m_logicalLength;
        m_growLength = other.m_growLength;
    }

    T* m_data = nullptr;
    int m_physicalLength = 0;
    int m_logicalLength = 0;
    int m_growLength = kDefaultGrowLength;
};
