#include "db/KyDbTable.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbReservedStrings.h"
#include "db/KyDbStateFiler.h"
#include "db/KyDbTableStyle.h"

namespace {

const KyDbPropertyRow kTableRows[] = {
    {L"TableStyleId",
     kydbiAccess<&KyDbTable::tableStyle,
                 kydbiSetter<KyDbTable, KyDbObjectId>(&KyDbTable::setTableStyle)>(),
     KyDbCategory::kMisc, 0, L"/TableStyleDictionaryId/Items"},
    {L"Position", kydbiAccess<&KyDbTable::position, &KyDbTable::setPosition>(),
     KyDbCategory::kGeometry, 1},
    {L"Rows", kydbiAccess<&KyDbTable::numRows, &KyDbTable::setNumRows>(), KyDbCategory::kGeometry,
     2},
    {L"Columns", kydbiAccess<&KyDbTable::numColumns, &KyDbTable::setNumColumns>(),
     KyDbCategory::kGeometry, 3},
};

// The cell style of a cell that was never given one: the global form of
// "Data", as drawings store it.
const KyString& dataStyle() {
    static const KyString s_data(kydbGetReservedString(KyDb::kData, false));
    return s_data;
}

}  // namespace

KYDB_DEFINE_ENTITY(KyDbTable, KyDbEntity, kTableRows, L"TABLE")

KyDbTable::KyDbTable() = default;

KyDbTable::~KyDbTable() = default;

Kyro::ErrorStatus KyDbTable::setTableStyle(KyDbObjectId styleId) {
    return setReference(m_style, styleId, KyDbTableStyle::desc());
}

Kyro::ErrorStatus KyDbTable::setTableStyle(const wchar_t* styleName) {
    return setReference(m_style, styleName, &KyDbDatabase::tableStyleDictionaryId,
                        KyDbTableStyle::desc());
}

Kyro::ErrorStatus KyDbTable::setPosition(const KyGePoint3d& position) {
    return setMember(m_position, position);
}

Kyro::ErrorStatus KyDbTable::setNumRows(int rows) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (rows < 1 || static_cast<long long>(rows) * m_columns > kMaxCells) {
        return Kyro::eInvalidInput;
    }
    if (rows != m_rows) {
        assertWriteEnabled();
        reshape(rows, m_columns);
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbTable::setNumColumns(int columns) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (columns < 1 || static_cast<long long>(columns) * m_rows > kMaxCells) {
        return Kyro::eInvalidInput;
    }
    if (columns != m_columns) {
        assertWriteEnabled();
        reshape(m_rows, columns);
    }
    return Kyro::eOk;
}

void KyDbTable::reshape(int rows, int columns) {
    if (!m_cellStyles.isEmpty()) {
        KyStringArray grid;
        grid.setPhysicalLength(rows * columns);
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                grid.append(cellStyle(row, column));
            }
        }
        m_cellStyles = grid;
    }
    m_rows = rows;
    m_columns = columns;
    fitSubSelection();
}

bool KyDbTable::isCell(int row, int column) const {
    return row >= 0 && row < m_rows && column >= 0 && column < m_columns;
}

const KyString& KyDbTable::cellStyle(int row, int column) const {
    if (m_cellStyles.isEmpty() || !isCell(row, column)) {
        return dataStyle();
    }
    return m_cellStyles[row * m_columns + column];
}

Kyro::ErrorStatus KyDbTable::setCellStyle(int row, int column, const wchar_t* name) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (!isCell(row, column)) {
        return Kyro::eInvalidIndex;
    }
    if (name == nullptr || name[0] == L'\0') {
        return Kyro::eInvalidInput;
    }
    if (cellStyle(row, column).compare(name) == 0) {
        return Kyro::eOk;
    }
    assertWriteEnabled();
    if (m_cellStyles.isEmpty()) {
        m_cellStyles.setPhysicalLength(m_rows * m_columns);
        for (int i = 0; i < m_rows * m_columns; ++i) {
            m_cellStyles.append(dataStyle());
        }
    }
    m_cellStyles[row * m_columns + column] = KyString(name);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbTable::setCellStyles(const KyStringArray& grid) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (!grid.isEmpty() && grid.length() != m_rows * m_columns) {
        return Kyro::eInvalidInput;
    }
    for (const KyString& name : grid) {
        if (name.isEmpty()) {
            return Kyro::eInvalidInput;
        }
    }
    return setMember(m_cellStyles, grid);
}

Kyro::ErrorStatus KyDbTable::setSubSelection(const KyDbCellRange& range) {
    if (!isNotifyEnabled()) {
        return Kyro::eInvalidOpenState;
    }
    if (!range.isValid()) {
        return Kyro::eInvalidInput;
    }
    if (!isCell(range.bottomRow(), range.rightColumn())) {
        return Kyro::eInvalidIndex;
    }
    m_subSelection = range;
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbTable::clearSubSelection() {
    if (!isNotifyEnabled()) {
        return Kyro::eInvalidOpenState;
    }
    m_subSelection = KyDbCellRange();
    return Kyro::eOk;
}

void KyDbTable::fitSubSelection() {
    if (hasSubSelection() && !isCell(m_subSelection.bottomRow(), m_subSelection.rightColumn())) {
        m_subSelection = KyDbCellRange();
    }
}

void KyDbTable::subAppended(KyDbDatabase* database) {
    KyDbEntity::subAppended(database);
    if (m_style.isNull()) {
        m_style = database->tablestyle();
    }
}

void KyDbTable::subSaveState(KyDbStateFiler& filer) const {
    KyDbEntity::subSaveState(filer);
    filer.write(m_style);
    filer.write(m_position);
    filer.write(m_rows);
    filer.write(m_columns);
    filer.write(m_cellStyles);
}

Kyro::ErrorStatus KyDbTable::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbEntity::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_style);
    filer.read(m_position);
    filer.read(m_rows);
    filer.read(m_columns);
    filer.read(m_cellStyles);
    fitSubSelection();
    return filer.status();
}
