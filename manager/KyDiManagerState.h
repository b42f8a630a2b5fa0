// Not part of the interface: the process-wide state of the data item layer.
//
// One object holds it, made at load with every container empty. The manager
// fills it from initialize on and empties it at uninitialize; what each field
// owns is said beside it.
#pragma once

#include <cstdint>
#include <map>
#include <utility>
#include <vector>

#include "base/KyArray.h"
#include "base/KyString.h"
#include "kydi/KyDiTypes.h"
#include "manager/KnownCollectionRows.h"

class DataItemHostReactor;
class IKyRxEnumeration;
class KyDiContext;
class KyDiContextManager;
class KyDiCollection;
class KyDiCurrencyTracker;
class KyDiObservableCollection;
class KyDiObservableEnumCollection;
class KyDiDataItemReactor;
class KyDiEffectiveProperty;
class KyDiImpEffectiveProperty;
class KyDiExternalReferenceHost;
class KyDiHost;
class KyDiManagerReactor;
class KyDiSysVar;
class KyRxClass;
class KyRxMember;
class LocalDataItemCache;
class LooseItem;
class MemberReactor;
struct NameConverterRow;

struct KyDiManagerState {
    // The host given to initialize; not owned, never cleared.
    KyDiHost* host = nullptr;
    // The manager's reactor on the host; deleted at uninitialize, when the
    // host has let go of it.
    DataItemHostReactor* hostReactor = nullptr;
    // The optional external reference host; not owned.
    KyDiExternalReferenceHost* xrefHost = nullptr;
    // Told by the query engine when a member goes; owned from initialize to
    // uninitialize.
    MemberReactor* memberReactor = nullptr;
    // The items of records and values; owned from initialize to uninitialize.
    LocalDataItemCache* localItemCache = nullptr;
    // The effective property clients are given, with its implementation;
    // owned from initialize to uninitialize.
    KyDiEffectiveProperty* effectiveProperty = nullptr;
    // The values a new object of the drawing would get, which the "DRAWING"
    // context shows; made at its first demand, owned until uninitialize.
    KyDiImpEffectiveProperty* drawingEffectiveProperty = nullptr;
    // The one member whose written items stay items (the drawing context's
    // "PlotStyle", which takes a plot style's item as it is); not owned.
    const KyRxMember* itemTakingMember = nullptr;

    // The factories of contexts found by name, in order; a row's name and
    // its factory.
    std::vector<std::pair<KyString, KyDiContext* (*)(const wchar_t* name)>> contextFactories;
    // The contexts the factories built, in order; owned.
    KyArray<KyDiContext*> builtContexts;
    // The context manager, made at its first demand; owned.
    KyDiContextManager* contextManager = nullptr;

    // The known-collection rows: those of modules first, then the static ones.
    std::vector<KnownCollectionRow> knownCollectionRows;
    // Path to the name of the collection it reaches.
    std::map<KyString, KyString, KyStringLess> knownCollectionPaths;
    // Collections by name; owned, made at first demand.
    std::map<KyString, KyDiObservableCollection*, KyStringLess> knownCollections;
    // Collections a later demand with a tracker replaced under their name:
    // unreachable by name, kept until uninitialize.
    std::vector<KyDiObservableCollection*> replacedCollections;
    // Collections of enumerations, plain or with a current item; owned.
    std::map<const IKyRxEnumeration*, KyDiCollection*> enumCollections;
    std::map<const IKyRxEnumeration*, KyDiObservableEnumCollection*> observableEnumCollections;
    // Trackers by collection name; owned. An entry may be null.
    std::map<KyString, KyDiCurrencyTracker*, KyStringLess> currencyTrackers;

    // System variable objects by name (case-sensitive); owned.
    std::map<KyString, KyDiSysVar*, KyStringLess> sysVars;
    // Host member to the wrapper member built for it; the wrappers are owned.
    std::map<const KyRxMember*, KyRxMember*> wrappedMembers;
    // Record class to the row that puts its names into the user's language.
    std::map<const KyRxClass*, const NameConverterRow*> nameConverters;
    // The watches of the object reactor hub; owned.
    KyArray<LooseItem*> looseItems;

    // Reactors and handlers of clients; not owned.
    KyArray<KyDiDataItemReactor*> dataItemReactors;
    KyArray<KyDiManagerReactor*> managerReactors;
    KyArray<void (*)()> notifyHandlers;

    // Set in the middle of uninitialize; nothing sets it back.
    bool managerShutDown = false;
    // The document that the host is destroying, between documentToBeDestroyed
    // and documentDestructionDone; it counts as no current document.
    KyDiDocument dyingDatabase = kKyDiNoDocument;
    // Steady clock time of the last refresh pass that got past the throttle.
    std::int64_t lastRefreshTime = 0;
    // Space and editing state, read at the start of every refresh pass.
    bool inPaperSpace = false;
    bool inBlockEditor = false;
    // Holds unforced refresh passes back when set; the system never sets it.
    bool refreshSuspended = false;
};

// The one state object of the process.
KyDiManagerState& kydiManagerState();
