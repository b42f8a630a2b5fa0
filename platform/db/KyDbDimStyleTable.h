// KyDbDimStyleTable: the table of dimension styles. It takes KyDbDimStyleTableRecords only.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbSymbolTable.h"

class KYPLATFORM_API KyDbDimStyleTable : public KyDbSymbolTable {
public:
    KYRX_DECLARE_MEMBERS(KyDbDimStyleTable);
    KyDbDimStyleTable();
    ~KyDbDimStyleTable() override;

protected:
    const KyRxClass* subRecordClass() const override;
};
