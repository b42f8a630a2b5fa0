// KyDbStateFiler: an in-memory record of the state of one object, written by
// KyDbObject::saveState and read back by restoreState. Each class writes its
// own members after those of its parent and reads them in the same order.
// Undo keeps its before-images in filers, and copyFrom goes through one.
//
// Values are kept boxed, so any type with a value type (KyRxValueType::Desc)
// can be written. Reading a value of another type than was written puts the
// filer in error: the restore stops with eInvalidInput and no exception.
#pragma once

#include <vector>

#include "KyPlatformExport.h"
#include "base/KyroErrorStatus.h"
#include "rx/KyRxValue.h"

class KYPLATFORM_API KyDbStateFiler {
public:
    KyDbStateFiler();
    ~KyDbStateFiler();
    KyDbStateFiler(const KyDbStateFiler&) = delete;
    KyDbStateFiler& operator=(const KyDbStateFiler&) = delete;

    template <typename T>
    void write(const T& value) {
        m_values.emplace_back(value);
    }
    void writeString(const KyString& text) { m_values.emplace_back(text); }

    // Reads the next value into `value`; on a type mismatch or past the end the
    // filer is in error and `value` is left alone.
    template <typename T>
    bool read(T& value) {
        const T* payload =
            m_position < m_values.size() ? valueCast<T>(&m_values[m_position]) : nullptr;
        if (payload == nullptr) {
            m_status = Kyro::eInvalidInput;
            return false;
        }
        value = *payload;
        ++m_position;
        return true;
    }
    // An array as its length and its elements.
    template <typename T, typename R>
    void writeArray(const KyArray<T, R>& values) {
        write(values.length());
        for (const T& value : values) {
            write(value);
        }
    }
    template <typename T, typename R>
    bool readArray(KyArray<T, R>& values) {
        int count = 0;
        if (!read(count)) {
            return false;
        }
        values.setLogicalLength(0);
        for (int i = 0; i < count; ++i) {
            T value{};
            if (!read(value)) {
                return false;
            }
            values.append(value);
        }
        return true;
    }
    // The next value as it was written (null past the end).
    const KyRxValue* next() {
        return m_position < m_values.size() ? &m_values[m_position++] : nullptr;
    }

    Kyro::ErrorStatus status() const { return m_status; }
    // Starts reading again from the first value, and clears the error.
    void rewind();
    // Forgets every value.
    void clear();
    int count() const { return static_cast<int>(m_values.size()); }
    bool atEnd() const { return m_position >= m_values.size(); }

private:
    std::vector<KyRxValue> m_values;
    std::size_t m_position = 0;
    Kyro::ErrorStatus m_status = Kyro::eOk;
};
