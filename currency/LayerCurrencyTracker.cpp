#include "currency/LayerCurrencyTracker.h"

#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbObjectPointer.h"
#include "kydi/KyDiDbLayerItem.h"
#include "kydi/KyDiDocumentManager.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiLayerService.h"
#include "manager/host/KyDiHostAccess.h"
#include "rx/KyRxProperty.h"

namespace {

// Whether the user is to be asked: the document is busy with a command that
// can take a prompt.
bool canAsk() {
    KyDiDocumentManager* documents = KyDiHostAccess::documentManager();
    return documents != nullptr &&
           !documents->isDocumentQuiescent(KyDiHostAccess::currentDocument());
}

}  // namespace

void LayerCurrencyTracker::setCurrentItem(KyDiDynamicObject* item) {
    DataItemCurrencyTracker::setCurrentItem(item);

    KyDiLayerService* layers = KyDiHostAccess::layerService();
    auto* layerItem = kyrxCast<KyDiDbLayerItem>(static_cast<KyRxObject*>(item));
    if (layers == nullptr || layerItem == nullptr) {
        return;
    }
    bool turnOn = false;
    {
        KyDbObjectPointer<KyDbLayerTableRecord> layer(layerItem->objectId(), KyDb::kForRead);
        if (layer.openStatus() != Kyro::eOk) {
            return;
        }
        turnOn = layer->isOff() && canAsk() &&
                 layers->askTurnOnCurrentLayer() == KyDiLayerService::kTurnLayerOn;
    }
    if (turnOn) {
        // Through the item, which queues the layer command a user would type.
        const auto* isOff = kyrxCast<KyRxPropertyBase>(KyDiFindMember(layerItem, L"IsOff"));
        if (isOff != nullptr) {
            layerItem->setValue(isOff, KyRxValue(false), -1, nullptr);
        }
    }
}
