#include "KyRefCurrentSpace.h"

#include "KyRefCommandContext.h"
#include "KyRefDocument.h"
#include "KyRefHost.h"
#include "KyRefReadAccess.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbEntity.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbSymbolTable.h"

namespace {

// The viewport number of the paper itself.
constexpr short kPaperViewport = 1;

}  // namespace

KyDbObjectId KyRefCurrentSpace::blockId(KyRefCommandContext& context) {
    if (const KyDbObjectId edited = context.document()->editedBlockId();
        !edited.isNull() && !edited.isErased()) {
        return edited;
    }
    KyDbDatabase* database = context.database();
    KyRefResbufPtr viewport;
    const bool onPaper =
        !database->tilemode() &&
        context.host().sysVars().get(L"CVPORT", viewport) == KyRefSysVarStatus::kOk &&
        viewport->resval.rint == kPaperViewport;
    KyDbObjectId id;
    KyRefReadAccess<KyDbSymbolTable> blocks(database->blockTableId());
    if (blocks) {
        blocks->getAt(
            onPaper ? KyDbStandardContent::kPaperSpaceName : KyDbStandardContent::kModelSpaceName,
            id);
    }
    return id;
}

KyDbObjectId KyRefCurrentSpace::append(KyRefCommandContext& context,
                                       std::unique_ptr<KyDbEntity> entity) {
    KyDbDatabase* database = context.database();
    entity->setDatabaseDefaults(database);
    KyDbObjectPointer<KyDbBlockTableRecord> block(blockId(context), KyDb::kForWrite);
    if (!block) {
        context.fail(L"The drawing has no space to draw in.");
    }
    KyDbObjectId id;
    if (block->appendKyDbEntity(id, entity.get()) != Kyro::eOk) {
        context.fail(L"The drawing refused the new object.");
    }
    entity.release()->close();
    return id;
}
