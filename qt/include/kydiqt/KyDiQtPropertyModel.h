// KyDiQtPropertyModel: a property panel's tree over one dynamic object, an
// item or a context ("DRAWING", "SELECTION"). The top rows are the
// categories of the properties' placement, in the order of their lightest
// property; under each, its properties by weight, with their localized names
// (column 0) and values (column 1). A value that differs between objects
// shows as "*VARIES*" (VariesRole is true); a read-only property's value is
// not editable.
//
// Writes go through the object (setData). The model re-reads what changed:
// over an item of a record, every value when the record was modified; over
// a context, the rows it names in its change, or the whole list for a change
// without names and when the active contexts changed. An item that goes or
// an object that is erased leaves the model empty.
//
// Delete the model (or give it no object) before the data item layer stops.
#pragma once

#include <QAbstractItemModel>
#include <QString>
#include <vector>

#include "db/KyDbObjectId.h"
#include "kydi/KyDiContextReactor.h"
#include "kydi/KyDiDataItemReactor.h"
#include "kydi/KyDiObjectReactor.h"
#include "kydiqt/KyDiQtExport.h"

class KyDiContext;
class KyDiDynamicObject;
class KyRxProperty;

class KYDIQT_API KyDiQtPropertyModel : public QAbstractItemModel,
                                       private KyDiObjectReactor,
                                       private KyDiContextReactor,
                                       private KyDiDataItemReactor {
    Q_OBJECT
public:
    enum Role {
        // The property's own name ("Color"), on both columns of its row.
        PropertyNameRole = Qt::UserRole + 1,
        // True where the value differs between the objects shown.
        VariesRole,
        ReadOnlyRole,
    };
    enum Column { NameColumn = 0, ValueColumn = 1 };

    explicit KyDiQtPropertyModel(QObject* parent = nullptr);
    ~KyDiQtPropertyModel() override;

    // Shows the members of `object` (null: nothing). A context the manager
    // holds is followed by its name, as setContext follows it.
    void setObject(KyDiDynamicObject* object);
    // Shows the context held under `name`, made by its factory when needed,
    // and whatever context the manager holds under the name later on (none:
    // the model is empty until one comes).
    void setContext(const QString& name);
    KyDiDynamicObject* object() const { return m_object; }

    // The index of a property's value, by its own name; invalid when absent.
    QModelIndex valueIndex(const QString& propertyName) const;

    QModelIndex index(int row, int column,
                      const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

private:
    struct Category {
        QString name;
        std::vector<const KyRxProperty*> properties;
        bool operator==(const Category& other) const = default;
    };

    // KyDiObjectReactor
    void modified(void* reserved) override;
    void erased() override;
    // KyDiContextReactor
    void contextChanged(const KyDiContextChange* change) override;
    void activeContextsChanged() override;
    // KyDiDataItemReactor
    void itemDeleted(KyDiItem* item) override;

    void follow(KyDiDynamicObject* object);
    void unfollow();
    std::vector<Category> listMembers() const;
    // Lists the members again: the values change in place when the list is
    // the same, the model is reset when it is not.
    void relist();
    void valuesChanged();
    const KyRxProperty* propertyAt(const QModelIndex& index) const;

    KyDiDynamicObject* m_object = nullptr;
    KyDiContext* m_context = nullptr;
    QString m_contextName;
    KyDbObjectId m_watched;
    // Which of the manager's reactor lists the model is on.
    bool m_followsContexts = false;
    bool m_followsItems = false;
    std::vector<Category> m_categories;
};
