#include "db/KyDbLinetypeTable.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbLinetypeTableRecord.h"

KYDB_DEFINE_MEMBERS(KyDbLinetypeTable, KyDbSymbolTable)

KyDbLinetypeTable::KyDbLinetypeTable() = default;

KyDbLinetypeTable::~KyDbLinetypeTable() = default;

const KyRxClass* KyDbLinetypeTable::subRecordClass() const {
    return KyDbLinetypeTableRecord::desc();
}
