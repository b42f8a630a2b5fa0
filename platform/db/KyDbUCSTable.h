// KyDbUCSTable: the table of named user coordinate systems. It takes KyDbUCSTableRecords only.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbSymbolTable.h"

class KYPLATFORM_API KyDbUCSTable : public KyDbSymbolTable {
public:
    KYRX_DECLARE_MEMBERS(KyDbUCSTable);
    KyDbUCSTable();
    ~KyDbUCSTable() override;

protected:
    const KyRxClass* subRecordClass() const override;
};
