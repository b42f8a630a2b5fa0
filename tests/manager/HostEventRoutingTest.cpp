// Host events: they only mark work, except the destruction of a document and
// the brackets of a busy stretch; the document being destroyed counts as no
// document wherever the layer asks for the current one.
#include <gtest/gtest.h>

#include "kydi/KyDiManager.h"
#include "kydi/KyDiSysVar.h"
#include "manager/DocumentClosingProbe.h"
#include "manager/RecordingReactors.h"
#include "manager/RefHostFixture.h"
#include "manager/ResbufValues.h"

namespace {

using kytest::Lines;
using kytest::PassSpy;
using kytest::shortValue;
using kytest::SysVarSpy;
using kytest::textValue;

class HostEvents : public kytest::RefHostFixture {
protected:
    void SetUp() override {
        RefHostFixture::SetUp();
        document = host.documents().currentDocument();
        luprec = KyDiManager::getSysVar(L"LUPREC");
        ctab = KyDiManager::getSysVar(L"CTAB");
        // A first pass: the host's own requests after a command now fall
        // within the throttle's gap, until the test moves the clock.
        KyDiManager::refresh();
    }

    // Another drawing, open behind the first one.
    KyDiDocument openBehind() {
        KyRefDocument* first = host.documents().current();
        const KyDiDocument other = host.documents().newDocument()->handle();
        host.documents().makeCurrent(first);
        return other;
    }

    KyDiDocument document = kKyDiNoDocument;
    KyDiSysVar* luprec = nullptr;
    KyDiSysVar* ctab = nullptr;
    PassSpy passes;
};

}  // namespace

TEST_F(HostEvents, ReportsOfChangesOnlyMarkWork) {
    SysVarSpy spy(luprec);
    type(L"LUPREC\n6\n");
    EXPECT_EQ(host.setVariable(L"LUPREC", shortValue(12)), KyRefSysVarStatus::kOutOfRange)
        << "reported to the layer as a failed change";
    host.events().raiseDrawingContentChanged();
    EXPECT_TRUE(spy.lines.empty()) << "the host's request came within 250 ms of the last pass";
    EXPECT_EQ(passes.passes, 1);

    waitPastTheThrottle();
    host.events().raiseRefreshNeeded(false);
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged LUPREC 6"}));
}

TEST_F(HostEvents, DocumentBeingClosedCountsAsNoDocumentWhileTheHostStillAnswersIt) {
    SysVarSpy spy(ctab);
    type(L"CTAB\nLayout1\n");
    kytest::DocumentClosingProbe probe(host, [&](KyDiDocument closing) {
        EXPECT_EQ(host.documents().currentDocument(), closing);
        EXPECT_EQ(hostValue(L"CTAB"), L"Layout1");
        EXPECT_EQ(passes.passes, 2) << "the event runs a pass of its own, never held back";
        EXPECT_TRUE(spy.lines.empty()) << "CTAB keeps its last value without a document";
        EXPECT_EQ(ctab->setValue(textValue(L"Layout1"), true), Kyro::eCannotSetSysVar);
        EXPECT_EQ(luprec->setValue(shortValue(2), false), Kyro::eNoCurrentDocument);
        EXPECT_EQ(hostValue(L"LUPREC"), L"4");
    });
    host.documents().closeAll();
    EXPECT_EQ(probe.calls, 1);
    EXPECT_TRUE(sentTexts().empty());

    host.documents().newDocument();
    EXPECT_EQ(luprec->setValue(shortValue(2), false), Kyro::eOk);
    EXPECT_EQ(hostValue(L"LUPREC"), L"2");
}

TEST_F(HostEvents, ClosingADocumentRefreshesAtOnceAgainstTheNextOne) {
    type(L"LUPREC\n2\n");
    KyRefDocument* second = host.documents().newDocument();
    SysVarSpy spy(luprec);

    host.documents().closeDocument(second);
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged LUPREC 2"}))
        << "the first drawing's value, within the throttle's gap";
}

TEST_F(HostEvents, QuietDocumentRefreshesAtOnceWhenItIsCurrent) {
    const KyDiDocument other = openBehind();
    const int before = passes.passes;
    host.events().raiseDocumentBecameQuiet(other);
    EXPECT_EQ(passes.passes, before) << "another document";
    host.events().raiseDocumentBecameQuiet(document);
    EXPECT_EQ(passes.passes, before + 1);
}

TEST_F(HostEvents, BusyStretchHidesWhatChangedBeforeItUntilTheNextRealChange) {
    SysVarSpy spy(luprec);
    type(L"LUPREC\n6\n");
    host.events().raiseDocumentBecameBusy(document);
    KyDiManager::refresh();
    EXPECT_TRUE(spy.lines.empty());
    resbuf value{};
    ASSERT_EQ(luprec->getValue(value), Kyro::eOk);
    EXPECT_EQ(value.resval.rint, 6) << "the value is taken as known";

    host.events().raiseDocumentBecameQuiet(document);
    EXPECT_TRUE(spy.lines.empty()) << "the quiet document's pass finds nothing new";

    waitPastTheThrottle();
    type(L"LUPREC\n7\n");
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged LUPREC 7"})) << "through the host's own request";
}

TEST_F(HostEvents, BusyOtherDocumentSwallowsNothing) {
    const KyDiDocument other = openBehind();
    SysVarSpy spy(luprec);
    type(L"LUPREC\n6\n");
    host.events().raiseDocumentBecameBusy(other);
    KyDiManager::refresh();
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged LUPREC 6"}));
}
