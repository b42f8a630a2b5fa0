// KyDbTextStyleTable: the table of text styles. It takes KyDbTextStyleTableRecords only.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbSymbolTable.h"

class KYPLATFORM_API KyDbTextStyleTable : public KyDbSymbolTable {
public:
    KYRX_DECLARE_MEMBERS(KyDbTextStyleTable);
    KyDbTextStyleTable();
    ~KyDbTextStyleTable() override;

protected:
    const KyRxClass* subRecordClass() const override;
};
