#include "rx/KyRxValueType.h"

#include <cstring>
#include <cwchar>
#include <vector>

#include "rx/KyRxDictionary.h"
#include "rx/KyRxMember.h"
#include "rx/KyRxMethod.h"

KYRX_DEFINE_MEMBERS(KyRxValueType, KyRxClass)

// The tags among the members of a value type, collected once: the members of
// a class are built once and stay for the life of the class.
class KyRxValueType::Enumeration : public IKyRxEnumeration {
public:
    explicit Enumeration(const KyRxMemberCollection* members) {
        if (members == nullptr) {
            return;
        }
        for (int i = 0; i < members->count(); ++i) {
            if (const auto* tag = kyrxCast<KyRxEnumTag>(members->getAt(i))) {
                m_tags.push_back(tag);
            }
        }
    }
    int count() const override { return static_cast<int>(m_tags.size()); }
    const KyRxEnumTag& getAt(int index) const override { return *m_tags.at(index); }

private:
    std::vector<const KyRxEnumTag*> m_tags;
};

namespace {

// A value type stands in the class dictionary under its name, unless the name
// is taken already (by a class or by an earlier type of the same name).
void registerValueType(KyRxValueType* type) {
    KyRxDictionary* classes = kyrxClassDictionary();
    if (classes != nullptr && !classes->has(type->name())) {
        classes->atPut(type->name(), type);
    }
}

}  // namespace

KyRxValueType::KyRxValueType(const wchar_t* name, unsigned int size,
                             KyRxMemberCollectionConstructorPtr memberBuilder, void* userData)
    : KyRxClass(name, nullptr, 0, 0, 0, nullptr, nullptr, nullptr, nullptr, memberBuilder,
                userData),
      m_size(size),
      m_nonBlittable(nullptr) {
    registerValueType(this);
}

KyRxValueType::KyRxValueType(const wchar_t* name, const IKyRxNonBlittableType& nonBlittable,
                             unsigned int size, KyRxMemberCollectionConstructorPtr memberBuilder,
                             void* userData)
    : KyRxClass(name, nullptr, 0, 0, 0, nullptr, nullptr, nullptr, nullptr, memberBuilder,
                userData),
      m_size(size),
      m_nonBlittable(&nonBlittable) {
    registerValueType(this);
}

KyRxValueType::~KyRxValueType() {
    KyRxDictionary* classes = kyrxClassDictionary();
    if (classes != nullptr && classes->at(name()) == this) {
        classes->remove(name());
    }
    delete m_enumeration;
}

const IKyRxEnumeration* KyRxValueType::enumeration() const {
    if (m_enumeration == nullptr) {
        m_enumeration = new Enumeration(members());
    }
    return m_enumeration->count() > 0 ? m_enumeration : nullptr;
}

int KyRxValueType::toString(const void* instance, wchar_t* buffer, size_t size,
                            StringFormat format) const {
    return subToString(instance, buffer, size, format);
}

bool KyRxValueType::equalTo(const void* a, const void* b) const {
    return subEqualTo(a, b);
}

int KyRxValueType::subToString(const void* instance, wchar_t* buffer, size_t size,
                               StringFormat format) const {
    const IKyRxEnumeration* tags = enumeration();
    if (tags != nullptr) {
        for (int i = 0; i < tags->count(); ++i) {
            const KyRxEnumTag& tag = tags->getAt(i);
            const KyRxValue& tagValue = tag.value();
            if (&tagValue.type() == this && equalTo(tagValue.valuePtr(), instance)) {
                if (format == kStringFormatLocalized) {
                    const KyString local = tag.localName();
                    return putText(local.kwszPtr(), buffer, size);
                }
                return putText(tag.name(), buffer, size);
            }
        }
    }
    return putText(L"", buffer, size);
}

bool KyRxValueType::subEqualTo(const void* a, const void* b) const {
    return m_size == 0 || std::memcmp(a, b, m_size) == 0;
}

int KyRxValueType::putText(const wchar_t* text, wchar_t* buffer, size_t size) {
    if (text == nullptr) {
        text = L"";
    }
    const size_t length = std::wcslen(text);
    if (buffer != nullptr && size > 0) {
        const size_t count = length < size ? length : size - 1;
        std::wmemcpy(buffer, text, count);
        buffer[count] = L'\0';
    }
    return static_cast<int>(length);
}
