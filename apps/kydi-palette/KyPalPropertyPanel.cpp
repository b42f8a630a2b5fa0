#include "KyPalPropertyPanel.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QTreeView>
#include <QVBoxLayout>

#include "KyPalColorDelegate.h"
#include "kydi/KyDiContext.h"
#include "kydi/KyDiContextManager.h"
#include "kydi/KyDiManager.h"
#include "kydiqt/KyDiQtPropertyModel.h"

KyPalPropertyPanel::KyPalPropertyPanel(QWidget* parent)
    : QWidget(parent),
      m_model(new KyDiQtPropertyModel(this)),
      m_contexts(new QComboBox(this)),
      m_tree(new QTreeView(this)) {
    m_contexts->setObjectName("propertyContext");
    m_contexts->addItem(tr("Selection, else drawing"), QString());
    m_contexts->addItem(tr("Drawing"), QStringLiteral("DRAWING"));
    m_contexts->addItem(tr("Selection"), QStringLiteral("SELECTION"));
    m_tree->setObjectName("propertyTree");
    m_tree->setModel(m_model);
    m_tree->setItemDelegate(new KyPalColorDelegate(true, m_tree));
    m_tree->setAlternatingRowColors(true);
    m_tree->setUniformRowHeights(true);
    m_tree->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
                            QAbstractItemView::EditKeyPressed);

    auto* chooser = new QHBoxLayout;
    chooser->addWidget(new QLabel(tr("Properties of"), this));
    chooser->addWidget(m_contexts, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(chooser);
    layout->addWidget(m_tree, 1);

    // The categories are listed anew when the context shows other
    // properties; they stay open.
    connect(m_model, &QAbstractItemModel::modelReset, this, &KyPalPropertyPanel::expand);
    connect(m_model, &QAbstractItemModel::rowsInserted, this, &KyPalPropertyPanel::expand);
    connect(m_contexts, &QComboBox::currentIndexChanged, this,
            [this] { showContext(m_contexts->currentData().toString()); });
    followSelection();
}

void KyPalPropertyPanel::showContext(const QString& name) {
    const int entry = m_contexts->findData(name);
    if (entry >= 0 && entry != m_contexts->currentIndex()) {
        // The box's signal comes back here.
        m_contexts->setCurrentIndex(entry);
        return;
    }
    if (name.isEmpty()) {
        followSelection();
        return;
    }
    show(name);
}

void KyPalPropertyPanel::followSelection() {
    if (!m_contexts->currentData().toString().isEmpty()) {
        return;
    }
    KyDiContext* selection = KyDiManager::getContextManager()->getContext(L"SELECTION", true);
    show(selection != nullptr && selection->isActive() ? QStringLiteral("SELECTION")
                                                       : QStringLiteral("DRAWING"));
}

void KyPalPropertyPanel::show(const QString& name) {
    if (name == m_shown) {
        return;
    }
    m_shown = name;
    m_model->setContext(name);
    expand();
}

void KyPalPropertyPanel::expand() {
    m_tree->expandAll();
    m_tree->resizeColumnToContents(KyDiQtPropertyModel::NameColumn);
}
