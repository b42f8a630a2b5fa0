// KyDbLayerTableIterator: the walk over a layer table, which opens its
// records as layers.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbSymbolTableIterator.h"

class KyDbLayerTable;
class KyDbLayerTableRecord;

class KYPLATFORM_API KyDbLayerTableIterator : public KyDbSymbolTableIterator {
public:
    explicit KyDbLayerTableIterator(const KyDbLayerTable* table);
    ~KyDbLayerTableIterator() override;

    using KyDbSymbolTableIterator::getRecord;
    Kyro::ErrorStatus getRecord(KyDbLayerTableRecord*& record, KyDb::OpenMode mode,
                                bool openErased = false) const;
};
