// Not part of the interface: how the selection context makes the selected
// objects look like one object: the members they all have, the value they
// all agree on ("varies" where they differ), a write that reaches them all,
// and the values of a collection member when one object counts.
//
// Every walk takes the selected items, the kind of selection they make (how
// an item is opened: CSelectedItemHelper), and a filter: with a filter class
// only the objects of that exact class and "ClassName" count.
#pragma once

#include <set>
#include <utility>
#include <vector>

#include "base/KyString.h"
#include "collections/KyDiDataSelectedItemCollectionImp.h"
#include "kydi/KyDiDynamicObject.h"

class KyRxClass;
class KyRxMember;
class KyRxObject;
class KyRxPropertyBase;
class KyRxValueIterator;

class SelectionCommonValues {
public:
    using Kind = KyDiDataSelectedItemCollectionImp::SubEntitySelection;
    using IdSet = std::set<KyDbObjectId>;

    struct Filter {
        const KyRxClass* cls = nullptr;
        KyString name;
    };

    // The members every counted object has, wrapped, in the order of the
    // members of their lowest common classes. `filtered` receives the ids of
    // the objects that pass the filter.
    static Kyro::ErrorStatus buildCommonMembers(const KyDiItemArray& items, Kind kind,
                                                const Filter& filter, IdSet& filtered,
                                                KyDiMemberArray& members);
    // The first class on both chains up from `a` and `b`; null without one.
    static const KyRxClass* lowestCommonClass(const KyRxClass* a, const KyRxClass* b);
    // The value the counted objects agree on, "varies" at the first that
    // differs (or that reports a value of its own that varies); empty when
    // none counts. A collection member is read for one object only:
    // eNotApplicable with several items, unless the selection context's
    // filter left exactly one object at its last listing of members.
    static Kyro::ErrorStatus getCommonValue(const KyDiItemArray& items, Kind kind,
                                            const KyRxPropertyBase* property, KyRxValue& value,
                                            int index, const wchar_t* key, const Filter& filter);
    // Whether the value of `member` (a listed member) can be read in one walk
    // with others: a scalar property that doesn't sum the selection up.
    static bool readsTogether(const KyRxMember* member);
    // The common values of several scalar properties in one walk, each
    // object opened once: for each property what getCommonValue answers with
    // no index and no key, in the order given. For the properties of a
    // listing, read together after a change of the selection.
    static void getCommonValues(const KyDiItemArray& items, Kind kind,
                                const std::vector<const KyRxPropertyBase*>& properties,
                                const Filter& filter,
                                std::vector<std::pair<Kyro::ErrorStatus, KyRxValue>>& results);
    // Writes `value` to every counted object, under one document lock; the
    // objects written before a failure stay written. `classChanged` is set
    // when a write changed an object's "ClassName".
    static Kyro::ErrorStatus setCommonValue(const KyDiItemArray& items, Kind kind,
                                            const KyRxPropertyBase* property,
                                            const KyRxValue& value, int index, const wchar_t* key,
                                            const Filter& filter, bool& classChanged);
    // The values of a collection member of the one object that counts: one
    // item without a filter, or a filter that leaves exactly one. Null
    // otherwise, and for a member that is no collection.
    static KyRxValueIterator* newCommonValueIterator(const KyDiItemArray& items, Kind kind,
                                                     const KyRxPropertyBase* property,
                                                     const Filter& filter, const IdSet& filtered);

    // The SELECTION context's own members (CumulativeArea), wrapped.
    static void appendSelectionContextMembers(KyDiMemberArray& members);
    // Whether `member` is one of the context's own, read on the context.
    static bool hasSelectionAffinity(const KyRxMember* member);

    // The text of the object's member `name`; empty when it has no such
    // member, it can't be read, or its value is no text.
    static KyString memberText(const KyRxObject* object, const wchar_t* name);
};
