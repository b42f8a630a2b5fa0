// KyDbBlockTable: the table of blocks: *Model_Space, *Paper_Space, layouts' blocks, named and
// anonymous blocks and external references. It takes KyDbBlockTableRecords only.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbSymbolTable.h"

class KYPLATFORM_API KyDbBlockTable : public KyDbSymbolTable {
public:
    KYRX_DECLARE_MEMBERS(KyDbBlockTable);
    KyDbBlockTable();
    ~KyDbBlockTable() override;

protected:
    const KyRxClass* subRecordClass() const override;
};
