#include "collections/KyDiImpLineTypeCollection.h"

#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbTrace.h"

bool KyDiImpLineTypeCollection::subIncludeRecord(const KyDbSymbolTableRecord* record) const {
    return record != nullptr && kyrxCast<KyDbLinetypeTableRecord>(record) != nullptr &&
           !kydbiSkipDisplayForTrace(record->objectId()) && !record->isDependent();
}
