// KyDiQtCollectionModel: a table model over a live collection. One row per
// item, in the collection's order; the first column is the item's display
// name, the others the properties named at construction ("Color",
// "IsFrozen" ...), read through the item.
//
// The rows follow the collection's notifications and nothing else: a change
// of the drawing shows once a refresh pass has told the collection, as rows
// removed and inserted in contiguous runs, a row's dataChanged for an item
// modified, a model reset for a list built anew. Should the collection ever
// reorder the items it kept, the rows move in a layout change. Writes go through the item
// (setData), so a layer's colour leaves as the host's command and the row
// changes when the host has run it and a pass has reported it.
//
// The model reads the collection and its items: delete it (or give it a null
// collection) before the data item layer stops.
#pragma once

#include <QAbstractTableModel>
#include <QHash>
#include <QStringList>
#include <vector>

#include "kydi/KyDiCollectionReactor.h"
#include "kydiqt/KyDiQtExport.h"

class KyDiObservableCollection;
class KyRxClass;
class KyRxPropertyBase;

class KYDIQT_API KyDiQtCollectionModel : public QAbstractTableModel, private KyDiCollectionReactor {
    Q_OBJECT
public:
    enum Role {
        // True on the row of the collection's current item.
        CurrentItemRole = Qt::UserRole + 1,
        // The item of the row, as a KyDiDynamicObject* in a quintptr.
        ItemRole,
        // The property name of the column.
        PropertyNameRole,
    };

    KyDiQtCollectionModel(KyDiObservableCollection* collection, const QStringList& properties,
                          QObject* parent = nullptr);
    ~KyDiQtCollectionModel() override;

    KyDiObservableCollection* collection() const { return m_collection; }
    // Follows another collection (or none); the model is reset.
    void setCollection(KyDiObservableCollection* collection);
    // The property names of the columns after the first.
    const QStringList& properties() const { return m_properties; }

    // The item of a row; null outside the rows.
    KyDiDynamicObject* item(int row) const;
    // The row of an item; -1 when it is none of the rows.
    int rowOf(KyDiDynamicObject* item) const;
    // The row of the current item as last told; -1 for none.
    int currentRow() const { return rowOf(m_current); }
    // Asks the collection to make the item of `row` current; the change
    // shows when the host has made it (currentRowChanged).
    void setCurrentRow(int row);
    // The property a column shows on the item of a row; null for the name
    // column and where the item has no such property.
    const KyRxPropertyBase* property(int row, int column) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    // The collection's current item changed; -1 when it is none of the rows.
    void currentRowChanged(int row);
    // The collection stands (or no longer stands) for a drawing in front.
    void collectionActiveChanged(bool active);

private:
    void itemsChanged(const KyDiItemArray& added, const KyDiItemArray& removed) override;
    void itemsModified(const KyDiItemArray& modified) override;
    void collectionReset() override;
    void currentItemChanged(KyDiDynamicObject* item) override;
    void activeChanged(bool active) override;

    void removeRuns(const KyDiItemArray& removed);
    void reorderKept(const std::vector<KyDiDynamicObject*>& kept);
    void insertRuns(const KyDiItemArray& added);
    void rebuildRowIndex();
    void emitCurrentRows(KyDiDynamicObject* before, KyDiDynamicObject* after);
    // The properties of the columns on an item, found once per kind of item.
    const std::vector<const KyRxPropertyBase*>& columnsOf(KyDiDynamicObject* item) const;

    KyDiObservableCollection* m_collection = nullptr;
    QStringList m_properties;
    std::vector<KyDiDynamicObject*> m_rows;
    QHash<KyDiDynamicObject*, int> m_rowOf;
    KyDiDynamicObject* m_current = nullptr;
    // Keyed by the item's class and, for an item of a record, the record's
    // class: items of one kind show the same members.
    mutable QHash<QPair<const void*, const void*>, std::vector<const KyRxPropertyBase*>> m_columns;
    mutable std::vector<const KyRxPropertyBase*> m_unlisted;
};
