#include "collections/KyDiDataSelectedItemCollectionImp.h"

#include "contexts/KyDiSelectionContext.h"
#include "db/KyDbDimension.h"
#include "db/KyDbGuid.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbOpenObject.h"
#include "db/KyDbTable.h"
#include "kydi/KyDiDataItemFactory.h"
#include "kydi/KyDiDbComplexItem.h"
#include "kydi/KyDiHost.h"
#include "manager/host/KyDiHostAccess.h"
#include "rx/KyRxClass.h"

namespace {

// Status of getClassID for an object the host keeps from being shown.
constexpr Kyro::ErrorStatus kClassHidden = static_cast<Kyro::ErrorStatus>(528);

// Whether `id` is a table with a sub-selection of cells.
bool isTableWithCells(KyDbObjectId id) {
    KyDbObjectPointer<KyDbTable> table(id, KyDb::kForRead);
    return table.openStatus() == Kyro::eOk && table->hasSubSelection();
}

}  // namespace

KyDiDataSelectedItemCollectionImp::KyDiDataSelectedItemCollectionImp(const wchar_t* name,
                                                                     KyDiCurrencyTracker*)
    : KyDiImpDbObjectCollection(name), m_subEntities(0, 8) {
    setTraits(traits() | kSelectionDependent);
}

KyDiDataSelectedItemCollectionImp::~KyDiDataSelectedItemCollectionImp() = default;

void KyDiDataSelectedItemCollectionImp::subDetach(KyDbObject* closing) {
    KyDiImpDbObjectCollection::subDetach(closing);
    m_subEntities.setLogicalLength(0);
    m_subEntitySelection = kPlainObjects;
}

void KyDiDataSelectedItemCollectionImp::subSelectionRefreshed(const std::set<KyDiDbItem*>& erased) {
    // An erased object leaves the selection, told as any removal is.
    removeItems([&erased](KyDiDynamicObject* item) {
        auto* record = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(item));
        return record != nullptr && erased.contains(record);
    });
}

bool KyDiDataSelectedItemCollectionImp::isListableSelectedObject(KyDbObjectId id) {
    const KyRxClass* cls = id.objectClass();
    if (cls == nullptr || !cls->isDerivedFrom(KyDbDimension::desc())) {
        return true;
    }
    // A dimension the host has open for write is read as it stands.
    KyDbObject* object = nullptr;
    bool openedHere = false;
    if (accessKyDbObjectForRead(object, id, &KyDbDimension::desc, openedHere) != Kyro::eOk) {
        return false;
    }
    KyGuid classId;
    const bool listed = object->getClassID(&classId) != kClassHidden;
    if (openedHere) {
        object->close();
    }
    return listed;
}

bool KyDiDataSelectedItemCollectionImp::subFillFromDatabase(bool /*initial*/, KyDbDatabase*,
                                                            KyDbObjectId& /*owner*/,
                                                            KyDiItemArray& list,
                                                            KyArray<KyDbObjectId>& /*erased*/,
                                                            void** context) {
    *context = nullptr;
    m_subEntitySelection = kPlainObjects;
    m_subEntities.setLogicalLength(0);
    KyDiSelectionService* selection = KyDiHostAccess::selectionService();
    if (selection == nullptr) {
        return true;
    }
    KyArray<KyDbObjectId> ids(0, 8);
    selection->getSelection(ids, m_subEntities);
    *context = &m_subEntities;
    list.setPhysicalLength(list.length() + ids.length() + m_subEntities.length());
    for (int i = 0; i < ids.length(); ++i) {
        if (isListableSelectedObject(ids[i])) {
            list.append(createDataItem(KyString(), KyRxValue(ids[i])));
        }
    }
    for (int i = 0; i < m_subEntities.length(); ++i) {
        const KyDbFullSubentPath& path = m_subEntities[i];
        if (path.objectIds().isEmpty()) {
            continue;
        }
        list.append(createDataItem(KyString(), KyRxValue(path.objectIds()[0]), &path));
    }
    if (!m_subEntities.isEmpty()) {
        m_subEntitySelection = kSubEntities;
    } else if (ids.length() == 1 && isTableWithCells(ids[0])) {
        m_subEntitySelection = kCellsOrComplex;
    }
    return true;
}

KyDiDataSelectedItemCollectionImp::SubEntitySelection KyDiDataSelectedItemCollectionImp::reclassify(
    const KyDiItemArray& list) {
    if (list.length() == 1 && isTableWithCells(idOf(list[0]))) {
        return kCellsOrComplex;
    }
    for (int i = 0; i < list.length(); ++i) {
        if (kyrxCast<KyDiDbComplexItem>(static_cast<KyRxObject*>(list[i])) != nullptr) {
            return kCellsOrComplex;
        }
    }
    return kPlainObjects;
}

void KyDiDataSelectedItemCollectionImp::addPendingObject(const KyDbObjectId& id) {
    // The items of sub-entities are made anew at each fill: a change of
    // their entity is no modified item.
    if (m_subEntitySelection != kSubEntities && id != ownerId()) {
        mutablePendingObjects().insert(id);
    }
    if (KyDiSelectionContext* context = KyDiSelectionContext::instance()) {
        context->objectChangedInSelection(id);
    }
}

void KyDiDataSelectedItemCollectionImp::subHostStateChanged() {
    requestReset();
}

int KyDiDataSelectedItemCollectionImp::subFindItem(const KyDiItemArray& list,
                                                   KyDiDynamicObject* item) {
    // A sub-entity's item is the same as another only for the same path.
    if (const auto* part = kyrxCast<KyDiDbComplexItem>(static_cast<KyRxObject*>(item))) {
        for (int i = 0; i < list.length(); ++i) {
            const auto* other = kyrxCast<KyDiDbComplexItem>(static_cast<KyRxObject*>(list[i]));
            if (other != nullptr && other->subentPath() == part->subentPath()) {
                return i;
            }
        }
        return -1;
    }
    return KyDiImpDbObjectCollection::subFindItem(list, item);
}
