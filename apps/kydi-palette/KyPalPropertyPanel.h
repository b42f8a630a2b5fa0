// KyPalPropertyPanel: the properties of the drawing ("DRAWING" context) or of
// the selection ("SELECTION"), as a tree of categories kept expanded. Values
// are edited in place and written through the context, so a change leaves as
// the host's command.
#pragma once

#include <QWidget>

class KyDiQtPropertyModel;
class QComboBox;
class QTreeView;

class KyPalPropertyPanel : public QWidget {
    Q_OBJECT
public:
    explicit KyPalPropertyPanel(QWidget* parent = nullptr);

    KyDiQtPropertyModel* model() const { return m_model; }

    // Shows the context held under `name`: "DRAWING" or "SELECTION".
    void showContext(const QString& name);

private:
    void expand();

    KyDiQtPropertyModel* m_model;
    QComboBox* m_contexts;
    QTreeView* m_tree;
};
