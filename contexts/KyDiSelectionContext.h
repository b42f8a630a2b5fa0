// Not part of the interface: the "SELECTION" context. It makes the objects
// selected in the current document look like one object: its members are the
// properties they all have, a read gives the value they agree on or
// "varies", and a write goes to each of them as one undoable change
// ("OPM_CHGPROP"), leaving alone those the host says a change of properties
// must not touch (on a locked layer). It sorts the selection into groups by
// kind (IKyDiSelectionItemProvider) and can be narrowed to one of them.
//
// It reads the selected items ("KYDI_DATAITEM_SELECTED_ITEMS") and listens to
// them: a new selection drops its filter and what it had computed, and
// reports a change without names; so does a change of a selected object.
// Beyond PROPOBJLIMIT selected objects it is inactive.
#pragma once

#include <map>
#include <set>
#include <vector>

#include "base/KyString.h"
#include "contexts/SelectionCommonValues.h"
#include "kydi/IKyDiSelectionItemProvider.h"
#include "kydi/KyDiContextBase.h"
#include "kydi/KyDiProxy.h"

class KyDiObservableCollection;
class KyRxMemberCollectionBuilder;
class KyDiSelectedItemsReactor;

class KyDiSelectionContext : public KyDiContextBase,
                             public IKyDiSelectionItemProvider,
                             public KyDiProxy {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    explicit KyDiSelectionContext(const wchar_t* name);
    ~KyDiSelectionContext() override;
    // The factory of the "SELECTION" row.
    static KyDiContext* create(const wchar_t* name);
    // The one context of the process; null while none stands.
    static KyDiSelectionContext* instance();

    Kyro::ErrorStatus getValue(const KyRxPropertyBase* property, KyRxValue& value, int index,
                               const wchar_t* key) override;
    Kyro::ErrorStatus setValue(const KyRxPropertyBase* property, const KyRxValue& value, int index,
                               const wchar_t* key) override;
    KyRxValueIterator* newValueIterator(const KyRxPropertyBase* property) override;

    int getItemCount() override;
    KyDiSelectionItem getItem(int index) override;
    KyRxClass* getFilterClass() override { return m_filterClass; }
    // A filter is set and the last listing of members left one object.
    bool filtersToOne() const { return m_filterClass != nullptr && m_filteredObjects.size() == 1; }
    KyString getFilterName() override { return m_filterName; }
    bool setFilterClass(KyRxClass* cls) override;
    bool setFilter(KyRxClass* cls, KyString name) override;
    bool containsAnyClass(const KyArray<KyString>& names) override;
    bool containsOnlyClasses(const KyArray<KyString>& names) override;
    int getAllGroupsFlag() override { return m_allGroupsFlag; }

    // How the selected items open: as objects, sub-entities or cells.
    SelectionCommonValues::Kind kind() const;
    // The items of the selection, as the selected item list holds them.
    const KyDiItemArray& selectedItems() const { return items(); }
    static void buildMembers(KyRxMemberCollectionBuilder& builder, void* userData);

    // The selected items changed: the filter and what was computed go.
    void selectionChanged();
    // The list told that selected objects changed: the change that the mark
    // of a write under a filter waits for. With the mark alone the filter
    // stays; with objects outside the filter changed as well, the selection
    // starts over.
    void selectedObjectsModified();
    // A selected object changed (the null id: a write left some alone).
    void objectChangedInSelection(KyDbObjectId id);

protected:
    KyRxMemberIterator* subNewMemberIterator() override;
    bool subIsActive() const override;
    short subPriority() const override;

private:
    struct Group {
        KyDiSelectionItem record;
        KyArray<KyDbObjectId> ids{0, 8};
    };

    const KyDiItemArray& items() const;
    // Reads every value of the last listing that is not known yet; answers
    // the value of `wanted`, one of them.
    Kyro::ErrorStatus readListedValues(const KyRxPropertyBase* wanted, KyRxValue& value);
    SelectionCommonValues::Filter filter() const;
    void resetFilter();
    Kyro::ErrorStatus buildGroups();
    void narrowClippedViewports();

    KyDiObservableCollection* m_selected;
    KyDiSelectedItemsReactor* m_reactor;
    std::map<const KyRxPropertyBase*, KyRxValue> m_valueCache;
    // The scalar members of the last listing, whose values are read
    // together.
    std::vector<const KyRxPropertyBase*> m_listed;
    KyRxClass* m_filterClass = nullptr;
    KyString m_filterName;
    int m_visitCursor = 0;
    std::set<KyString, KyStringLess> m_visitedClasses;
    std::vector<Group> m_groups;
    SelectionCommonValues::IdSet m_filteredObjects;
    KyArray<KyDbObjectId> m_modifiedObjects{0, 8};
    int m_allGroupsFlag = 0;
};
