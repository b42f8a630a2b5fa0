#include "KyRefSelectCommand.h"

#include "KyRefCommandContext.h"
#include "KyRefHost.h"
#include "KyRefSelectionService.h"

void KyRefSelectCommand::run(KyRefCommandContext& context) {
    KyRefSelectionService* selection = context.host().selectionService();
    if (selection == nullptr) {
        context.fail(L"This host keeps no selection.");
    }
    selection->setSelection(context.readEntities(L"Select objects: "));
}
