#include "kydiqt/KyDiQtPropertyModel.h"

#include <QCoreApplication>
#include <algorithm>
#include <memory>

#include "kydi/KyDiContext.h"
#include "kydi/KyDiContextChange.h"
#include "kydi/KyDiContextManager.h"
#include "kydi/KyDiDbItem.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiManager.h"
#include "kydiqt/KyDiQtValue.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"
#include "rx/KyRxStandardAttributes.h"

namespace {

// Category rows carry this id; a property row carries its category's row
// plus one.
constexpr quintptr kCategoryRow = 0;

const KyRxUiPlacementAttribute* placementOf(const KyRxMember* member) {
    return static_cast<const KyRxUiPlacementAttribute*>(
        member->attributes().get(KyRxUiPlacementAttribute::desc()));
}

}  // namespace

KyDiQtPropertyModel::KyDiQtPropertyModel(QObject* parent) : QAbstractItemModel(parent) {}

KyDiQtPropertyModel::~KyDiQtPropertyModel() {
    unfollow();
}

void KyDiQtPropertyModel::setObject(KyDiDynamicObject* object) {
    // A context is followed by the name the manager holds it under, when it
    // has one.
    if (auto* context = kyrxCast<KyDiContext>(static_cast<KyRxObject*>(object))) {
        const wchar_t* name = KyDiManager::getContextManager()->getName(context);
        if (name != nullptr) {
            setContext(QString::fromWCharArray(name));
            return;
        }
    }
    beginResetModel();
    unfollow();
    follow(object);
    m_categories = listMembers();
    endResetModel();
}

void KyDiQtPropertyModel::setContext(const QString& name) {
    beginResetModel();
    unfollow();
    m_contextName = name;
    KyDiContextManager* contexts = KyDiManager::getContextManager();
    follow(contexts != nullptr ? contexts->getContext(KyDiQtValue::toKyString(name).kwszPtr(), true)
                               : nullptr);
    m_categories = listMembers();
    endResetModel();
}

void KyDiQtPropertyModel::follow(KyDiDynamicObject* object) {
    m_object = object;
    m_context = kyrxCast<KyDiContext>(static_cast<KyRxObject*>(object));
    // A context, or the name of one, is followed through the manager, which
    // may hold another context under the name later.
    if (m_context != nullptr || !m_contextName.isEmpty()) {
        if (KyDiContextManager* contexts = KyDiManager::getContextManager()) {
            contexts->addReactor(this);
            m_followsContexts = true;
        }
        return;
    }
    if (object == nullptr) {
        return;
    }
    KyDiManager::addReactor(static_cast<KyDiDataItemReactor*>(this));
    m_followsItems = true;
    if (const auto* record = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(object))) {
        if (KyDiManager::addObjectReactor(record->objectId(), this) == Kyro::eOk) {
            m_watched = record->objectId();
        }
    }
}

void KyDiQtPropertyModel::unfollow() {
    if (m_followsContexts) {
        KyDiManager::getContextManager()->removeReactor(this);
    }
    if (m_followsItems) {
        KyDiManager::removeReactor(static_cast<KyDiDataItemReactor*>(this));
    }
    if (!m_watched.isNull()) {
        KyDiManager::removeObjectReactor(m_watched, this);
    }
    m_followsContexts = false;
    m_followsItems = false;
    m_watched = KyDbObjectId();
    m_object = nullptr;
    m_context = nullptr;
    m_contextName.clear();
}

std::vector<KyDiQtPropertyModel::Category> KyDiQtPropertyModel::listMembers() const {
    struct Placed {
        const KyRxProperty* property;
        QString category;
        unsigned weight;
    };
    std::vector<Placed> placed;
    const std::unique_ptr<KyRxMemberIterator> members(
        m_object != nullptr ? m_object->newMemberIterator() : nullptr);
    for (; members != nullptr && !members->done(); members->next()) {
        const auto* property = kyrxCast<KyRxProperty>(members->current());
        if (property == nullptr) {
            continue;
        }
        const KyRxUiPlacementAttribute* placement = placementOf(property);
        placed.push_back({property,
                          placement != nullptr
                              ? QString::fromWCharArray(placement->category())
                              : QCoreApplication::translate("KyDiQtPropertyModel", "Misc"),
                          placement != nullptr ? placement->weight() : ~0u});
    }
    std::stable_sort(placed.begin(), placed.end(),
                     [](const Placed& a, const Placed& b) { return a.weight < b.weight; });
    std::vector<Category> categories;
    for (const Placed& entry : placed) {
        auto found = std::find_if(categories.begin(), categories.end(),
                                  [&](const Category& c) { return c.name == entry.category; });
        if (found == categories.end()) {
            categories.push_back({entry.category, {}});
            found = categories.end() - 1;
        }
        found->properties.push_back(entry.property);
    }
    return categories;
}

void KyDiQtPropertyModel::relist() {
    std::vector<Category> listed = listMembers();
    if (listed == m_categories) {
        valuesChanged();
        return;
    }
    beginResetModel();
    m_categories = std::move(listed);
    endResetModel();
}

void KyDiQtPropertyModel::valuesChanged() {
    for (size_t c = 0; c < m_categories.size(); ++c) {
        const QModelIndex category = index(static_cast<int>(c), NameColumn);
        const int last = static_cast<int>(m_categories[c].properties.size()) - 1;
        if (last >= 0) {
            Q_EMIT dataChanged(index(0, ValueColumn, category), index(last, ValueColumn, category));
        }
    }
}

QModelIndex KyDiQtPropertyModel::valueIndex(const QString& propertyName) const {
    const KyString wanted = KyDiQtValue::toKyString(propertyName);
    for (size_t c = 0; c < m_categories.size(); ++c) {
        const std::vector<const KyRxProperty*>& properties = m_categories[c].properties;
        for (size_t p = 0; p < properties.size(); ++p) {
            if (wanted.compare(properties[p]->name()) == 0) {
                return createIndex(static_cast<int>(p), ValueColumn, c + 1);
            }
        }
    }
    return QModelIndex();
}

void KyDiQtPropertyModel::modified(void*) {
    valuesChanged();
}

void KyDiQtPropertyModel::erased() {
    // The reactor must go now; the object's rows go with it.
    KyDiManager::removeObjectReactor(m_watched, this);
    m_watched = KyDbObjectId();
    setObject(nullptr);
}

void KyDiQtPropertyModel::contextChanged(const KyDiContextChange* change) {
    if (change == nullptr || change->context != m_context) {
        return;
    }
    if (change->propertyNames.isEmpty()) {
        relist();
        return;
    }
    for (const KyString& name : change->propertyNames) {
        const QModelIndex value = valueIndex(KyDiQtValue::fromKyString(name));
        if (value.isValid()) {
            Q_EMIT dataChanged(value, value);
        }
    }
}

void KyDiQtPropertyModel::activeContextsChanged() {
    // The manager may hold another context under the name now, or none; the
    // model stays on the name and shows what stands under it.
    if (!m_contextName.isEmpty()) {
        KyDiContext* now = KyDiManager::getContextManager()->getContext(
            KyDiQtValue::toKyString(m_contextName).kwszPtr(), false);
        if (now != m_context) {
            beginResetModel();
            m_object = now;
            m_context = now;
            m_categories = listMembers();
            endResetModel();
            return;
        }
    }
    relist();
}

void KyDiQtPropertyModel::itemDeleted(KyDiItem* item) {
    if (static_cast<KyDiDynamicObject*>(item) == m_object) {
        setObject(nullptr);
    }
}

const KyRxProperty* KyDiQtPropertyModel::propertyAt(const QModelIndex& index) const {
    if (!index.isValid() || index.internalId() == kCategoryRow) {
        return nullptr;
    }
    const size_t category = index.internalId() - 1;
    if (category >= m_categories.size() ||
        static_cast<size_t>(index.row()) >= m_categories[category].properties.size()) {
        return nullptr;
    }
    return m_categories[category].properties[static_cast<size_t>(index.row())];
}

QModelIndex KyDiQtPropertyModel::index(int row, int column, const QModelIndex& parent) const {
    if (row < 0 || column < 0 || column > ValueColumn) {
        return QModelIndex();
    }
    if (!parent.isValid()) {
        return row < static_cast<int>(m_categories.size()) ? createIndex(row, column, kCategoryRow)
                                                           : QModelIndex();
    }
    if (parent.internalId() != kCategoryRow || parent.column() != NameColumn ||
        parent.row() >= static_cast<int>(m_categories.size()) ||
        row >=
            static_cast<int>(m_categories[static_cast<size_t>(parent.row())].properties.size())) {
        return QModelIndex();
    }
    return createIndex(row, column, static_cast<quintptr>(parent.row()) + 1);
}

QModelIndex KyDiQtPropertyModel::parent(const QModelIndex& child) const {
    if (!child.isValid() || child.internalId() == kCategoryRow) {
        return QModelIndex();
    }
    return createIndex(static_cast<int>(child.internalId() - 1), NameColumn, kCategoryRow);
}

int KyDiQtPropertyModel::rowCount(const QModelIndex& parent) const {
    if (!parent.isValid()) {
        return static_cast<int>(m_categories.size());
    }
    if (parent.internalId() != kCategoryRow || parent.column() != NameColumn ||
        parent.row() >= static_cast<int>(m_categories.size())) {
        return 0;
    }
    return static_cast<int>(m_categories[static_cast<size_t>(parent.row())].properties.size());
}

int KyDiQtPropertyModel::columnCount(const QModelIndex&) const {
    return 2;
}

QVariant KyDiQtPropertyModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return QVariant();
    }
    if (index.internalId() == kCategoryRow) {
        const bool shown = index.column() == NameColumn &&
                           index.row() < static_cast<int>(m_categories.size()) &&
                           role == Qt::DisplayRole;
        return shown ? QVariant(m_categories[static_cast<size_t>(index.row())].name) : QVariant();
    }
    const KyRxProperty* property = propertyAt(index);
    if (property == nullptr) {
        return QVariant();
    }
    switch (role) {
        case PropertyNameRole:
            return QString::fromWCharArray(property->name());
        case ReadOnlyRole:
            return property->isReadOnly();
        case Qt::ToolTipRole:
            return KyDiQtValue::fromKyString(KyDiGetDescription(property));
        default:
            break;
    }
    if (index.column() == NameColumn) {
        return role == Qt::DisplayRole ? QVariant(KyDiQtValue::fromKyString(property->localName()))
                                       : QVariant();
    }
    if (role != Qt::DisplayRole && role != Qt::EditRole && role != Qt::DecorationRole &&
        role != Qt::CheckStateRole && role != VariesRole) {
        return QVariant();
    }
    KyRxValue value;
    if (property->getValue(m_object, value) != Kyro::eOk) {
        return role == VariesRole ? QVariant(false) : QVariant();
    }
    return role == VariesRole ? QVariant(value.isVaries()) : KyDiQtValue::roleData(value, role);
}

QVariant KyDiQtPropertyModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QAbstractItemModel::headerData(section, orientation, role);
    }
    if (section == NameColumn) {
        return QCoreApplication::translate("KyDiQtPropertyModel", "Property");
    }
    return section == ValueColumn ? QCoreApplication::translate("KyDiQtPropertyModel", "Value")
                                  : QVariant();
}

Qt::ItemFlags KyDiQtPropertyModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    const KyRxProperty* property = propertyAt(index);
    if (property == nullptr) {
        return Qt::ItemIsEnabled;
    }
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (index.column() == ValueColumn && !property->isReadOnly()) {
        flags |= Qt::ItemIsEditable;
        if (property->type() == KyRxValueType::Desc<bool>::value()) {
            flags |= Qt::ItemIsUserCheckable;
        }
    }
    return flags;
}

bool KyDiQtPropertyModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const KyRxProperty* property = propertyAt(index);
    // The row shows the new value when the object reports the change.
    return property != nullptr && index.column() == ValueColumn &&
           KyDiQtValue::write(value, role, *property, m_object);
}
