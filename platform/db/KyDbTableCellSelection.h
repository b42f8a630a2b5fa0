// KyDbTableCellSelection: the selected cells of a table (its sub-selection)
// as an object of their own, which a property palette reads and writes like
// any object. KyDbSubEntityProvider makes one for a table with a
// sub-selection and deletes it at the close; it lives while its table stays
// open.
//
// Reflected: "CellStyle", the cell style of the selected cells. Where they
// differ it reads the style of the first cell (top left); writing it gives
// every selected cell that style, which needs the cells opened for write (a
// table open for write, eWasNotOpenForWrite otherwise) and a name
// (eInvalidInput for an empty one).
#pragma once

#include "KyPlatformExport.h"
#include "base/KyString.h"
#include "base/KyroErrorStatus.h"
#include "db/KyDbCellRange.h"
#include "rx/KyRxObject.h"

class KyDbTable;

class KYPLATFORM_API KyDbTableCellSelection : public KyRxObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbTableCellSelection);
    // The cells `range` of `table`, for write when `writable`.
    KyDbTableCellSelection(KyDbTable* table, const KyDbCellRange& range, bool writable);
    ~KyDbTableCellSelection() override;
    KyDbTableCellSelection(const KyDbTableCellSelection&) = delete;
    KyDbTableCellSelection& operator=(const KyDbTableCellSelection&) = delete;

    const KyDbTable* table() const { return m_table; }
    const KyDbCellRange& range() const { return m_range; }
    bool isWritable() const { return m_writable; }

    KyString cellStyle() const;
    Kyro::ErrorStatus setCellStyle(const wchar_t* name);

private:
    KyDbTable* m_table;
    KyDbCellRange m_range;
    bool m_writable;
};
