#include "collections/KyDiImpViewportCollection.h"

#include "db/KyDbViewportTableRecord.h"

bool KyDiImpViewportCollection::subIncludeRecord(const KyDbSymbolTableRecord* record) const {
    if (kyrxCast<KyDbViewportTableRecord>(record) == nullptr) {
        return false;
    }
    KyString name;
    return record->getName(name) == Kyro::eOk && !name.isEmpty() && name.kwszPtr()[0] != L'*';
}
