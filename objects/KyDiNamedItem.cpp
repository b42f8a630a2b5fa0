#include "kydi/KyDiNamedItem.h"

#include "manager/KyDiReflectedClasses.h"
#include "objects/ItemMembers.h"
#include "reflection/KyDiMemberIterator.h"
#include "rx/KyRxProperty.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiNamedItem, kNamedItem)

KyDiNamedItem::KyDiNamedItem(const KyString& name, const KyRxValue& value)
    : m_name(name), m_value(value) {}

KyDiNamedItem::~KyDiNamedItem() {
    tellDeleted();
}

Kyro::ErrorStatus KyDiNamedItem::subGetValueInto(KyRxValue& out) {
    out = m_value;
    return Kyro::eOk;
}

const KyRxValue* KyDiNamedItem::subValue() const {
    return &m_value;
}

KyRxValue* KyDiNamedItem::subValue() {
    return &m_value;
}

KyRxMemberIterator* KyDiNamedItem::subNewItemMemberIterator() {
    return KyDiMemberIterator::over({ItemMembers::namedItemName()});
}

Kyro::ErrorStatus KyDiNamedItem::getValue(const KyRxPropertyBase* property, KyRxValue& value,
                                          int /*index*/, const wchar_t* /*key*/) {
    if (!ItemMembers::isNamed(property, L"Name")) {
        return Kyro::eInvalidInput;
    }
    value = KyRxValue(m_name);
    return Kyro::eOk;
}
