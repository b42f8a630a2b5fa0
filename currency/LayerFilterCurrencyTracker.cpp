#include "currency/LayerFilterCurrencyTracker.h"

#include "collections/KyDiImpCollection.h"
#include "currency/LayerFilterCurrencySource.h"
#include "kydi/KyDiEditorService.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiObservableCollection.h"
#include "manager/host/KyDiHostAccess.h"

namespace {

// The filter's name stands in double quotes, so that a name with blanks or
// pattern characters is taken as it is; the empty answer ends the command.
const wchar_t kSetFilterCommand[] = L"'_.-LAYER\n_Filter\n_Set\n\"%ls\"\n\n";

}  // namespace

KyDiDynamicObject* LayerFilterCurrencyTracker::getCurrentItem() {
    KyDiObservableCollection* filters = KyDiManager::getKnownCollection(collectionName());
    auto* source =
        filters != nullptr ? dynamic_cast<LayerFilterCurrencySource*>(filters->imp()) : nullptr;
    return source != nullptr ? source->currentFilterItem() : nullptr;
}

void LayerFilterCurrencyTracker::setCurrentItem(KyDiDynamicObject* item) {
    KyDiEditorService* editor = KyDiHostAccess::editor();
    if (item == nullptr || editor == nullptr || commandFormat().isEmpty()) {
        return;
    }
    // The row's format only says that a command is sent; the text is this one.
    const KyString command =
        KyString::formatted(kSetFilterCommand, KyDiGetItemName(item).kwszPtr());
    editor->sendCommand(command.kwszPtr(), false, false, false);
}
