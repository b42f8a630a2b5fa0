// Not part of the interface: the selected objects of the current document as
// a collection ("KYDI_DATAITEM_SELECTED_ITEMS"), one item per selected
// object, then one per selected sub-entity (a face, an edge, a vertex, an
// attribute), in the order the host's selection service gives them. It has
// no current item. A change of the selection (the host's state) builds the
// list anew; a selected object that changed is told as modified, but for
// sub-entities, whose items are made anew at each fill.
//
// What kind of selection it holds (subEntitySelection) says how an item is
// opened (CSelectedItemHelper):
//   kPlainObjects      the objects themselves;
//   kSubEntities       the host gave sub-entities: an item of one opens it;
//   kCellsOrComplex    one table with a sub-selection of cells (or a list of
//                      sub-entity items narrowed by reclassify): the object's
//                      part of the default sub-entity id.
#pragma once

#include <cstdint>

#include "collections/KyDiImpDbObjectCollection.h"
#include "kydi/KyDiSelectionService.h"

class KyDiDataSelectedItemCollectionImp : public KyDiImpDbObjectCollection {
public:
    enum SubEntitySelection : std::int32_t {
        kPlainObjects = 0,
        kSubEntities = 1,
        kCellsOrComplex = 2,
    };

    KyDiDataSelectedItemCollectionImp(const wchar_t* name, KyDiCurrencyTracker* tracker);
    ~KyDiDataSelectedItemCollectionImp() override;

    SubEntitySelection subEntitySelection() const { return m_subEntitySelection; }
    const KyDiSelectionService::SubentPathArray& subEntities() const { return m_subEntities; }

    // The kind of a narrowed list: cells for one table with a sub-selection
    // or for any list holding a sub-entity item, plain objects otherwise.
    static SubEntitySelection reclassify(const KyDiItemArray& list);

    void subDetach(KyDbObject* closing) override;
    void subSelectionRefreshed(const std::set<KyDiDbItem*>& erased) override;
    bool subFillFromDatabase(bool initial, KyDbDatabase* db, KyDbObjectId& owner,
                             KyDiItemArray& list, KyArray<KyDbObjectId>& erased,
                             void** context) override;
    void addPendingObject(const KyDbObjectId& id) override;
    void subHostStateChanged() override;
    int subFindItem(const KyDiItemArray& list, KyDiDynamicObject* item) override;

private:
    // A dimension whose class id the host keeps from showing is left out;
    // any other object is listed without being opened.
    static bool isListableSelectedObject(KyDbObjectId id);

    KyDiSelectionService::SubentPathArray m_subEntities;
    SubEntitySelection m_subEntitySelection = kPlainObjects;
};
