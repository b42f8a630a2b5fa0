#include "currency/RenderPresetCurrencyTracker.h"

#include "kydi/KyDiDbItem.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiRenderService.h"
#include "manager/host/KyDiHostAccess.h"

RenderPresetCurrencyTracker::RenderPresetCurrencyTracker(const wchar_t* collectionName,
                                                         const wchar_t* sysVarName,
                                                         const wchar_t* commandFormat,
                                                         Getter getter, Setter setter)
    : DataItemCurrencyTracker(collectionName, sysVarName, commandFormat, getter, setter),
      m_objectReactor(this) {}

RenderPresetCurrencyTracker::~RenderPresetCurrencyTracker() {
    watch(nullptr);
}

KyDiDynamicObject* RenderPresetCurrencyTracker::getCurrentItem() {
    KyDiRenderService* render = KyDiHostAccess::renderService();
    if (render == nullptr) {
        return nullptr;
    }
    KyString name;
    KyDbObjectId id;
    if (render->getCurrentPresetName(name) != Kyro::eOk ||
        render->findPreset(KyDiRenderService::kDrawingPresets, name, id) != Kyro::eOk ||
        !id.isValid()) {
        return nullptr;
    }
    return itemOfRecord(id);
}

void RenderPresetCurrencyTracker::setCurrentItem(KyDiDynamicObject* item) {
    KyDiRenderService* render = KyDiHostAccess::renderService();
    const KyString name = item != nullptr ? KyDiGetItemName(item) : KyString();
    if (render != nullptr && !name.isEmpty()) {
        render->setCurrentPreset(name);
    }
}

void RenderPresetCurrencyTracker::update() {
    KyDiDynamicObject* current = getCurrentItem();
    if (current == m_lastCurrentItem) {
        return;
    }
    notifyReactors();
    m_lastCurrentItem = current;
    watch(current);
}

void RenderPresetCurrencyTracker::forgetWatchedPreset() {
    watch(nullptr);
    m_lastCurrentItem = nullptr;
}

void RenderPresetCurrencyTracker::watch(KyDiDynamicObject* item) {
    if (!m_watchedId.isNull()) {
        KyDiManager::removeObjectReactor(m_watchedId, &m_objectReactor);
        m_watchedId.setNull();
    }
    const auto* dbItem = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(item));
    if (dbItem != nullptr && !dbItem->objectId().isNull() &&
        KyDiManager::addObjectReactor(dbItem->objectId(), &m_objectReactor) == Kyro::eOk) {
        m_watchedId = dbItem->objectId();
    }
}
