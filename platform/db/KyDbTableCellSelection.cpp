#include "db/KyDbTableCellSelection.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbTable.h"

namespace {

const KyDbPropertyRow kCellSelectionRows[] = {
    {L"CellStyle",
     kydbiAccess<&KyDbTableCellSelection::cellStyle, &KyDbTableCellSelection::setCellStyle>(),
     KyDbCategory::kGeneral, 0},
};

}  // namespace

KYDB_DEFINE_CLASS_EX(KyDbTableCellSelection, KyRxObject, nullptr,
                     &kydbiBuildMembers<kCellSelectionRows>)

KyDbTableCellSelection::KyDbTableCellSelection(KyDbTable* table, const KyDbCellRange& range,
                                               bool writable)
    : m_table(table), m_range(range), m_writable(writable) {}

KyDbTableCellSelection::~KyDbTableCellSelection() = default;

KyString KyDbTableCellSelection::cellStyle() const {
    return m_table->cellStyle(m_range.topRow(), m_range.leftColumn());
}

Kyro::ErrorStatus KyDbTableCellSelection::setCellStyle(const wchar_t* name) {
    if (!m_writable) {
        return Kyro::eWasNotOpenForWrite;
    }
    if (name == nullptr || name[0] == L'\0') {
        return Kyro::eInvalidInput;
    }
    for (int row = m_range.topRow(); row <= m_range.bottomRow(); ++row) {
        for (int column = m_range.leftColumn(); column <= m_range.rightColumn(); ++column) {
            if (const Kyro::ErrorStatus status = m_table->setCellStyle(row, column, name);
                status != Kyro::eOk) {
                return status;
            }
        }
    }
    return Kyro::eOk;
}
