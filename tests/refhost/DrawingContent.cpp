#include "DrawingContent.h"

#include "db/KyDbBlockTableRecordIterator.h"
#include "db/KyDbStandardContent.h"

namespace refhost {

namespace {

KyDbObjectId blockNamed(KyDbDatabase* database, const wchar_t* name) {
    KyDbObjectPointer<KyDbSymbolTable> blocks(database->blockTableId(), KyDb::kForRead);
    KyDbObjectId id;
    blocks->getAt(name, id);
    return id;
}

}  // namespace

KyDbObjectId DrawingContent::modelSpaceId() const {
    return blockNamed(m_database, KyDbStandardContent::kModelSpaceName);
}

KyDbObjectId DrawingContent::paperSpaceId() const {
    return blockNamed(m_database, KyDbStandardContent::kPaperSpaceName);
}

std::vector<KyDbObjectId> DrawingContent::entitiesOf(KyDbObjectId blockId) {
    std::vector<KyDbObjectId> ids;
    KyDbObjectPointer<KyDbBlockTableRecord> block(blockId, KyDb::kForRead);
    KyDbBlockTableRecordIterator it(block.object());
    for (it.start(); !it.done(); it.step()) {
        KyDbObjectId id;
        it.getEntityId(id);
        ids.push_back(id);
    }
    return ids;
}

}  // namespace refhost
