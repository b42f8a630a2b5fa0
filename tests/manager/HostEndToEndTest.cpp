// The manager against the reference host: its reactor on the host for as
// long as the layer runs, the host's own refresh requests throttled on its
// clock, and the busy and quiet brackets around the host's work.
#include <gtest/gtest.h>

#include "kydi/KyDiManager.h"
#include "manager/RecordingReactors.h"
#include "manager/RefHostFixture.h"

namespace {

using kytest::Lines;
using kytest::PassSpy;
using kytest::SysVarSpy;

class HostEndToEnd : public kytest::RefHostFixture {};

}  // namespace

TEST(HostLifecycleEndToEnd, HostHearsFromTheLayerBetweenStartAndStop) {
    KyRefHost host;
    EXPECT_EQ(host.events().count(), 0);
    KyDiManager::initialize(&host);
    EXPECT_EQ(host.events().count(), 1);
    KyDiManager::uninitialize();
    EXPECT_EQ(host.events().count(), 0);
}

TEST_F(HostEndToEnd, CommandsOfOneIdleStretchGiveOnePass) {
    PassSpy passes;
    type(L"LUPREC\n3\nLUPREC\n5\n");
    EXPECT_EQ(passes.passes, 1) << "the host asked after each command";

    host.clock()->advance(250);
    type(L"LUPREC\n6\n");
    EXPECT_EQ(passes.passes, 1) << "exactly 250 ms later is held back";
    host.clock()->advance(1);
    type(L"LUPREC\n7\n");
    EXPECT_EQ(passes.passes, 2);
}

TEST_F(HostEndToEnd, UserCommandReachesVariableReactorsThroughTheHostsRequest) {
    SysVarSpy spy(KyDiManager::getSysVar(L"LUPREC"));
    type(L"LUPREC\n3\n");
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged LUPREC 3"}));
}

TEST_F(HostEndToEnd, BusyStretchHidesWhatChangedBeforeItUntilTheNextRealChange) {
    SysVarSpy spy(KyDiManager::getSysVar(L"LUPREC"));
    KyDiManager::refresh();
    type(L"LUPREC\n2\n");
    EXPECT_TRUE(spy.lines.empty()) << "the host's request came within the gap";

    const KyDiDocument current = host.documents().currentDocument();
    host.events().raiseDocumentBecameBusy(current);
    host.events().raiseDocumentBecameQuiet(current);
    EXPECT_TRUE(spy.lines.empty()) << "the quiet document's pass finds nothing new";

    waitPastTheThrottle();
    type(L"LUPREC\n6\n");
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged LUPREC 6"}));
}

TEST_F(HostEndToEnd, ClosingADocumentRefreshesAtOnceAgainstTheNextOne) {
    type(L"LUPREC\n2\n");
    KyRefDocument* second = host.documents().newDocument();
    KyDiManager::refresh();
    SysVarSpy spy(KyDiManager::getSysVar(L"LUPREC"));

    host.documents().closeDocument(second);
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged LUPREC 2"}))
        << "the first drawing's value, within the throttle's gap";
}
