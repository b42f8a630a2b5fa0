#include "db/KyDbTextStyleTable.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbTextStyleTableRecord.h"

KYDB_DEFINE_MEMBERS(KyDbTextStyleTable, KyDbSymbolTable)

KyDbTextStyleTable::KyDbTextStyleTable() = default;

KyDbTextStyleTable::~KyDbTextStyleTable() = default;

const KyRxClass* KyDbTextStyleTable::subRecordClass() const {
    return KyDbTextStyleTableRecord::desc();
}
