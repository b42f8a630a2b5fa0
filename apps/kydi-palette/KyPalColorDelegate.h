// KyPalColorDelegate: edits a colour (a value whose edit form is a KyCmColor)
// with a list of the standard index colours, each with its swatch and its
// name, the colour the cell holds, and "More colours..." for any true colour.
// Choosing an entry writes it at once; the cell changes when the host has
// run the command and a pass has reported it. Every other value is edited
// as the styled delegate edits it.
#pragma once

#include <QStyledItemDelegate>

class KyPalColorDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    // `byLayerChoices`: the list also offers ByLayer and ByBlock (an entity's
    // colour may be either, a layer's colour neither).
    explicit KyPalColorDelegate(bool byLayerChoices, QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

    // True where the cell's value is a colour this delegate edits.
    static bool isColor(const QModelIndex& index);

private:
    bool m_byLayerChoices;
};
