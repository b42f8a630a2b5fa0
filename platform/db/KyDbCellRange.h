// KyDbCellRange: a rectangle of cells of a table, by the rows and columns of
// its corners (from 0, both corners included). The default range holds no
// cell.
#pragma once

class KyDbCellRange {
public:
    constexpr KyDbCellRange() = default;
    constexpr KyDbCellRange(int topRow, int leftColumn, int bottomRow, int rightColumn)
        : m_topRow(topRow),
          m_leftColumn(leftColumn),
          m_bottomRow(bottomRow),
          m_rightColumn(rightColumn) {}

    int topRow() const { return m_topRow; }
    int leftColumn() const { return m_leftColumn; }
    int bottomRow() const { return m_bottomRow; }
    int rightColumn() const { return m_rightColumn; }

    // True for a range of at least one cell: corners from 0, the top row
    // above or at the bottom row, the left column left of or at the right one.
    bool isValid() const {
        return m_topRow >= 0 && m_leftColumn >= 0 && m_topRow <= m_bottomRow &&
               m_leftColumn <= m_rightColumn;
    }
    bool contains(int row, int column) const {
        return isValid() && row >= m_topRow && row <= m_bottomRow && column >= m_leftColumn &&
               column <= m_rightColumn;
    }

    bool operator==(const KyDbCellRange& other) const = default;

private:
    int m_topRow = 0;
    int m_leftColumn = 0;
    int m_bottomRow = -1;
    int m_rightColumn = -1;
};
