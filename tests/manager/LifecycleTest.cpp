// Starting and stopping the data item layer: what the host and the class
// registry see, and the performance marks.
#include <gtest/gtest.h>

#include <utility>

#include "KyRefHost.h"
#include "kydi/KyDiExternalReferenceHost.h"
#include "kydi/KyDiManager.h"
#include "manager/KyDiReflectedClasses.h"
#include "manager/host/IKyDiCustomContextHost.h"
#include "pal/KyPal.h"
#include "rx/KyRxBoxedValue.h"
#include "rx/KyRxClass.h"
#include "rx/KyRxDictionary.h"

namespace {

// Every runtime class of the layer with the parent it is linked to.
const std::pair<const wchar_t*, const wchar_t*> kClasses[] = {
    {L"KyDiItem", L"KyDiDynamicObject"},
    {L"KyDiNamedItem", L"KyDiItem"},
    {L"KyDiLayerFilterItemBase", L"KyDiItem"},
    {L"KyDiLayerFilterItem", L"KyDiLayerFilterItemBase"},
    {L"KyDiLayerFilterTreeItem", L"KyDiLayerFilterItemBase"},
    {L"KyDiDbItem", L"KyDiItem"},
    {L"KyDiDbComplexItem", L"KyDiDbItem"},
    {L"KyDiDbNamedItem", L"KyDiDbItem"},
    {L"KyDiDbDictionaryItem", L"KyDiDbItem"},
    {L"KyDiDbLayerItem", L"KyDiDbItem"},
    {L"KyDiDynamicObject", L"KyRxBoxedValue"},
    {L"KyDiObservableDynamicObject", L"KyDiDynamicObject"},
    {L"KyDiContext", L"KyDiObservableDynamicObject"},
    {L"KyDiProperty", L"KyRxProperty"},
    {L"KyDiCollectionProperty", L"KyRxCollectionProperty"},
    {L"KyDiIndexedProperty", L"KyRxIndexedProperty"},
    {L"KyDiDictionaryProperty", L"KyRxDictionaryProperty"},
    {L"KyDiContextBase", L"KyDiContext"},
    {L"KyDiDbObjectContext", L"KyDiContextBase"},
    {L"KyDiRolloverTipsContext", L"KyDiDbObjectContext"},
    {L"KyDiSunContext", L"KyDiDbObjectContext"},
    {L"KyDiDrawingContext", L"KyDiContextBase"},
    {L"KyDiSelectionContext", L"KyDiContextBase"},
    {L"KyDiViewportContext", L"KyDiContextBase"},
    {L"KyDiRenderContext", L"KyDiContextBase"},
    {L"KyDiLayerFacet", L"KyRxObject"},
    {L"KyDiRxObjectContext", L"KyDiContextBase"},
    {L"KyDiMeasureGeomContext", L"KyDiContext"},
};

// A host that is busy while the layer starts: the moment the layer's reactor
// is registered, the host asks for a pass, begins a stretch of work and closes
// its drawing.
class HostBusyAtStart final : public KyRefHost {
public:
    void addReactor(KyDiHostReactor* reactor) override {
        KyRefHost::addReactor(reactor);
        events().raiseRefreshNeeded(true);
        events().raiseDocumentBecameBusy(documents().currentDocument());
        documents().closeAll();
    }
};

class BackgroundHost final : public KyDiExternalReferenceHost {
public:
    Kyro::ErrorStatus getBackgroundOverride(KyCmColor& out, KyDbDatabase*) override {
        out.setColorIndex(KyCmColor::kACIRed);
        return Kyro::eOk;
    }
};

}  // namespace

TEST(ManagerLifecycle, EventsArrivingWhileTheLayerStartsAreHandled) {
    const int passes = KyPal::PerfLog::notifyEventCount(false);
    HostBusyAtStart host;
    host.documents().newDocument();
    KyDiManager::initialize(&host);
    EXPECT_EQ(KyPal::PerfLog::notifyEventCount(false), passes + 2)
        << "the requested pass and the one of the closed drawing";
    EXPECT_NE(kyrxFindKyRxClass(L"KyDiItem"), nullptr) << "the start went on";
    KyDiManager::uninitialize();
}

TEST(ManagerLifecycle, HostHoldsTheLayersReactorFromStartToStop) {
    KyRefHost host;
    EXPECT_EQ(host.events().count(), 0);
    KyDiManager::initialize(&host);
    EXPECT_EQ(host.events().count(), 1);
    EXPECT_EQ(KyDiManager::getHost(), &host);

    KyDiManager::uninitialize();
    EXPECT_EQ(host.events().count(), 0) << "no host event can arrive after the stop";
    EXPECT_EQ(KyDiManager::getHost(), &host) << "the host is kept";
}

TEST(ManagerLifecycle, ClassesAreRegisteredLinkedToTheirParentsAndDeletedAtStop) {
    KyRefHost host;
    KyDiManager::initialize(&host);
    for (const auto& [name, parent] : kClasses) {
        const KyRxClass* cls = kyrxFindKyRxClass(name);
        ASSERT_NE(cls, nullptr) << name;
        ASSERT_NE(cls->myParent(), nullptr) << name << " is linked";
        EXPECT_STREQ(cls->myParent()->name(), parent) << name;
    }
    EXPECT_TRUE(kyrxFindKyRxClass(L"KyDiDbLayerItem")->isDerivedFrom(KyRxBoxedValue::desc()));

    KyDiManager::uninitialize();
    for (const auto& [name, parent] : kClasses) {
        EXPECT_EQ(kyrxFindKyRxClass(name), nullptr) << name;
    }
    EXPECT_NE(kyrxFindKyRxClass(L"KyRxProperty"), nullptr) << "the platform's classes stay";
}

TEST(ManagerLifecycle, LifetimeMarkOpensAtStartAndIsNeverClosed) {
    const int begins = KyPal::PerfLog::lifetimeEventCount(true);
    const int ends = KyPal::PerfLog::lifetimeEventCount(false);
    KyRefHost host;
    KyDiManager::initialize(&host);
    EXPECT_EQ(KyPal::PerfLog::lifetimeEventCount(true), begins + 1);
    KyDiManager::uninitialize();
    EXPECT_EQ(KyPal::PerfLog::lifetimeEventCount(true), begins + 1);
    EXPECT_EQ(KyPal::PerfLog::lifetimeEventCount(false), ends);
}

TEST(ManagerLifecycle, ExternalReferenceHostMayComeBeforeTheStart) {
    BackgroundHost xrefHost;
    KyDiManager::initializeXRefHost(&xrefHost);
    EXPECT_EQ(KyDiManager::getXRefHost(), &xrefHost);

    KyRefHost host;
    KyDiManager::initialize(&host);
    EXPECT_EQ(KyDiManager::getXRefHost(), &xrefHost);
    KyDiManager::uninitializeXRefHost();
    EXPECT_EQ(KyDiManager::getXRefHost(), nullptr);
    KyDiManager::uninitialize();
}

TEST(ManagerLifecycle, RegisteringAgainUnderTheSameDescriptorChangesNothing) {
    KyRefHost host;
    KyDiManager::initialize(&host);
    KyRxClass* sun = kyrxFindKyRxClass(L"KyDiSunContext");
    KyRxClass* item = kyrxFindKyRxClass(L"KyDiItem");

    IKyDiCustomContextHost::instance()->registerClasses();
    KyDiReflectedClasses::registerAll();

    EXPECT_EQ(kyrxFindKyRxClass(L"KyDiSunContext"), sun);
    EXPECT_EQ(kyrxFindKyRxClass(L"KyDiItem"), item);
    KyDiManager::uninitialize();
}

TEST(ManagerLifecycleDeathTest, AnotherClassUnderAKnownNameStopsTheProcess) {
    KyRefHost host;
    KyDiManager::initialize(&host);
    // Another module takes the name of a class the layer registered.
    auto replaceClass = [](const wchar_t* name) {
        kyrxClassDictionary()->remove(name);
        newKyRxClass(name, L"KyRxObject");
    };
    EXPECT_DEATH(
        {
            replaceClass(L"KyDiItem");
            KyDiReflectedClasses::registerAll();
        },
        "Class mismatch");
    EXPECT_DEATH(
        {
            replaceClass(L"KyDiSunContext");
            IKyDiCustomContextHost::instance()->registerClasses();
        },
        "Class mismatch");
    KyDiManager::uninitialize();
}
