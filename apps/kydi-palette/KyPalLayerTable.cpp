#include "KyPalLayerTable.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

#include "KyPalColorDelegate.h"
#include "KyPalLayerTableModel.h"
#include "kydiqt/KyDiQtCollectionModel.h"

namespace {

constexpr int kMaximumColorWidth = 120;

}  // namespace

KyPalLayerTable::KyPalLayerTable(KyDiQtCollectionModel* layers, QWidget* parent)
    : QWidget(parent),
      m_layers(layers),
      m_table(new KyPalLayerTableModel(this)),
      m_filter(new QSortFilterProxyModel(this)),
      m_filterBox(new QLineEdit(this)),
      m_view(new QTableView(this)) {
    m_table->setSourceModel(layers);
    m_filter->setSourceModel(m_table);
    m_filter->setFilterKeyColumn(KyPalLayerTableModel::NameColumn);
    m_filter->setFilterCaseSensitivity(Qt::CaseInsensitive);

    m_filterBox->setObjectName("layerFilter");
    m_filterBox->setPlaceholderText(tr("Filter layers by name (* and ? match any)"));
    m_filterBox->setClearButtonEnabled(true);
    connect(m_filterBox, &QLineEdit::textChanged, this, &KyPalLayerTable::setFilterText);

    m_view->setObjectName("layerTable");
    m_view->setModel(m_filter);
    m_view->setItemDelegateForColumn(KyPalLayerTableModel::ColorColumn,
                                     new KyPalColorDelegate(false, m_view));
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    m_view->setAlternatingRowColors(true);
    m_view->setShowGrid(false);
    m_view->setWordWrap(false);
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_view->horizontalHeader()->setStretchLastSection(true);
    m_view->horizontalHeader()->setHighlightSections(false);
    // The marker stands before the name, as a status column does.
    m_view->horizontalHeader()->moveSection(KyPalLayerTableModel::CurrentColumn, 0);
    connect(m_view, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
        if (index.column() == KyPalLayerTableModel::CurrentColumn) {
            m_layers->setCurrentRow(m_table->mapToSource(m_filter->mapToSource(index)).row());
        }
    });
    // The columns fit what they show when a list is built; later changes
    // keep the widths the user gave them.
    connect(m_layers, &QAbstractItemModel::modelReset, this, &KyPalLayerTable::fitColumns);

    auto* filterRow = new QHBoxLayout;
    filterRow->addWidget(new QLabel(tr("Filter:"), this));
    filterRow->addWidget(m_filterBox, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(filterRow);
    layout->addWidget(m_view, 1);
    fitColumns();
}

void KyPalLayerTable::setFilterText(const QString& text) {
    if (m_filterBox->text() != text) {
        m_filterBox->setText(text);  // comes back here through textChanged
        return;
    }
    m_filter->setFilterWildcard(text);
}

void KyPalLayerTable::fitColumns() {
    m_view->resizeColumnsToContents();
    // A book colour's long name is cut rather than pushing the other columns
    // out of sight; the cell's tip shows it whole.
    const int color = KyPalLayerTableModel::ColorColumn;
    m_view->setColumnWidth(color, std::min(m_view->columnWidth(color), kMaximumColorWidth));
}
