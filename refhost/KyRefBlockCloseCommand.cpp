#include "KyRefBlockCloseCommand.h"

#include "KyRefCommandContext.h"
#include "KyRefDocument.h"
#include "KyRefHost.h"

void KyRefBlockCloseCommand::run(KyRefCommandContext& context) {
    KyRefDocument& document = *context.document();
    if (document.editedBlockId().isNull()) {
        context.fail(L"No block is open for editing.");
    }
    context.host().blockEditor().close(document);
}
