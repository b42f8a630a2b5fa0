#include "currency/DataItemCurrencyTrackerBase.h"

#include "kydi/KyDiCollection.h"
#include "kydi/KyDiCurrencyReactor.h"
#include "kydi/KyDiDbItem.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiObservableCollection.h"
#include "rx/KyRxValue.h"

DataItemCurrencyTrackerBase::DataItemCurrencyTrackerBase(const wchar_t* collectionName,
                                                         const wchar_t* sysVarName,
                                                         const wchar_t* commandFormat)
    : m_collectionName(collectionName),
      m_sysVarName(sysVarName),
      m_commandFormat(commandFormat),
      m_reactors(0, 8) {}

void DataItemCurrencyTrackerBase::addReactor(KyDiCurrencyReactor* reactor) {
    if (reactor != nullptr && !m_reactors.contains(reactor)) {
        m_reactors.append(reactor);
    }
}

void DataItemCurrencyTrackerBase::removeReactor(KyDiCurrencyReactor* reactor) {
    m_reactors.remove(reactor);
}

KyDiDynamicObject* DataItemCurrencyTrackerBase::findItem(const KyDiEffectiveValue& /*value*/) {
    return nullptr;
}

void DataItemCurrencyTrackerBase::sysVarChanged(const wchar_t* /*name*/, bool /*succeeded*/) {}

void DataItemCurrencyTrackerBase::notifyReactors() {
    // A reactor only sets a mark: the list does not change under the walk.
    for (int i = 0; i < m_reactors.length(); ++i) {
        m_reactors[i]->currencyChanged();
    }
}

const KyDiItemArray& DataItemCurrencyTrackerBase::collectionItems() const {
    static const KyDiItemArray s_none;
    KyDiObservableCollection* collection = KyDiManager::getKnownCollection(m_collectionName);
    return collection != nullptr ? collection->getItems() : s_none;
}

KyDiDynamicObject* DataItemCurrencyTrackerBase::itemOfRecord(KyDbObjectId id) const {
    return firstItem([id](KyDiDynamicObject* item) {
        const auto* dbItem = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(item));
        return dbItem != nullptr && dbItem->objectId() == id;
    });
}

KyString DataItemCurrencyTrackerBase::valueTextOf(KyDiDynamicObject* item) {
    const KyRxValue* value = item != nullptr ? item->value() : nullptr;
    if (value == nullptr || value->isEmpty()) {
        return KyDiGetItemName(item);
    }
    return value->text();
}
