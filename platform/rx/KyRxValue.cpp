#include "rx/KyRxValue.h"

#include <cstdlib>
#include <cstring>
#include <new>
#include <vector>

#include "rx/KyRxBoxedValue.h"
#include "rx/KyRxMethod.h"

namespace {

// The type of the "varies" sentinel: no payload, every two of its values are
// equal, and its text is empty (a user interface shows its own word for it).
class KyRxVariesValueType : public KyRxValueType {
public:
    KyRxVariesValueType() : KyRxValueType(L"KyRxVariesValue", 0, nullptr, nullptr) {}
};

const KyRxValueType& variesType() {
    static const KyRxValueType* const s_type = new KyRxVariesValueType();
    return *s_type;
}

bool isOnHeap(const KyRxValueType& type) {
    return type.size() > KyRxValue::kBufferSize;
}

}  // namespace

KyRxValue::KyRxValue() noexcept : m_type(&KyRxValueType::Desc<void>::value()) {}

KyRxValue::KyRxValue(const KyRxValue& other) {
    init(*other.m_type, other.valuePtr());
}

// Moving hands a heap block over as it is. An inline payload is copied (a
// non-blittable one through its type) and destroyed in the source. Either way
// the source is left empty.
KyRxValue::KyRxValue(KyRxValue&& other) noexcept : m_type(other.m_type) {
    if (isOnHeap(*m_type)) {
        m_heap = other.m_heap;
    } else if (const IKyRxNonBlittableType* helper = m_type->nonBlittableType()) {
        helper->construct(m_buffer, other.m_buffer);
        helper->destruct(other.m_buffer);
    } else {
        std::memcpy(m_buffer, other.m_buffer, m_type->size());
    }
    other.m_type = &KyRxValueType::Desc<void>::value();
}

KyRxValue::~KyRxValue() {
    release();
}

KyRxValue& KyRxValue::operator=(const KyRxValue& other) {
    if (this == &other) {
        return *this;
    }
    if (m_type == other.m_type) {
        if (const IKyRxNonBlittableType* helper = m_type->nonBlittableType()) {
            helper->assign(valuePtr(), other.valuePtr());
        } else if (m_type->size() > 0) {
            std::memcpy(valuePtr(), other.valuePtr(), m_type->size());
        }
        return *this;
    }
    if (m_type->isBlittable() && other.m_type->isBlittable() && isOnHeap(*m_type) &&
        isOnHeap(*other.m_type)) {
        // Plain bytes from one heap block to another: the block is resized
        // rather than freed and got anew.
        m_heap = reallocate(other.m_type->size(), m_heap);
        std::memcpy(m_heap, other.m_heap, other.m_type->size());
        m_type = other.m_type;
        return *this;
    }
    // Copy first, so that a failing copy leaves this value as it was.
    KyRxValue copy(other);
    *this = std::move(copy);
    return *this;
}

KyRxValue& KyRxValue::operator=(KyRxValue&& other) noexcept {
    if (this == &other) {
        return *this;
    }
    // `other` may live inside this value's payload (a value holding a record
    // that holds a value): take it out before the payload goes, then build
    // this value anew in place from what was taken.
    KyRxValue taken(std::move(other));
    release();
    ::new (static_cast<void*>(this)) KyRxValue(std::move(taken));
    return *this;
}

// A null payload gives zero bytes for a plain type. Zero bytes are no object
// of a non-blittable type, so such a value is left empty instead.
void KyRxValue::init(const KyRxValueType& type, const void* payload) {
    if (payload == nullptr && !type.isBlittable()) {
        m_type = &KyRxValueType::Desc<void>::value();
        return;
    }
    m_type = &type;
    void* target = m_buffer;
    if (isOnHeap(type)) {
        m_heap = allocate(type.size());
        target = m_heap;
    }
    if (payload == nullptr) {
        std::memset(target, 0, type.size());
    } else if (const IKyRxNonBlittableType* helper = type.nonBlittableType()) {
        try {
            helper->construct(target, payload);
        } catch (...) {
            if (isOnHeap(type)) {
                deallocate(m_heap);
            }
            m_type = &KyRxValueType::Desc<void>::value();
            throw;
        }
    } else if (type.size() > 0) {
        std::memcpy(target, payload, type.size());
    }
}

void KyRxValue::release() noexcept {
    if (const IKyRxNonBlittableType* helper = m_type->nonBlittableType()) {
        helper->destruct(valuePtr());
    }
    if (isOnHeap(*m_type)) {
        deallocate(m_heap);
    }
}

bool KyRxValue::isEmpty() const {
    return m_type == &KyRxValueType::Desc<void>::value();
}

bool KyRxValue::isVaries() const {
    return m_type == &variesType();
}

bool KyRxValue::operator==(const KyRxValue& other) const {
    return m_type == other.m_type && m_type->equalTo(valuePtr(), other.valuePtr());
}

int KyRxValue::toString(wchar_t* buffer, size_t size, KyRxValueType::StringFormat format) const {
    return m_type->toString(valuePtr(), buffer, size, format);
}

KyString KyRxValue::text(KyRxValueType::StringFormat format) const {
    const int length = toString(nullptr, 0, format);
    if (length <= 0) {
        return KyString();
    }
    std::vector<wchar_t> buffer(static_cast<size_t>(length) + 1);
    toString(buffer.data(), buffer.size(), format);
    return KyString(buffer.data());
}

const KyRxEnumTag* KyRxValue::getEnumTag() const {
    const IKyRxEnumeration* tags = m_type->enumeration();
    if (tags == nullptr) {
        return nullptr;
    }
    for (int i = 0; i < tags->count(); ++i) {
        const KyRxEnumTag& tag = tags->getAt(i);
        if (tag.value() == *this) {
            return &tag;
        }
    }
    return nullptr;
}

const KyRxValue* KyRxValue::unbox(const KyRxObject* object) {
    const KyRxBoxedValue* boxed = kyrxCast<KyRxBoxedValue>(object);
    return boxed != nullptr ? boxed->value() : nullptr;
}

KyRxValue* KyRxValue::unbox(KyRxObject* object) {
    KyRxBoxedValue* boxed = kyrxCast<KyRxBoxedValue>(object);
    return boxed != nullptr ? boxed->value() : nullptr;
}

const KyRxValue& KyRxValue::empty() {
    static const KyRxValue* const s_empty = new KyRxValue();
    return *s_empty;
}

const KyRxValue& KyRxValue::varies() {
    static const KyRxValue* const s_varies = new KyRxValue(variesType(), nullptr);
    return *s_varies;
}

void* KyRxValue::allocate(size_t size) {
    void* block = std::malloc(size > 0 ? size : 1);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    return block;
}

void* KyRxValue::reallocate(size_t size, void* block) {
    void* grown = std::realloc(block, size > 0 ? size : 1);
    if (grown == nullptr) {
        throw std::bad_alloc();
    }
    return grown;
}

void KyRxValue::deallocate(void* block) {
    std::free(block);
}
