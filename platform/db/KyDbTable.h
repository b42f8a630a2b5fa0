// KyDbTable: a table at a position, in a table style, with rows and columns
// of cells. Each cell has a cell style by name (one of the cell styles of a
// table style: "Title", "Header", "Data" ...); a cell that was never given
// one has "Data". A table appended without a style takes the database's
// current table style. A new table has one row and one column.
//
// The cell styles are held as a grid, row by row, once any cell is given one;
// until then the grid is empty and every cell has "Data". Cells keep their
// names when the table changes style, also names the new style lacks.
//
// The sub-selection: the cells of the table a user has selected, a
// rectangular range. It belongs to the session, not to the drawing: it is no
// part of the table's state (undo, copies and files leave it alone), and
// setting or clearing it tells no reactor and needs no write-open, only an
// open in any mode (eInvalidOpenState otherwise), as a transient reactor does.
// A change of the number of rows or columns that leaves it outside the table
// clears it.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyString.h"
#include "db/KyDbCellRange.h"
#include "db/KyDbEntity.h"
#include "rx/KyRxValue.h"

class KYPLATFORM_API KyDbTable : public KyDbEntity {
public:
    KYRX_DECLARE_MEMBERS(KyDbTable);
    KyDbTable();
    ~KyDbTable() override;

    // A table style (KyDbTableStyle) of the drawing.
    KyDbObjectId tableStyle() const { return m_style; }
    Kyro::ErrorStatus setTableStyle(KyDbObjectId styleId);
    Kyro::ErrorStatus setTableStyle(const wchar_t* styleName);

    const KyGePoint3d& position() const { return m_position; }
    Kyro::ErrorStatus setPosition(const KyGePoint3d& position);

    // The most cells a table holds, so that its grid of cell styles stays a
    // size a process can hold.
    static constexpr int kMaxCells = 1000000;

    // At least 1, and at most kMaxCells cells in all (eInvalidInput
    // otherwise). New cells have "Data".
    int numRows() const { return m_rows; }
    Kyro::ErrorStatus setNumRows(int rows);
    int numColumns() const { return m_columns; }
    Kyro::ErrorStatus setNumColumns(int columns);

    // The cell style of a cell; "Data" for a cell out of range too.
    const KyString& cellStyle(int row, int column) const;
    // eInvalidIndex for a cell out of range, eInvalidInput for an empty name.
    Kyro::ErrorStatus setCellStyle(int row, int column, const wchar_t* name);
    // The grid of cell styles, row by row: empty while every cell has "Data"
    // without having been given it.
    const KyStringArray& cellStyles() const { return m_cellStyles; }
    // An empty grid, or one name (not empty) for each cell (eInvalidInput).
    Kyro::ErrorStatus setCellStyles(const KyStringArray& grid);

    // ---- The sub-selection of the session
    bool hasSubSelection() const { return m_subSelection.isValid(); }
    // The selected cells; a range of no cell without a sub-selection.
    const KyDbCellRange& subSelection() const { return m_subSelection; }
    // eInvalidInput for a range of no cell, eInvalidIndex for one that
    // reaches outside the table.
    Kyro::ErrorStatus setSubSelection(const KyDbCellRange& range);
    Kyro::ErrorStatus clearSubSelection();

protected:
    void subAppended(KyDbDatabase* database) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    bool isCell(int row, int column) const;
    // Gives the grid the shape of `rows` by `columns`, keeping the cells that
    // stay; new cells have "Data". An empty grid stays empty.
    void reshape(int rows, int columns);
    // Clears a sub-selection that reaches outside the table.
    void fitSubSelection();

    KyDbObjectId m_style;
    KyGePoint3d m_position;
    int m_rows = 1;
    int m_columns = 1;
    KyStringArray m_cellStyles;
    KyDbCellRange m_subSelection;
};
