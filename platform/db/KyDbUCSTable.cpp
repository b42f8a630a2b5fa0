#include "db/KyDbUCSTable.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbUCSTableRecord.h"

KYDB_DEFINE_MEMBERS(KyDbUCSTable, KyDbSymbolTable)

KyDbUCSTable::KyDbUCSTable() = default;

KyDbUCSTable::~KyDbUCSTable() = default;

const KyRxClass* KyDbUCSTable::subRecordClass() const {
    return KyDbUCSTableRecord::desc();
}
