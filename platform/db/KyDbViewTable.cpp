#include "db/KyDbViewTable.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbViewTableRecord.h"

KYDB_DEFINE_MEMBERS(KyDbViewTable, KyDbSymbolTable)

KyDbViewTable::KyDbViewTable() = default;

KyDbViewTable::~KyDbViewTable() = default;

const KyRxClass* KyDbViewTable::subRecordClass() const {
    return KyDbViewTableRecord::desc();
}
