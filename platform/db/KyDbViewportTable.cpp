#include "db/KyDbViewportTable.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbViewportTableRecord.h"

KYDB_DEFINE_MEMBERS(KyDbViewportTable, KyDbSymbolTable)

KyDbViewportTable::KyDbViewportTable() = default;

KyDbViewportTable::~KyDbViewportTable() = default;

const KyRxClass* KyDbViewportTable::subRecordClass() const {
    return KyDbViewportTableRecord::desc();
}
