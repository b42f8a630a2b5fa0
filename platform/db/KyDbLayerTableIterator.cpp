#include "db/KyDbLayerTableIterator.h"

#include "db/KyDbLayerTable.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbOpenObject.h"

KyDbLayerTableIterator::KyDbLayerTableIterator(const KyDbLayerTable* table)
    : KyDbSymbolTableIterator(table) {}

KyDbLayerTableIterator::~KyDbLayerTableIterator() = default;

Kyro::ErrorStatus KyDbLayerTableIterator::getRecord(KyDbLayerTableRecord*& record,
                                                    KyDb::OpenMode mode, bool openErased) const {
    record = nullptr;
    KyDbObjectId id;
    if (const Kyro::ErrorStatus status = getRecordId(id); status != Kyro::eOk) {
        return status;
    }
    return kydbOpenObject(record, id, mode, openErased);
}
