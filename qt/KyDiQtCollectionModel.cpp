#include "kydiqt/KyDiQtCollectionModel.h"

#include <QFont>
#include <algorithm>
#include <unordered_set>

#include "kydi/KyDiDbItem.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiObservableCollection.h"
#include "kydiqt/KyDiQtValue.h"
#include "rx/KyRxMember.h"
#include "rx/KyRxProperty.h"

namespace {

const wchar_t kNameProperty[] = L"Name";

// Contiguous runs of sorted rows, as [first, last] pairs.
std::vector<std::pair<int, int>> runsOf(std::vector<int> rows) {
    std::sort(rows.begin(), rows.end());
    std::vector<std::pair<int, int>> runs;
    for (const int row : rows) {
        if (!runs.empty() && runs.back().second + 1 == row) {
            runs.back().second = row;
        } else {
            runs.emplace_back(row, row);
        }
    }
    return runs;
}

}  // namespace

KyDiQtCollectionModel::KyDiQtCollectionModel(KyDiObservableCollection* collection,
                                             const QStringList& properties, QObject* parent)
    : QAbstractTableModel(parent), m_properties(properties) {
    setCollection(collection);
}

KyDiQtCollectionModel::~KyDiQtCollectionModel() {
    if (m_collection != nullptr) {
        m_collection->removeReactor(this);
    }
}

void KyDiQtCollectionModel::setCollection(KyDiObservableCollection* collection) {
    beginResetModel();
    if (m_collection != nullptr) {
        m_collection->removeReactor(this);
    }
    m_collection = collection;
    m_rows.clear();
    m_current = nullptr;
    if (m_collection != nullptr) {
        const KyDiItemArray& items = m_collection->getItems();
        m_rows.assign(items.begin(), items.end());
        m_current = m_collection->getCurrentItem();
        m_collection->addReactor(this);
    }
    rebuildRowIndex();
    endResetModel();
}

KyDiDynamicObject* KyDiQtCollectionModel::item(int row) const {
    return row >= 0 && row < static_cast<int>(m_rows.size()) ? m_rows[static_cast<size_t>(row)]
                                                             : nullptr;
}

int KyDiQtCollectionModel::rowOf(KyDiDynamicObject* item) const {
    return item != nullptr ? m_rowOf.value(item, -1) : -1;
}

void KyDiQtCollectionModel::setCurrentRow(int row) {
    if (KyDiDynamicObject* wanted = item(row); wanted != nullptr && m_collection != nullptr) {
        m_collection->setCurrentItem(wanted);
    }
}

const std::vector<const KyRxPropertyBase*>& KyDiQtCollectionModel::columnsOf(
    KyDiDynamicObject* item) const {
    const void* recordClass = nullptr;
    if (const auto* record = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(item))) {
        recordClass = record->objectId().objectClass();
    }
    const QPair<const void*, const void*> key(item->isA(), recordClass);
    auto found = m_columns.find(key);
    if (found != m_columns.end()) {
        return *found;
    }
    std::vector<const KyRxPropertyBase*> columns;
    columns.push_back(kyrxCast<KyRxPropertyBase>(KyDiFindMember(item, kNameProperty)));
    for (const QString& name : m_properties) {
        const KyString wanted = KyDiQtValue::toKyString(name);
        columns.push_back(kyrxCast<KyRxPropertyBase>(KyDiFindMember(item, wanted.kwszPtr())));
    }
    // An item that showed no member at all (its record could not be opened)
    // says nothing of its kind: it is not remembered.
    if (std::all_of(columns.begin(), columns.end(),
                    [](auto* member) { return member == nullptr; })) {
        m_unlisted = std::move(columns);
        return m_unlisted;
    }
    return *m_columns.insert(key, std::move(columns));
}

const KyRxPropertyBase* KyDiQtCollectionModel::property(int row, int column) const {
    KyDiDynamicObject* object = item(row);
    if (object == nullptr || column <= 0 || column >= columnCount()) {
        return nullptr;
    }
    return columnsOf(object)[static_cast<size_t>(column)];
}

int KyDiQtCollectionModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int KyDiQtCollectionModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_properties.size()) + 1;
}

QVariant KyDiQtCollectionModel::data(const QModelIndex& index, int role) const {
    KyDiDynamicObject* object = index.isValid() ? item(index.row()) : nullptr;
    if (object == nullptr || index.column() >= columnCount()) {
        return QVariant();
    }
    switch (role) {
        case CurrentItemRole:
            return object == m_current;
        case ItemRole:
            return QVariant::fromValue(reinterpret_cast<quintptr>(object));
        case PropertyNameRole:
            return index.column() == 0 ? QString::fromWCharArray(kNameProperty)
                                       : m_properties[index.column() - 1];
        case Qt::FontRole:
            if (object == m_current && index.column() == 0) {
                QFont bold;
                bold.setBold(true);
                return bold;
            }
            return QVariant();
        default:
            break;
    }
    if (index.column() == 0 && (role == Qt::DisplayRole || role == Qt::EditRole)) {
        return KyDiQtValue::fromKyString(KyDiGetItemName(object));
    }
    const KyRxPropertyBase* member = property(index.row(), index.column());
    const auto* readable = kyrxCast<KyRxProperty>(member);
    if (role == Qt::ToolTipRole) {
        return member != nullptr ? KyDiQtValue::fromKyString(KyDiGetDescription(member))
                                 : QVariant();
    }
    if (readable == nullptr || (role != Qt::DisplayRole && role != Qt::EditRole &&
                                role != Qt::DecorationRole && role != Qt::CheckStateRole)) {
        return QVariant();
    }
    KyRxValue value;
    if (readable->getValue(object, value) != Kyro::eOk) {
        return QVariant();
    }
    return KyDiQtValue::roleData(value, role);
}

QVariant KyDiQtCollectionModel::headerData(int section, Qt::Orientation orientation,
                                           int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    const QString name =
        section == 0 ? QString::fromWCharArray(kNameProperty) : m_properties[section - 1];
    if (role == PropertyNameRole) {
        return name;
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) {
        return QVariant();
    }
    // The names are the members' own, read from the first item that has
    // one among the first rows.
    const size_t rows = std::min<size_t>(m_rows.size(), 16);
    for (size_t row = 0; row < rows; ++row) {
        if (const KyRxPropertyBase* member = columnsOf(m_rows[row])[static_cast<size_t>(section)]) {
            return KyDiQtValue::fromKyString(role == Qt::DisplayRole ? member->localName()
                                                                     : KyDiGetDescription(member));
        }
    }
    return role == Qt::DisplayRole ? QVariant(name) : QVariant();
}

Qt::ItemFlags KyDiQtCollectionModel::flags(const QModelIndex& index) const {
    KyDiDynamicObject* object = index.isValid() ? item(index.row()) : nullptr;
    if (object == nullptr) {
        return Qt::NoItemFlags;
    }
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    const KyRxPropertyBase* member = columnsOf(object)[static_cast<size_t>(index.column())];
    if (member == nullptr || member->isReadOnly()) {
        return flags;
    }
    flags |= Qt::ItemIsEditable;
    if (member->type() == KyRxValueType::Desc<bool>::value()) {
        flags |= Qt::ItemIsUserCheckable;
    }
    return flags;
}

bool KyDiQtCollectionModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    KyDiDynamicObject* object = index.isValid() ? item(index.row()) : nullptr;
    if (object == nullptr) {
        return false;
    }
    const auto* member =
        kyrxCast<KyRxProperty>(columnsOf(object)[static_cast<size_t>(index.column())]);
    // The row changes when the collection reports the change, not now.
    return member != nullptr && KyDiQtValue::write(value, role, *member, object);
}

QHash<int, QByteArray> KyDiQtCollectionModel::roleNames() const {
    QHash<int, QByteArray> names = QAbstractTableModel::roleNames();
    names.insert(CurrentItemRole, "current");
    names.insert(ItemRole, "item");
    names.insert(PropertyNameRole, "propertyName");
    return names;
}

void KyDiQtCollectionModel::itemsChanged(const KyDiItemArray& added, const KyDiItemArray& removed) {
    removeRuns(removed);
    // What the collection holds now, less what it added, is what the rows
    // hold: in the same order, unless the collection sorted its kept items
    // anew (a move of rows), and never other items (then the rows are read
    // anew).
    const std::unordered_set<KyDiDynamicObject*> fresh(added.begin(), added.end());
    std::vector<KyDiDynamicObject*> kept;
    kept.reserve(m_rows.size());
    for (KyDiDynamicObject* entry : m_collection->getItems()) {
        if (!fresh.contains(entry)) {
            kept.push_back(entry);
        }
    }
    if (kept != m_rows) {
        const std::unordered_set<KyDiDynamicObject*> rows(m_rows.begin(), m_rows.end());
        const bool sameItems = kept.size() == m_rows.size() &&
                               std::all_of(kept.begin(), kept.end(), [&](KyDiDynamicObject* item) {
                                   return rows.contains(item);
                               });
        if (!sameItems) {
            collectionReset();
            return;
        }
        reorderKept(kept);
    }
    insertRuns(added);
}

void KyDiQtCollectionModel::removeRuns(const KyDiItemArray& removed) {
    std::vector<int> rows;
    for (KyDiDynamicObject* gone : removed) {
        if (const int row = rowOf(gone); row >= 0) {
            rows.push_back(row);
        }
    }
    const std::vector<std::pair<int, int>> runs = runsOf(std::move(rows));
    // The current item as told stays until the collection tells another; a
    // removed one is no row and can't stand for one that comes later at the
    // same address.
    if (m_current != nullptr &&
        std::find(removed.begin(), removed.end(), m_current) != removed.end()) {
        m_current = nullptr;
    }
    // From the last run back, so that the rows of the earlier runs hold.
    for (auto run = runs.rbegin(); run != runs.rend(); ++run) {
        beginRemoveRows(QModelIndex(), run->first, run->second);
        m_rows.erase(m_rows.begin() + run->first, m_rows.begin() + run->second + 1);
        endRemoveRows();
    }
    if (!runs.empty()) {
        rebuildRowIndex();
    }
}

void KyDiQtCollectionModel::reorderKept(const std::vector<KyDiDynamicObject*>& kept) {
    Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    QHash<KyDiDynamicObject*, int> newRow;
    for (size_t i = 0; i < kept.size(); ++i) {
        newRow.insert(kept[i], static_cast<int>(i));
    }
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex& index : before) {
        const int row = newRow.value(item(index.row()), -1);
        after.push_back(row >= 0 ? createIndex(row, index.column()) : QModelIndex());
    }
    changePersistentIndexList(before, after);
    m_rows = kept;
    rebuildRowIndex();
    Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

void KyDiQtCollectionModel::insertRuns(const KyDiItemArray& added) {
    if (added.isEmpty()) {
        return;
    }
    const std::unordered_set<KyDiDynamicObject*> fresh(added.begin(), added.end());
    const KyDiItemArray& items = m_collection->getItems();
    // The rows equal the items up to each run, so a run goes in at its place.
    for (int i = 0; i < items.length();) {
        if (!fresh.contains(items[i])) {
            ++i;
            continue;
        }
        int last = i;
        while (last + 1 < items.length() && fresh.contains(items[last + 1])) {
            ++last;
        }
        beginInsertRows(QModelIndex(), i, last);
        m_rows.insert(m_rows.begin() + i, items.begin() + i, items.begin() + last + 1);
        endInsertRows();
        i = last + 1;
    }
    rebuildRowIndex();
}

void KyDiQtCollectionModel::itemsModified(const KyDiItemArray& modified) {
    for (KyDiDynamicObject* changed : modified) {
        if (const int row = rowOf(changed); row >= 0) {
            Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
        }
    }
}

void KyDiQtCollectionModel::collectionReset() {
    beginResetModel();
    const KyDiItemArray& items = m_collection->getItems();
    m_rows.assign(items.begin(), items.end());
    m_current = m_collection->getCurrentItem();
    rebuildRowIndex();
    endResetModel();
}

void KyDiQtCollectionModel::currentItemChanged(KyDiDynamicObject* item) {
    KyDiDynamicObject* before = m_current;
    m_current = item;
    emitCurrentRows(before, item);
    Q_EMIT currentRowChanged(rowOf(item));
}

void KyDiQtCollectionModel::activeChanged(bool active) {
    Q_EMIT collectionActiveChanged(active);
}

void KyDiQtCollectionModel::emitCurrentRows(KyDiDynamicObject* before, KyDiDynamicObject* after) {
    for (KyDiDynamicObject* object : {before, after}) {
        if (const int row = rowOf(object); row >= 0) {
            // Every role: a proxy may show the current item in roles of its own.
            Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
        }
    }
}

void KyDiQtCollectionModel::rebuildRowIndex() {
    m_rowOf.clear();
    m_rowOf.reserve(static_cast<qsizetype>(m_rows.size()));
    for (size_t i = 0; i < m_rows.size(); ++i) {
        m_rowOf.insert(m_rows[i], static_cast<int>(i));
    }
}
