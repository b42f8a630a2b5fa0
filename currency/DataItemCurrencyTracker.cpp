#include "currency/DataItemCurrencyTracker.h"

#include "db/KyDbDatabase.h"
#include "kydi/KyDiDbItem.h"
#include "kydi/KyDiEditorService.h"
#include "kydi/KyDiEffectiveValue.h"
#include "kydi/KyDiFunctions.h"
#include "manager/host/KyDiHostAccess.h"

DataItemCurrencyTracker::DataItemCurrencyTracker(const wchar_t* collectionName,
                                                 const wchar_t* sysVarName,
                                                 const wchar_t* commandFormat, Getter getter,
                                                 Setter setter)
    : DataItemCurrencyTrackerBase(collectionName, sysVarName, commandFormat),
      m_getter(getter),
      m_setter(setter) {}

KyDiDynamicObject* DataItemCurrencyTracker::getCurrentItem() {
    KyDbObjectId id;
    KyDbDatabase* db = KyDiHostAccess::workingDatabase();
    if (m_getter != nullptr && db != nullptr) {
        id = (db->*m_getter)();
    }
    return itemOfRecord(id);
}

void DataItemCurrencyTracker::setCurrentItem(KyDiDynamicObject* item) {
    KyDiEditorService* editor = KyDiHostAccess::editor();
    if (editor != nullptr && !commandFormat().isEmpty()) {
        const KyString command =
            KyString::formatted(commandFormat().kwszPtr(), KyDiGetItemName(item).kwszPtr());
        editor->sendCommand(command.kwszPtr(), false, false, true);
        return;
    }
    const auto* dbItem = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(item));
    KyDbDatabase* db = KyDiHostAccess::workingDatabase();
    if (m_setter != nullptr && db != nullptr && dbItem != nullptr) {
        (db->*m_setter)(dbItem->objectId());
    }
}

KyDiDynamicObject* DataItemCurrencyTracker::findItem(const KyDiEffectiveValue& value) {
    return value.kind == KyDiEffectiveValue::kObjectId ? itemOfRecord(value.objectId) : nullptr;
}
