// KyPalLayerTable: the layer list with a filter over the names. The table
// shows the layers' collection model through KyPalLayerTableModel (the
// current marker first) and a filter that keeps the names matching the text
// typed, case-insensitively: a part of the name, or a pattern with * and ?.
// Flags change by a click on their check box, a colour from a list of
// colours, a name, linetype or lineweight by typing; a double-click on the
// marker makes the layer current. Every change goes through the layer's item
// to the host.
#pragma once

#include <QWidget>

class KyDiQtCollectionModel;
class KyPalLayerTableModel;
class QLineEdit;
class QSortFilterProxyModel;
class QTableView;

class KyPalLayerTable : public QWidget {
    Q_OBJECT
public:
    explicit KyPalLayerTable(KyDiQtCollectionModel* layers, QWidget* parent = nullptr);

    QTableView* view() const { return m_view; }
    // The rows the filter keeps, as the table shows them.
    QSortFilterProxyModel* shownRows() const { return m_filter; }
    void setFilterText(const QString& text);

private:
    void fitColumns();

    KyDiQtCollectionModel* m_layers;
    KyPalLayerTableModel* m_table;
    QSortFilterProxyModel* m_filter;
    QLineEdit* m_filterBox;
    QTableView* m_view;
};
