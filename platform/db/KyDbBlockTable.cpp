#include "db/KyDbBlockTable.h"

#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbClassSupport.h"

KYDB_DEFINE_MEMBERS(KyDbBlockTable, KyDbSymbolTable)

KyDbBlockTable::KyDbBlockTable() = default;

KyDbBlockTable::~KyDbBlockTable() = default;

const KyRxClass* KyDbBlockTable::subRecordClass() const {
    return KyDbBlockTableRecord::desc();
}
