#include "kydi/KyDiDbDictionaryItem.h"

#include <memory>

#include "db/KyDbDictionary.h"
#include "db/KyDbDictionaryIterator.h"
#include "db/KyDbObjectPointer.h"
#include "manager/KyDiReflectedClasses.h"
#include "objects/ItemMembers.h"
#include "reflection/KyDiMemberIterator.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiDbDictionaryItem, kDbDictionaryItem)

KyDiDbDictionaryItem::KyDiDbDictionaryItem(KyDbObjectId objectId, KyDbObjectId dictionaryId)
    : KyDiDbItem(objectId), m_dictionaryId(dictionaryId) {}

KyDiDbDictionaryItem::~KyDiDbDictionaryItem() {
    tellDeleted();
}

KyRxMemberIterator* KyDiDbDictionaryItem::subNewItemMemberIterator() {
    return KyDiMemberIterator::over({ItemMembers::dbDictionaryItemName()});
}

Kyro::ErrorStatus KyDiDbDictionaryItem::getValue(const KyRxPropertyBase* property, KyRxValue& value,
                                                 int index, const wchar_t* key) {
    if (property == nullptr) {
        return Kyro::eInvalidInput;
    }
    if (!ItemMembers::isNamed(property, L"Name")) {
        return KyDiDbItem::getValue(property, value, index, key);
    }
    // The name is the entry's key in its dictionary, as it stands now.
    KyDbObjectPointer<KyDbDictionary> dictionary(m_dictionaryId, KyDb::kForRead);
    if (dictionary.openStatus() != Kyro::eOk) {
        return dictionary.openStatus();
    }
    KyString name;
    const std::unique_ptr<KyDbDictionaryIterator> entries(dictionary->newIterator());
    for (; !entries->done(); entries->next()) {
        const KyDbObjectId entryId = entries->objectId();
        if (!entryId.isNull() && entryId == objectId()) {
            name = entries->name();
            break;
        }
    }
    value = KyRxValue(name);
    return name.isEmpty() ? Kyro::eInvalidInput : Kyro::eOk;
}

Kyro::ErrorStatus KyDiDbDictionaryItem::setValue(const KyRxPropertyBase* property,
                                                 const KyRxValue& value, int index,
                                                 const wchar_t* key) {
    if (property == nullptr) {
        return Kyro::eInvalidInput;
    }
    // A dictionary's key is the dictionary's to change, not the entry's.
    if (ItemMembers::isNamed(property, L"Name")) {
        return Kyro::eNotApplicable;
    }
    return KyDiDbItem::setValue(property, value, index, key);
}
