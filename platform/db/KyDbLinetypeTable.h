// KyDbLinetypeTable: the table of linetypes. It takes KyDbLinetypeTableRecords only.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbSymbolTable.h"

class KYPLATFORM_API KyDbLinetypeTable : public KyDbSymbolTable {
public:
    KYRX_DECLARE_MEMBERS(KyDbLinetypeTable);
    KyDbLinetypeTable();
    ~KyDbLinetypeTable() override;

protected:
    const KyRxClass* subRecordClass() const override;
};
