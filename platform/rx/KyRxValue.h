// KyRxValue: a boxed value that knows its type. A payload of at most 24 bytes
// lives in the value's own buffer; a larger one lives in a heap block from
// allocate(), and the buffer holds the block's address. Payloads of a
// non-blittable type are copied, assigned and destroyed through the type.
#pragma once

#include <cstddef>
#include <type_traits>

#include "base/KyArray.h"
#include "base/KyString.h"
#include "rx/KyRxValueType.h"

class KyRxEnumTag;

class KYPLATFORM_API KyRxValue {
public:
    static constexpr size_t kBufferSize = 24;

    // The empty value (of the void type).
    KyRxValue() noexcept;
    KyRxValue(const KyRxValue& other);
    KyRxValue(KyRxValue&& other) noexcept;
    ~KyRxValue();
    KyRxValue& operator=(const KyRxValue& other);
    KyRxValue& operator=(KyRxValue&& other) noexcept;

    // Boxes any type that has a KyRxValueType::Desc.
    template <typename T, typename = std::enable_if_t<!std::is_same_v<std::decay_t<T>, KyRxValue> &&
                                                      !std::is_array_v<T>>>
    KyRxValue(const T& payload) {  // NOLINT(google-explicit-constructor)
        init(KyRxValueType::Desc<T>::value(), &payload);
    }
    KyRxValue(const wchar_t* text) {  // NOLINT(google-explicit-constructor)
        init(KyRxValueType::Desc<const wchar_t*>::value(), &text);
    }
    // A value of `type` copied from `payload`. A null payload gives zero bytes
    // of a plain type, and the empty value for a non-blittable type.
    KyRxValue(const KyRxValueType& type, const void* payload) { init(type, payload); }

    template <typename T>
    KyRxValue& operator=(const T& payload) {
        *this = KyRxValue(payload);
        return *this;
    }

    const KyRxValueType& type() const { return *m_type; }
    bool isEmpty() const;
    bool isVaries() const;
    // The payload, in the buffer or in its heap block.
    const void* valuePtr() const { return m_type->size() > kBufferSize ? m_heap : m_buffer; }
    void* valuePtr() { return m_type->size() > kBufferSize ? m_heap : m_buffer; }

    // Same type and equal by the type's own equality.
    bool operator==(const KyRxValue& other) const;
    bool operator!=(const KyRxValue& other) const { return !(*this == other); }

    // Text of the value; answers its length. A null buffer only measures.
    int toString(wchar_t* buffer, size_t size,
                 KyRxValueType::StringFormat format = KyRxValueType::kStringFormatGlobal) const;
    KyString text(KyRxValueType::StringFormat format = KyRxValueType::kStringFormatGlobal) const;

    // The tag of an enumerated value, null when the type has no enumeration or
    // no tag has this value.
    const KyRxEnumTag* getEnumTag() const;

    // The value boxed in a KyRxBoxedValue object; null for other objects.
    static const KyRxValue* unbox(const KyRxObject* object);
    static KyRxValue* unbox(KyRxObject* object);

    // The two sentinels: nothing, and a value that differs between objects.
    static const KyRxValue& empty();
    static const KyRxValue& varies();

    // Heap blocks of payloads above 24 bytes.
    static void* allocate(size_t size);
    static void* reallocate(size_t size, void* block);
    static void deallocate(void* block);

private:
    void init(const KyRxValueType& type, const void* payload);
    void release() noexcept;

    const KyRxValueType* m_type;
    union {
        alignas(8) unsigned char m_buffer[kBufferSize];
        void* m_heap;
    };
};

static_assert(sizeof(KyRxValue) == sizeof(void*) + KyRxValue::kBufferSize,
              "a type pointer and a 24-byte buffer");

// A pointer to the payload when the value holds a T, null otherwise.
template <typename T>
inline const T* valueCast(const KyRxValue* value) {
    return value != nullptr && &value->type() == &KyRxValueType::Desc<T>::value()
               ? static_cast<const T*>(value->valuePtr())
               : nullptr;
}
template <typename T>
inline T* valueCast(KyRxValue* value) {
    return value != nullptr && &value->type() == &KyRxValueType::Desc<T>::value()
               ? static_cast<T*>(value->valuePtr())
               : nullptr;
}

template <>
KYPLATFORM_API const KyRxValueType& KyRxValueType::Desc<KyString>::value();
// An array of texts as a value: its text is the items joined by ", ".
using KyStringArray = KyArray<KyString, KyArrayObjectCopyReallocator<KyString>>;
template <>
KYPLATFORM_API const KyRxValueType& KyRxValueType::Desc<KyStringArray>::value();
