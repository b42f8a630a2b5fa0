// KyDbLayerTable: the table of layers. It takes KyDbLayerTableRecords only,
// and has an iterator that opens its records as layers.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbSymbolTable.h"

class KyDbLayerTableIterator;

class KYPLATFORM_API KyDbLayerTable : public KyDbSymbolTable {
public:
    KYRX_DECLARE_MEMBERS(KyDbLayerTable);
    KyDbLayerTable();
    ~KyDbLayerTable() override;

    using KyDbSymbolTable::newIterator;
    Kyro::ErrorStatus newIterator(KyDbLayerTableIterator*& iterator, bool atBeginning = true,
                                  bool skipDeleted = true) const;

protected:
    const KyRxClass* subRecordClass() const override;
    KyDbSymbolTableIterator* subNewIterator() const override;
};
