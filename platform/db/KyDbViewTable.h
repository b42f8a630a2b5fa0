// KyDbViewTable: the table of named views. It takes KyDbViewTableRecords only.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbSymbolTable.h"

class KYPLATFORM_API KyDbViewTable : public KyDbSymbolTable {
public:
    KYRX_DECLARE_MEMBERS(KyDbViewTable);
    KyDbViewTable();
    ~KyDbViewTable() override;

protected:
    const KyRxClass* subRecordClass() const override;
};
