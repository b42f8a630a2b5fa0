// Not part of the interface: the registry of known collections. A collection
// is made at its first demand by name (or path, or enumeration), from the row
// of its name, and kept until uninitialize; every later demand answers the
// same object. Names compare case-sensitively.
#pragma once

#include "manager/KnownCollectionRows.h"

class IKyRxEnumeration;
class KyDiCollection;
class KyDiCurrencyTracker;
class KyDiImpCollection;
class KyDiObservableCollection;

class KnownCollectionRegistry {
public:
    // initialize: the rows of modules (asked for here), then the static rows,
    // and the paths they give.
    static void install();
    // uninitialize, before anything is deleted: every collection lets go.
    static void destroyAll();
    // uninitialize: the enumeration collections leave their trackers.
    static void releaseEnumTrackers();
    // uninitialize: the collections, then the trackers they used.
    static void deleteAll();

    // Appends a row with only a name and a factory (a module's collection).
    static void registerDataItemFactory(const wchar_t* name, NewCollection newCollection);

    static KyDiObservableCollection* getKnownCollection(const wchar_t* name);
    static KyDiObservableCollection* getKnownCollection(const wchar_t* name,
                                                        KyDiCurrencyTracker* tracker);
    static KyDiObservableCollection* getKnownCollectionFromPath(const wchar_t* path);
    static KyDiCollection* getCollection(const IKyRxEnumeration* enumeration);
    // The tracker of `name`, made from its row when `create` is set.
    static KyDiCurrencyTracker* getCurrencyTracker(const wchar_t* name, bool create);

    // A new public collection from the row of `name`; null without a row or
    // a collection class.
    static KyDiObservableCollection* newKnownCollection(const wchar_t* name);
    static KyDiCollection* newEnumCollection(const IKyRxEnumeration* enumeration);
    // Appends an item for each value of the enumeration, named in the user's
    // language.
    static void fillEnumItems(const IKyRxEnumeration* enumeration, KyDiImpCollection* collection);
};
