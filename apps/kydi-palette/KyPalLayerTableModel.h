// KyPalLayerTableModel: the layer list as a palette shows it, over a
// KyDiQtCollectionModel of the layers. The collection model is built with
// the columns this model names (columnProperties), in that order.
//
// - The "On" column is the layer's IsOff turned around: checked when the
//   layer is on, and a click writes IsOff with the opposite value.
// - A flag shows as its check box alone; it changes by a click, not through
//   an editor.
// - A colour's swatch is framed, so that white shows on a light row; its
//   tip is the colour's name, which a narrow column may cut.
// - A transparency shows, and is edited, as the command line writes it: a
//   whole percentage from 0 (opaque) to 90.
// - The "Current" column marks the current layer. It is a column of the
//   collection model under a name that is no member of a layer, so it has
//   the rows' structure and their change signals (a change of the current
//   item is told on every column of its row); this model gives it a check
//   mark on the current row.
#pragma once

#include <QIdentityProxyModel>
#include <QStringList>

class KyPalLayerTableModel : public QIdentityProxyModel {
    Q_OBJECT
public:
    enum Column {
        NameColumn = 0,
        CurrentColumn,
        OnColumn,
        FreezeColumn,
        LockColumn,
        ColorColumn,
        LinetypeColumn,
        LineweightColumn,
        TransparencyColumn,
        ColumnCount
    };

    // The property names of the collection model's columns after the name.
    static QStringList columnProperties();

    explicit KyPalLayerTableModel(QObject* parent = nullptr);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    // True where the source shows a check box for the cell.
    bool isFlag(const QModelIndex& index) const;
    // The percentage of a transparency given by alpha; invalid for any other
    // value (ByLayer, ByBlock).
    QVariant percent(const QModelIndex& index) const;
};
