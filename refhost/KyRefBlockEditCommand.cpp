#include "KyRefBlockEditCommand.h"

#include "KyRefCommandContext.h"
#include "KyRefDocument.h"
#include "KyRefHost.h"
#include "KyRefNamedItem.h"
#include "KyRefReadAccess.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDatabase.h"

void KyRefBlockEditCommand::run(KyRefCommandContext& context) {
    KyRefDocument& document = *context.document();
    const KyDbObjectId blocks = context.database()->blockTableId();
    if (const KyDbObjectId open = document.editedBlockId(); !open.isNull()) {
        context.fail(L"The block \"%ls\" is open for editing: close it with BCLOSE first.",
                     KyRefNamedItem::nameOf(blocks, open).kwszPtr());
    }
    const KyString name = context.readName(L"Enter the name of the block to edit: ");
    if (name.isEmpty()) {
        return;
    }
    const KyDbObjectId id = KyRefNamedItem::find(blocks, name);
    KyRefReadAccess<KyDbBlockTableRecord> block(id);
    if (!block) {
        context.fail(L"Cannot find block \"%ls\".", name.kwszPtr());
    }
    if (block->isLayout()) {
        context.fail(L"The block \"%ls\" is the sheet of a layout and can't be edited.",
                     block->name().kwszPtr());
    }
    if (block->isFromExternalReference()) {
        context.fail(L"The block \"%ls\" is an external reference and can't be edited.",
                     block->name().kwszPtr());
    }
    context.host().blockEditor().open(document, id);
}
