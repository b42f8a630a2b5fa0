// KyAppCollectionWatch: `watch collection NAME`. A reactor on one known
// collection that prints what it is told, one line each, in the order
// received, the items by their display names:
//   itemsChanged LINETYPE added=[Dashed] removed=[]
//   itemsModified LINETYPE [Dashed]
//   collectionReset LINETYPE
//   currentItemChanged LINETYPE Dashed
//   activeChanged LINETYPE true
#pragma once

#include <ostream>
#include <string>

#include "kydi/KyDiCollectionReactor.h"

class KyDiObservableCollection;

class KyAppCollectionWatch : public KyDiCollectionReactor {
public:
    // Joins the collection's reactors.
    KyAppCollectionWatch(std::string name, KyDiObservableCollection* collection, std::ostream& out);
    // Leaves them.
    ~KyAppCollectionWatch() override;
    KyAppCollectionWatch(const KyAppCollectionWatch&) = delete;
    KyAppCollectionWatch& operator=(const KyAppCollectionWatch&) = delete;

    const std::string& name() const { return m_name; }

    void itemsChanged(const KyDiItemArray& added, const KyDiItemArray& removed) override;
    void itemsModified(const KyDiItemArray& modified) override;
    void collectionReset() override;
    void currentItemChanged(KyDiDynamicObject* item) override;
    void activeChanged(bool active) override;

    // An item by its display name, as the program writes names; "none" for
    // no item.
    static std::string itemText(KyDiDynamicObject* item);
    static std::string listText(const KyDiItemArray& items);

private:
    std::string m_name;
    KyDiObservableCollection* m_collection;
    std::ostream& m_out;
};
