// The refresh pass: the throttle on the steady clock, the order in which the
// pass tells its reactors, the notify handlers, and the editing state it reads.
#include <gtest/gtest.h>

#include <stdexcept>

#include "db/KyAxDocLock.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbViewport.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyUiAddNotifyHandler.h"
#include "manager/RecordingReactors.h"
#include "manager/RefHostFixture.h"
#include "manager/ResbufValues.h"
#include "pal/KyPal.h"

namespace {

using kytest::Lines;
using kytest::PassSpy;
using kytest::SysVarSpy;

class RefreshThrottle : public kytest::RefHostFixture {
protected:
    void requestRefresh(bool force = false) { host.events().raiseRefreshNeeded(force); }

    PassSpy spy;
};

}  // namespace

TEST_F(RefreshThrottle, FirstRequestIsNeverHeldBack) {
    SysVarSpy luprec(KyDiManager::getSysVar(L"LUPREC"));
    type(L"LUPREC\n3\n");
    EXPECT_EQ(spy.passes, 1);
    EXPECT_EQ(luprec.lines, (Lines{L"valueChanged LUPREC 3"})) << "through the host's request";
}

TEST_F(RefreshThrottle, ExactlyTheGapIsHeldBackAndOneNanosecondMorePasses) {
    requestRefresh();
    host.clock()->advance(250);
    requestRefresh();
    EXPECT_EQ(spy.passes, 1) << "the distance must be above 250 ms";
    host.clock()->advanceNanoseconds(1);
    requestRefresh();
    EXPECT_EQ(spy.passes, 2);
}

TEST_F(RefreshThrottle, CommandsOfOneIdleStretchGiveOnePass) {
    type(L"LUPREC\n3\nLUPREC\n5\n");
    EXPECT_EQ(spy.passes, 1) << "the host asked after each command";
    host.clock()->advance(251);
    type(L"LUPREC\n6\n");
    EXPECT_EQ(spy.passes, 2);
}

TEST_F(RefreshThrottle, HeldBackRequestDoesNotMoveTheTimeOfTheLastPass) {
    requestRefresh();
    host.clock()->advance(200);
    requestRefresh();
    host.clock()->advance(60);
    requestRefresh();
    EXPECT_EQ(spy.passes, 2) << "260 ms after the last pass, not 60 ms after the held request";
}

TEST_F(RefreshThrottle, ForcedPassesAlwaysRunAndRestartTheGap) {
    KyDiManager::refresh();
    KyDiManager::refresh();
    requestRefresh(true);
    EXPECT_EQ(spy.passes, 3);
    host.clock()->advance(200);
    requestRefresh();
    EXPECT_EQ(spy.passes, 3);
}

TEST_F(RefreshThrottle, ReducedServiceModeHasNoGap) {
    KyPal::Process::setFabric(true);
    requestRefresh();
    host.clock()->advance(1);
    requestRefresh();
    requestRefresh();
    KyPal::Process::setFabric(false);
    EXPECT_EQ(spy.passes, 2) << "a request at the very time of the last pass is still held";
}

TEST_F(RefreshThrottle, EveryRequestWritesBothNotifyMarks) {
    const int begins = KyPal::PerfLog::notifyEventCount(true);
    const int ends = KyPal::PerfLog::notifyEventCount(false);
    requestRefresh();
    requestRefresh();
    EXPECT_EQ(KyPal::PerfLog::notifyEventCount(true), begins + 2) << "held back passes too";
    EXPECT_EQ(KyPal::PerfLog::notifyEventCount(false), ends + 2);
}

namespace {

class ThrowingReactor final : public KyDiManagerReactor {
public:
    void refreshStarting() override { throw std::runtime_error("client failure"); }
};

class AddingReactor final : public KyDiManagerReactor {
public:
    explicit AddingReactor(KyDiManagerReactor* next) : m_next(next) {}
    void refreshStarting() override {
        if (m_next != nullptr) {
            KyDiManager::addReactor(m_next);
            m_next = nullptr;
        }
    }

private:
    KyDiManagerReactor* m_next;
};

class PassReactors : public kytest::RefHostFixture {};

}  // namespace

TEST_F(PassReactors, EndMarkIsWrittenWhenAReactorThrowsOutOfThePass) {
    ThrowingReactor failing;
    KyDiManager::addReactor(&failing);
    const int ends = KyPal::PerfLog::notifyEventCount(false);
    EXPECT_THROW(KyDiManager::refresh(), std::runtime_error);
    EXPECT_EQ(KyPal::PerfLog::notifyEventCount(false), ends + 1);
    KyDiManager::removeReactor(&failing);
}

TEST_F(PassReactors, SysVarReactorsAreToldBetweenStartAndEnd) {
    Lines lines;
    PassSpy pass(&lines);
    SysVarSpy luprec(KyDiManager::getSysVar(L"LUPREC"), &lines);
    type(L"LUPREC\n6\n");
    EXPECT_EQ(lines, (Lines{L"refreshStarting", L"valueChanged LUPREC 6", L"refreshEnded"}))
        << "the pass the host asked for after the command";
}

TEST_F(PassReactors, ReactorAddedWhileThePassStartsIsToldInTheSamePass) {
    PassSpy late(nullptr);
    KyDiManager::removeReactor(&late);
    AddingReactor adding(&late);
    KyDiManager::addReactor(&adding);
    KyDiManager::refresh();
    EXPECT_EQ(late.lines, (Lines{L"refreshStarting", L"refreshEnded"}));
    KyDiManager::removeReactor(&adding);
}

namespace {

int g_handlerCalls = 0;
void countCall() {
    ++g_handlerCalls;
}

class NotifyHandlers : public kytest::RefHostFixture {
protected:
    NotifyHandlers() : RefHostFixture(onManualClock(), Drawing::kNone) {}

    void SetUp() override {
        RefHostFixture::SetUp();
        g_handlerCalls = 0;
        KyUiAddNotifyHandler(countCall, true);
    }
    void TearDown() override {
        KyUiAddNotifyHandler(countCall, false);
        RefHostFixture::TearDown();
    }
};

}  // namespace

TEST_F(NotifyHandlers, AreCalledAtTheEndOfAPassOnlyWhileADocumentIsOpen) {
    KyDiManager::refresh();
    EXPECT_EQ(g_handlerCalls, 0);
    host.documents().newDocument();
    EXPECT_EQ(g_handlerCalls, 1) << "the pass the host asks for with the new drawing";
}

TEST_F(NotifyHandlers, AddedTwiceAndRemovedOnceLeavesOneCall) {
    host.documents().newDocument();
    g_handlerCalls = 0;
    KyUiAddNotifyHandler(countCall, true);
    KyUiAddNotifyHandler(countCall, false);
    KyDiManager::refresh();
    EXPECT_EQ(g_handlerCalls, 1);
}

TEST_F(NotifyHandlers, AskTheHostsRawAnswerWhileADocumentIsDestroyed) {
    host.documents().newDocument();
    g_handlerCalls = 0;
    host.documents().closeAll();
    EXPECT_EQ(g_handlerCalls, 1) << "the host still answers the closing drawing as current";
}

namespace {

// A layout of the drawing shown, its paper space viewport current.
class EditingState : public kytest::RefHostFixture {
protected:
    using RefHostFixture::RefHostFixture;

    // A paper and a window onto model space on the layout of *Paper_Space;
    // answers the window.
    KyDbObjectId addViewports() {
        const KyAxDocLock lock(host.documents().currentDatabase());
        KyDbObjectId paperSpaceId;
        {
            KyDbObjectPointer<KyDbSymbolTable> blocks(
                host.documents().currentDatabase()->blockTableId(), KyDb::kForRead);
            blocks->getAt(L"*Paper_Space", paperSpaceId);
        }
        KyDbObjectPointer<KyDbBlockTableRecord> space(paperSpaceId, KyDb::kForWrite);
        KyDbObjectId id;
        for (int i = 0; i < 2; ++i) {
            auto* viewport = new KyDbViewport();
            EXPECT_EQ(space->appendKyDbEntity(id, viewport), Kyro::eOk);
            viewport->close();
        }
        return id;
    }

    short paperSpace() {
        KyDiManager::refresh();
        resbuf value{};
        EXPECT_EQ(KyDiManager::getSysVar(L"PAPERSPACE")->getValue(value), Kyro::eOk);
        return value.resval.rint;
    }
};

class EditingStateWithoutEditor : public EditingState {
protected:
    EditingStateWithoutEditor() : EditingState(withoutEditor()) {}
};

}  // namespace

TEST_F(EditingState, PaperSpaceIsTheLayoutsPaperViewport) {
    EXPECT_EQ(paperSpace(), 0) << "a new drawing shows model space";
    type(L"CTAB\nLayout1\n");
    ASSERT_EQ(hostValue(L"CVPORT"), L"1");
    EXPECT_EQ(paperSpace(), 1);
    ASSERT_EQ(host.enterViewport(addViewports()), Kyro::eOk);
    EXPECT_EQ(paperSpace(), 0) << "a floating viewport of the layout is current";
}

TEST_F(EditingState, ModelSpaceIsNeverPaperSpaceWhateverTheViewportSays) {
    type(L"TILEMODE\n0\nTILEMODE\n1\n");
    ASSERT_EQ(hostValue(L"TILEMODE"), L"1");
    {
        // The host refuses CVPORT 1 in model space; a drawing may hold it.
        const KyAxDocLock lock;
        ASSERT_EQ(host.documents().currentDatabase()->setHeaderVar(
                      L"CVPORT", KyRxValue(static_cast<short>(1))),
                  Kyro::eOk);
    }
    ASSERT_EQ(hostValue(L"CVPORT"), L"1");
    EXPECT_EQ(paperSpace(), 0);
}

TEST_F(EditingState, ClosingTheDrawingLeavesPaperSpace) {
    type(L"TILEMODE\n0\n");
    EXPECT_EQ(paperSpace(), 1);
    host.documents().closeAll();
    EXPECT_EQ(paperSpace(), 0);
}

TEST_F(EditingStateWithoutEditor, ViewportCanNotBeReadAndCountsAsModelSpace) {
    {
        const KyAxDocLock lock;
        ASSERT_EQ(host.setVariable(L"TILEMODE", kytest::shortValue(0)), KyRefSysVarStatus::kOk);
    }
    ASSERT_EQ(hostValue(L"CVPORT"), L"1");
    EXPECT_EQ(paperSpace(), 0);
}
