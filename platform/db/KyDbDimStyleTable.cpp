#include "db/KyDbDimStyleTable.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbDimStyleTableRecord.h"

KYDB_DEFINE_MEMBERS(KyDbDimStyleTable, KyDbSymbolTable)

KyDbDimStyleTable::KyDbDimStyleTable() = default;

KyDbDimStyleTable::~KyDbDimStyleTable() = default;

const KyRxClass* KyDbDimStyleTable::subRecordClass() const {
    return KyDbDimStyleTableRecord::desc();
}
