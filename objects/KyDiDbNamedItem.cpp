#include "kydi/KyDiDbNamedItem.h"

#include "manager/KyDiReflectedClasses.h"
#include "objects/ItemMembers.h"
#include "reflection/KyDiMemberIterator.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiDbNamedItem, kDbNamedItem)

KyDiDbNamedItem::KyDiDbNamedItem(KyDbObjectId objectId, const KyString& name)
    : KyDiDbItem(objectId), m_name(name) {}

KyDiDbNamedItem::~KyDiDbNamedItem() {
    tellDeleted();
}

KyRxMemberIterator* KyDiDbNamedItem::subNewItemMemberIterator() {
    return KyDiMemberIterator::over({ItemMembers::dbNamedItemName()});
}

Kyro::ErrorStatus KyDiDbNamedItem::getValue(const KyRxPropertyBase* property, KyRxValue& value,
                                            int /*index*/, const wchar_t* /*key*/) {
    if (!ItemMembers::isNamed(property, L"Name")) {
        return Kyro::eInvalidInput;
    }
    value = KyRxValue(m_name);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDiDbNamedItem::setValue(const KyRxPropertyBase* property,
                                            const KyRxValue& value, int index, const wchar_t* key) {
    return KyDiItem::setValue(property, value, index, key);
}

KyRxValueIterator* KyDiDbNamedItem::newValueIterator(const KyRxPropertyBase* property) {
    return KyDiItem::newValueIterator(property);
}
