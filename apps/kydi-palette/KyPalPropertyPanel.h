// KyPalPropertyPanel: the properties of the drawing ("DRAWING" context) or of
// the selection ("SELECTION"), as a tree of categories kept expanded. By
// default it follows the user: the selection's common values while something
// is selected, the drawing's otherwise. Values are edited in place and
// written through the context, so a change leaves as the host's command.
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

    // Shows the context held under `name`: "DRAWING" or "SELECTION"; an
    // empty name follows the selection.
    void showContext(const QString& name);
    // After a refresh pass: following the selection, shows the context that
    // stands for what the user has now.
    void followSelection();
    // The context shown now.
    QString shownContext() const { return m_shown; }

private:
    void expand();
    void show(const QString& name);

    KyDiQtPropertyModel* m_model;
    QComboBox* m_contexts;
    QTreeView* m_tree;
    QString m_shown;
};
