// Host events: they only mark work, except the destruction of a document and
// the brackets of a busy stretch; the document being destroyed counts as no
// document wherever the layer asks for the current one.
#include <gtest/gtest.h>

#include "kydi/KyDiManager.h"
#include "kydi/KyDiSysVar.h"
#include "manager/ManagerFixture.h"
#include "manager/RecordingReactors.h"

namespace {

using kytest::Lines;
using kytest::PassSpy;
using kytest::SysVarSpy;

resbuf shortValue(short value) {
    resbuf record{};
    record.restype = KYRB_SHORT;
    record.resval.rint = value;
    return record;
}

resbuf textValue(const wchar_t* text) {
    resbuf record{};
    record.restype = KYRB_STRING;
    record.resval.rstring = const_cast<wchar_t*>(text);
    return record;
}

class HostEvents : public kytest::ManagerFixture {
protected:
    void SetUp() override {
        ManagerFixture::SetUp();
        document = host.documents.openDocument();
        host.editorService.setShort(L"LUPREC", 4);
        host.editorService.setText(L"CTAB", L"Model");
        luprec = KyDiManager::getSysVar(L"LUPREC");
        ctab = KyDiManager::getSysVar(L"CTAB");
        // A first pass, so that every later unforced request is held back.
        KyDiManager::refresh();
    }

    KyDiDocument document = kKyDiNoDocument;
    KyDiSysVar* luprec = nullptr;
    KyDiSysVar* ctab = nullptr;
    PassSpy passes;
};

}  // namespace

TEST_F(HostEvents, ReportsOfChangesOnlyMarkWork) {
    SysVarSpy spy(luprec);
    host.editorService.setShort(L"LUPREC", 6);
    raise([](KyDiHostReactor* r) { r->sysVarChanged(L"LUPREC", true); });
    raise([](KyDiHostReactor* r) { r->sysVarChanged(L"LUPREC", false); });
    raise([](KyDiHostReactor* r) { r->commandEnded(L"SETVAR"); });
    raise([](KyDiHostReactor* r) { r->drawingContentChanged(); });
    raise([](KyDiHostReactor* r) { r->refreshNeeded(false); });
    EXPECT_TRUE(spy.lines.empty()) << "the request came within 250 ms of the last pass";
    EXPECT_EQ(passes.passes, 1);

    clock.advanceMs(251);
    raise([](KyDiHostReactor* r) { r->refreshNeeded(false); });
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged LUPREC 6"}));
}

TEST_F(HostEvents, DocumentBeingDestroyedCountsAsNoDocumentUntilItsDestructionIsDone) {
    SysVarSpy spy(ctab);
    raise([this](KyDiHostReactor* r) { r->documentToBeDestroyed(document); });
    EXPECT_EQ(passes.passes, 2) << "the event runs a pass of its own, never held back";

    // The host still answers the document as current; the layer does not.
    host.editorService.setText(L"CTAB", L"Layout1");
    KyDiManager::refresh();
    EXPECT_TRUE(spy.lines.empty()) << "CTAB keeps its last value without a document";
    EXPECT_EQ(ctab->setValue(textValue(L"Layout2"), true), Kyro::eCannotSetSysVar);
    EXPECT_EQ(luprec->setValue(shortValue(2), false), Kyro::eNoCurrentDocument);
    EXPECT_TRUE(host.editorService.commands.empty());

    raise([](KyDiHostReactor* r) { r->documentDestroyed(); });
    raise([](KyDiHostReactor* r) { r->documentDestructionDone(); });
    KyDiManager::refresh();
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged CTAB Layout1"}));
    EXPECT_EQ(luprec->setValue(shortValue(2), false), Kyro::eOk);
}

TEST_F(HostEvents, QuietDocumentRefreshesAtOnceWhenItIsCurrent) {
    raise([](KyDiHostReactor* r) { r->documentBecameQuiet(0x999); });
    EXPECT_EQ(passes.passes, 1) << "another document";
    raise([this](KyDiHostReactor* r) { r->documentBecameQuiet(document); });
    EXPECT_EQ(passes.passes, 2);
}

TEST_F(HostEvents, BusyDocumentSwallowsWhatChangedUntilTheNextRealChange) {
    SysVarSpy spy(luprec);
    host.editorService.setShort(L"LUPREC", 6);
    raise([this](KyDiHostReactor* r) { r->documentBecameBusy(document); });
    KyDiManager::refresh();
    EXPECT_TRUE(spy.lines.empty());
    resbuf value{};
    ASSERT_EQ(luprec->getValue(value), Kyro::eOk);
    EXPECT_EQ(value.resval.rint, 6) << "the value is taken as known";

    host.editorService.setShort(L"LUPREC", 7);
    KyDiManager::refresh();
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged LUPREC 7"}));
}

TEST_F(HostEvents, BusyOtherDocumentSwallowsNothing) {
    SysVarSpy spy(luprec);
    host.editorService.setShort(L"LUPREC", 6);
    raise([](KyDiHostReactor* r) { r->documentBecameBusy(0x999); });
    KyDiManager::refresh();
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged LUPREC 6"}));
}
