// KyRxAttribute and the attribute collection of classes and members.
#include "rx/KyRxAttribute.h"

#include <algorithm>

#include "rx/KyRxClass.h"

KYRX_DEFINE_MEMBERS(KyRxAttribute, KyRxObject)

KyRxAttribute::~KyRxAttribute() = default;

KyRxAttributeCollection::~KyRxAttributeCollection() {
    // What was not taken out with remove() belongs to the collection.
    for (auto it = m_attributes.rbegin(); it != m_attributes.rend(); ++it) {
        delete *it;
    }
}

KyRxAttribute* KyRxAttributeCollection::getAt(int index) {
    return index >= 0 && index < count() ? m_attributes[static_cast<size_t>(index)] : nullptr;
}

const KyRxAttribute* KyRxAttributeCollection::getAt(int index) const {
    return index >= 0 && index < count() ? m_attributes[static_cast<size_t>(index)] : nullptr;
}

KyRxAttribute* KyRxAttributeCollection::get(const KyRxClass* cls) {
    for (KyRxAttribute* attribute : m_attributes) {
        if (attribute->isKindOf(cls)) {
            return attribute;
        }
    }
    return nullptr;
}

const KyRxAttribute* KyRxAttributeCollection::get(const KyRxClass* cls) const {
    return const_cast<KyRxAttributeCollection*>(this)->get(cls);
}

Kyro::ErrorStatus KyRxAttributeCollection::add(KyRxAttribute* attribute) {
    if (attribute == nullptr) {
        return Kyro::eInvalidInput;
    }
    // Held twice it would be deleted twice.
    if (std::find(m_attributes.begin(), m_attributes.end(), attribute) != m_attributes.end()) {
        return Kyro::eDuplicateKey;
    }
    m_attributes.push_back(attribute);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyRxAttributeCollection::remove(const KyRxAttribute* attribute) {
    auto it = std::find(m_attributes.begin(), m_attributes.end(), attribute);
    if (it == m_attributes.end()) {
        return Kyro::eKeyNotFound;
    }
    m_attributes.erase(it);
    return Kyro::eOk;
}
