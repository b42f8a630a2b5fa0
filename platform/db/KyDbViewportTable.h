// KyDbViewportTable: the table of tiled viewport configurations. It takes KyDbViewportTableRecords
// only.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbSymbolTable.h"

class KYPLATFORM_API KyDbViewportTable : public KyDbSymbolTable {
public:
    KYRX_DECLARE_MEMBERS(KyDbViewportTable);
    KyDbViewportTable();
    ~KyDbViewportTable() override;

protected:
    const KyRxClass* subRecordClass() const override;
};
