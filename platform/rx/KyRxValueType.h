// KyRxValueType: the runtime class of a value. A value type is itself a
// KyRxClass (registered in the class dictionary under its name), knows its
// size, how to copy a non-blittable payload, how to print and compare one,
// and, for an enumeration, its tags (KyRxEnumTag members).
#pragma once

#include <cstddef>
#include <new>

#include "rx/KyRxClass.h"

class KyRxEnumTag;

// Copy, assignment and destruction of a payload that is not a plain byte copy.
class IKyRxNonBlittableType {
public:
    virtual void construct(void* destination, const void* source) const = 0;
    virtual void assign(void* destination, const void* source) const = 0;
    virtual void destruct(const void* instance) const = 0;
    virtual ~IKyRxNonBlittableType() = default;
};

// The tags of an enumerated value type, in the order they were added.
class IKyRxEnumeration {
public:
    virtual int count() const = 0;
    virtual const KyRxEnumTag& getAt(int index) const = 0;
    virtual ~IKyRxEnumeration() = default;
};

class KYPLATFORM_API KyRxValueType : public KyRxClass {
public:
    KYRX_DECLARE_MEMBERS(KyRxValueType);

    enum StringFormat { kStringFormatGlobal = 0, kStringFormatLocalized = 1 };

    // The singleton value type of T. Specialised for every type a value can hold.
    template <typename T>
    struct Desc {
        static const KyRxValueType& value();
    };

    unsigned int size() const { return m_size; }
    bool isBlittable() const { return m_nonBlittable == nullptr; }
    const IKyRxNonBlittableType* nonBlittableType() const { return m_nonBlittable; }
    // The enumeration when the type has tags, null otherwise.
    const IKyRxEnumeration* enumeration() const;

    // Text of a payload; answers its length. A null buffer only measures; a
    // short buffer gets as much as fits, always terminated.
    int toString(const void* instance, wchar_t* buffer, size_t size, StringFormat format) const;
    bool equalTo(const void* a, const void* b) const;

    bool operator==(const KyRxValueType& other) const { return this == &other; }
    bool operator!=(const KyRxValueType& other) const { return this != &other; }

    ~KyRxValueType() override;

protected:
    KyRxValueType(const wchar_t* name, unsigned int size,
                  KyRxMemberCollectionConstructorPtr memberBuilder, void* userData);
    KyRxValueType(const wchar_t* name, const IKyRxNonBlittableType& nonBlittable, unsigned int size,
                  KyRxMemberCollectionConstructorPtr memberBuilder, void* userData);

    // The default text is the tag of an enumerated payload in the given
    // format, and nothing for other types; the default equality is a byte
    // comparison.
    virtual int subToString(const void* instance, wchar_t* buffer, size_t size,
                            StringFormat format) const;
    virtual bool subEqualTo(const void* a, const void* b) const;

    // Writes `text` as toString does: answers its length, copies what fits.
    static int putText(const wchar_t* text, wchar_t* buffer, size_t size);

private:
    class Enumeration;
    unsigned int m_size;
    const IKyRxNonBlittableType* m_nonBlittable;
    mutable Enumeration* m_enumeration = nullptr;
};

// A value type of a plain payload: copied as bytes, compared with ==. Text and
// equality are specialised per type where the default does not fit.
template <typename T>
class KyRxValueTypePOD : public KyRxValueType {
public:
    KyRxValueTypePOD(const wchar_t* name, KyRxMemberCollectionConstructorPtr memberBuilder,
                     void* userData = nullptr)
        : KyRxValueType(name, sizeof(T), memberBuilder, userData) {}

    int subToString(const void* instance, wchar_t* buffer, size_t size,
                    StringFormat format) const override;
    bool subEqualTo(const void* a, const void* b) const override;
};

template <typename T>
int KyRxValueTypePOD<T>::subToString(const void* instance, wchar_t* buffer, size_t size,
                                     StringFormat format) const {
    return KyRxValueType::subToString(instance, buffer, size, format);
}
template <typename T>
bool KyRxValueTypePOD<T>::subEqualTo(const void* a, const void* b) const {
    return *static_cast<const T*>(a) == *static_cast<const T*>(b);
}

// A value type whose payload has constructors: copies, assignments and
// destruction go through its NonBlittable helper.
template <typename T>
class KyRxNonBlittableType : public KyRxValueType {
public:
    class NonBlittable : public IKyRxNonBlittableType {
    public:
        void construct(void* destination, const void* source) const override {
            ::new (destination) T(*static_cast<const T*>(source));
        }
        void assign(void* destination, const void* source) const override {
            *static_cast<T*>(destination) = *static_cast<const T*>(source);
        }
        void destruct(const void* instance) const override {
            static_cast<const T*>(instance)->~T();
        }
    };

    KyRxNonBlittableType(const wchar_t* name, KyRxMemberCollectionConstructorPtr memberBuilder,
                         void* userData = nullptr)
        : KyRxValueType(name, m_helper, sizeof(T), memberBuilder, userData) {}

    int subToString(const void* instance, wchar_t* buffer, size_t size,
                    StringFormat format) const override;
    bool subEqualTo(const void* a, const void* b) const override;

private:
    NonBlittable m_helper;
};

template <typename T>
int KyRxNonBlittableType<T>::subToString(const void* instance, wchar_t* buffer, size_t size,
                                         StringFormat format) const {
    return KyRxValueType::subToString(instance, buffer, size, format);
}
template <typename T>
bool KyRxNonBlittableType<T>::subEqualTo(const void* a, const void* b) const {
    return *static_cast<const T*>(a) == *static_cast<const T*>(b);
}

// Value types of the language's own types. Each further type declares its
// specialisation next to the type.
template <>
KYPLATFORM_API const KyRxValueType& KyRxValueType::Desc<void>::value();
template <>
KYPLATFORM_API const KyRxValueType& KyRxValueType::Desc<bool>::value();
template <>
KYPLATFORM_API const KyRxValueType& KyRxValueType::Desc<short>::value();
template <>
KYPLATFORM_API const KyRxValueType& KyRxValueType::Desc<int>::value();
template <>
KYPLATFORM_API const KyRxValueType& KyRxValueType::Desc<unsigned int>::value();
template <>
KYPLATFORM_API const KyRxValueType& KyRxValueType::Desc<double>::value();
template <>
KYPLATFORM_API const KyRxValueType& KyRxValueType::Desc<const wchar_t*>::value();
