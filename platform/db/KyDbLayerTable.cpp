#include "db/KyDbLayerTable.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbLayerTableIterator.h"
#include "db/KyDbLayerTableRecord.h"

KYDB_DEFINE_MEMBERS(KyDbLayerTable, KyDbSymbolTable)

KyDbLayerTable::KyDbLayerTable() = default;

KyDbLayerTable::~KyDbLayerTable() = default;

const KyRxClass* KyDbLayerTable::subRecordClass() const {
    return KyDbLayerTableRecord::desc();
}

KyDbSymbolTableIterator* KyDbLayerTable::subNewIterator() const {
    return new KyDbLayerTableIterator(this);
}

Kyro::ErrorStatus KyDbLayerTable::newIterator(KyDbLayerTableIterator*& iterator, bool atBeginning,
                                              bool skipDeleted) const {
    iterator = new KyDbLayerTableIterator(this);
    iterator->start(atBeginning, skipDeleted);
    return Kyro::eOk;
}
