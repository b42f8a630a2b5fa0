#include "kydi/KyDiManager.h"

#include <utility>

#include "contexts/ContextFactories.h"
#include "contexts/KyDiContextManagerImp.h"
#include "contexts/KyDiDrawingContext.h"
#include "contexts/KyDiSelectionContext.h"
#include "contexts/KyDiViewportContext.h"
#include "effective/KyDiImpEffectiveSelectionProperty.h"
#include "kydi/KyDiContextBase.h"
#include "kydi/KyDiContextManager.h"
#include "kydi/KyDiDataItemReactor.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiHost.h"
#include "kydi/KyDiManagerReactor.h"
#include "kydi/KyDiSysVar.h"
#include "manager/EffectivePropertyInstances.h"
#include "manager/KnownCollectionRegistry.h"
#include "manager/KyDiManagerModule.h"
#include "manager/KyDiManagerState.h"
#include "manager/KyDiReflectedClasses.h"
#include "manager/LocalDataItemCache.h"
#include "manager/MemberReactor.h"
#include "manager/NameConverters.h"
#include "manager/ObjectReactorHub.h"
#include "manager/RefreshPass.h"
#include "manager/host/DataItemHostReactor.h"
#include "manager/host/IKyDiCustomContextHost.h"
#include "objects/ItemMembers.h"
#include "pal/KyPal.h"
#include "reflection/KyDiExpressionProperties.h"
#include "rx/KyRxStandardAttributes.h"
#include "sysvars/KyUiImpSysVar.h"
#include "sysvars/SysVarTable.h"

namespace {

template <typename Reactor>
void addTo(KyArray<Reactor*>& reactors, Reactor* reactor) {
    if (reactor != nullptr) {
        reactors.append(reactor);
    }
}

template <typename Reactor>
void removeFrom(KyArray<Reactor*>& reactors, Reactor* reactor) {
    if (reactor != nullptr) {
        reactors.remove(reactor);
    }
}

// The built contexts end, leave the manager and go; then the manager goes.
// The list of built contexts keeps its length: nothing walks it afterwards.
void releaseContexts() {
    KyDiManagerState& state = kydiManagerState();
    if (state.contextManager == nullptr) {
        return;
    }
    KyArray<KyDiContext*>& built = state.builtContexts;
    for (int i = 0; i < built.length(); ++i) {
        if (auto* context = kyrxCast<KyDiContextBase>(static_cast<KyRxObject*>(built[i]))) {
            context->subTerminate();
        }
    }
    // Factories build contexts of the layer's base, which knows its name.
    for (int i = 0; i < built.length(); ++i) {
        if (auto* context = kyrxCast<KyDiContextBase>(static_cast<KyRxObject*>(built[i]))) {
            state.contextManager->removeContext(context->name());
            delete context;
        }
        built[i] = nullptr;
    }
    delete state.contextManager;
    state.contextManager = nullptr;
}

}  // namespace

void KyDiManager::initialize(KyDiHost* host) {
    // Opened here and never closed: the layer lives as long as the process.
    PerfLog_WriteDilLifetimeEvent(true);

    KyDiManagerState& state = kydiManagerState();
    state.host = host;
    // Host events may arrive from here on.
    state.hostReactor = new DataItemHostReactor();
    if (host != nullptr) {
        host->addReactor(state.hostReactor);
    }

    state.localItemCache = new LocalDataItemCache();
    // The effective property clients are given exists from the start; the
    // drawing's own comes at its first demand.
    state.effectiveProperty = new KyDiEffectiveProperty(new KyDiImpEffectiveSelectionProperty());

    KyDiReflectedClasses::registerAll();
    kyrxBuildClassHierarchy();

    // The context module's factories ("SUN") come first.
    if (IKyDiCustomContextHost* customHost = IKyDiCustomContextHost::instance()) {
        customHost->registerContextFactories();
    }
    // The layer's own context factories; "SELECTION" and "RENDER" take their
    // places around "VIEWPORT" as they come.
    ContextFactories::registerFactory(L"DRAWING", &KyDiDrawingContext::create);
    ContextFactories::registerFactory(L"SELECTION", &KyDiSelectionContext::create);
    ContextFactories::registerFactory(L"VIEWPORT", &KyDiViewportContext::create);
    // The symbol table module's rows, then the static ones, with their paths.
    KnownCollectionRegistry::install();
    NameConverters::install();
    // Here comes the layer facet provider.

    state.memberReactor = new MemberReactor();
    KyRxMemberQueryEngine::theEngine()->addReactor(state.memberReactor);
}

void KyDiManager::uninitialize() {
    KyDiManagerState& state = kydiManagerState();

    // The known collections let go first, while all of them still stand;
    // then the enumeration collections leave their trackers.
    KnownCollectionRegistry::destroyAll();
    KnownCollectionRegistry::releaseEnumTrackers();
    // The effective properties leave the viewport context and the layers
    // while both stand.
    forEachEffectiveProperty([](KyDiImpEffectiveProperty& effective) {
        effective.releaseObjectReactors();
        effective.releaseDependencyReactors();
    });
    releaseContexts();
    // The effective properties go; their trackers still stand.
    delete std::exchange(state.drawingEffectiveProperty, nullptr);
    if (KyDiEffectiveProperty* effective = std::exchange(state.effectiveProperty, nullptr)) {
        delete effective->imp();
        delete effective;
    }
    // Collections go before the trackers they use.
    KnownCollectionRegistry::deleteAll();

    if (state.hostReactor != nullptr) {
        if (state.host != nullptr) {
            state.host->removeReactor(state.hostReactor);
        }
        // The pointer keeps its value: nothing reads it once the host has
        // let go of the reactor.
        delete state.hostReactor;
    }
    // No host event can arrive from here on.

    for (auto& [name, sysVar] : state.sysVars) {
        delete sysVar;
    }
    state.sysVars.clear();

    state.managerShutDown = true;

    // Here comes the layer facet provider leaving the query engine.

    // The watches nobody took back come off their objects.
    ObjectReactorHub::releaseAll();
    if (state.localItemCache != nullptr) {
        state.localItemCache->releaseValueItems();
        state.localItemCache->releaseTables();
        delete state.localItemCache;
        state.localItemCache = nullptr;
    }

    if (state.memberReactor != nullptr) {
        KyRxMemberQueryEngine::theEngine()->removeReactor(state.memberReactor);
        delete state.memberReactor;
        state.memberReactor = nullptr;
    }

    // Taken out first: deleting a wrapper tells the query engine's reactors.
    const auto wrappedMembers = std::exchange(state.wrappedMembers, {});
    for (const auto& [hostMember, wrapper] : wrappedMembers) {
        KyRxMember::deleteMember(wrapper);
    }

    // Every item is gone: the members they shared go before their classes.
    state.itemTakingMember = nullptr;
    ItemMembers::releaseAll();

    KyDiReflectedClasses::deleteAll();

    KyDiExpressionProperties::removeTypeFromClassDictionary();
}

KyDiEffectiveProperty* KyDiManager::getEffectiveProperty() {
    return kydiManagerState().effectiveProperty;
}

KyDiHost* KyDiManager::getHost() {
    return kydiManagerState().host;
}

void KyDiManager::initializeXRefHost(KyDiExternalReferenceHost* xrefHost) {
    kydiManagerState().xrefHost = xrefHost;
}

void KyDiManager::uninitializeXRefHost() {
    kydiManagerState().xrefHost = nullptr;
}

KyDiExternalReferenceHost* KyDiManager::getXRefHost() {
    return kydiManagerState().xrefHost;
}

KyDiSysVar* KyDiManager::getSysVar(const wchar_t* name) {
    if (name == nullptr) {
        return nullptr;
    }
    auto& sysVars = kydiManagerState().sysVars;
    if (auto found = sysVars.find(name); found != sysVars.end()) {
        return found->second;
    }
    auto* sysVar = new KyDiSysVar(SysVarTable::newSysVar(name));
    // The first read sets the value and the activity; no reactor is there to
    // hear it. A variable that the host can't read leaves no trace.
    if (sysVar->imp()->refresh() != Kyro::eOk) {
        delete sysVar;
        return nullptr;
    }
    sysVars.emplace(name, sysVar);
    return sysVar;
}

Kyro::ErrorStatus KyDiManager::addObjectReactor(const KyDbObjectId& id,
                                                KyDiObjectReactor* reactor) {
    return ObjectReactorHub::add(id, reactor);
}

Kyro::ErrorStatus KyDiManager::removeObjectReactor(const KyDbObjectId& id,
                                                   KyDiObjectReactor* reactor) {
    return ObjectReactorHub::remove(id, reactor);
}

KyDiContextManager* KyDiManager::getContextManager() {
    KyDiManagerState& state = kydiManagerState();
    if (state.contextManager == nullptr) {
        state.contextManager = new KyDiContextManager(new KyDiContextManagerImp());
    }
    return state.contextManager;
}

KyDiObservableCollection* KyDiManager::getKnownCollection(const wchar_t* name) {
    return KnownCollectionRegistry::getKnownCollection(name);
}

KyDiObservableCollection* KyDiManager::getKnownCollection(const wchar_t* name,
                                                          KyDiCurrencyTracker* tracker) {
    return KnownCollectionRegistry::getKnownCollection(name, tracker);
}

KyDiObservableCollection* KyDiManager::getKnownCollectionFromPath(const wchar_t* path) {
    return KnownCollectionRegistry::getKnownCollectionFromPath(path);
}

KyDiCollection* KyDiManager::getCollection(const IKyRxEnumeration* enumeration) {
    return KnownCollectionRegistry::getCollection(enumeration);
}

void KyDiManager::refresh() {
    RefreshPass::run(true);
}

const KyRxPropertyBase* KyDiManager::parseReference(const wchar_t* path, const KyRxObject* object) {
    // A value read on the way may be a data item: it becomes the host's value
    // (an item of a record its id) before the next step opens it.
    return KyRxRefersToAttribute::parseReference(
        path, object, KyDiManagerModule::resolveReferenceProperty, KyDiConvertFromDataItem);
}

void KyDiManager::addReactor(KyDiDataItemReactor* reactor) {
    addTo(kydiManagerState().dataItemReactors, reactor);
}

void KyDiManager::removeReactor(KyDiDataItemReactor* reactor) {
    removeFrom(kydiManagerState().dataItemReactors, reactor);
}

void KyDiManager::addReactor(KyDiManagerReactor* reactor) {
    addTo(kydiManagerState().managerReactors, reactor);
}

void KyDiManager::removeReactor(KyDiManagerReactor* reactor) {
    removeFrom(kydiManagerState().managerReactors, reactor);
}
