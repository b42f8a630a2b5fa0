// The refresh pass: the throttle on the steady clock, the order in which the
// pass tells its reactors, the notify handlers, and the editing state it reads.
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

#include "db/KyDbDatabase.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyUiAddNotifyHandler.h"
#include "manager/ManagerFixture.h"
#include "manager/RecordingReactors.h"
#include "pal/KyPal.h"

namespace {

using kytest::Lines;
using kytest::ManualClock;
using kytest::PassSpy;
using kytest::SysVarSpy;

constexpr std::int64_t kGap = 250'000'000;

void requestRefresh(kytest::FakeDiHost& host, bool force = false) {
    host.raise([force](KyDiHostReactor* reactor) { reactor->refreshNeeded(force); });
}

class RefreshThrottle : public kytest::ManagerFixture {
protected:
    PassSpy spy;
};

}  // namespace

TEST_F(RefreshThrottle, FirstRequestIsNeverHeldBack) {
    requestRefresh(host);
    EXPECT_EQ(spy.passes, 1);
}

TEST_F(RefreshThrottle, ExactlyTheGapIsHeldBackAndOneNanosecondMorePasses) {
    requestRefresh(host);
    clock.advance(kGap);
    requestRefresh(host);
    EXPECT_EQ(spy.passes, 1) << "the distance must be above 250 ms";
    clock.advance(1);
    requestRefresh(host);
    EXPECT_EQ(spy.passes, 2);
}

TEST_F(RefreshThrottle, HeldBackRequestDoesNotMoveTheTimeOfTheLastPass) {
    requestRefresh(host);
    clock.advanceMs(200);
    requestRefresh(host);
    clock.advanceMs(60);
    requestRefresh(host);
    EXPECT_EQ(spy.passes, 2) << "260 ms after the last pass, not 60 ms after the held request";
}

TEST_F(RefreshThrottle, ForcedPassesAlwaysRunAndRestartTheGap) {
    KyDiManager::refresh();
    KyDiManager::refresh();
    requestRefresh(host, true);
    EXPECT_EQ(spy.passes, 3);
    clock.advanceMs(200);
    requestRefresh(host);
    EXPECT_EQ(spy.passes, 3);
}

TEST_F(RefreshThrottle, ReducedServiceModeHasNoGap) {
    KyPal::Process::setFabric(true);
    requestRefresh(host);
    clock.advance(1);
    requestRefresh(host);
    requestRefresh(host);
    KyPal::Process::setFabric(false);
    EXPECT_EQ(spy.passes, 2) << "a request at the very time of the last pass is still held";
}

TEST_F(RefreshThrottle, EveryRequestWritesBothNotifyMarks) {
    const int begins = KyPal::PerfLog::notifyEventCount(true);
    const int ends = KyPal::PerfLog::notifyEventCount(false);
    requestRefresh(host);
    requestRefresh(host);
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

class PassReactors : public kytest::ManagerFixture {};

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
    host.editorService.setShort(L"LUPREC", 4);
    Lines lines;
    PassSpy pass(&lines);
    SysVarSpy luprec(KyDiManager::getSysVar(L"LUPREC"), &lines);
    host.editorService.setShort(L"LUPREC", 6);
    KyDiManager::refresh();
    EXPECT_EQ(lines, (Lines{L"refreshStarting", L"valueChanged LUPREC 6", L"refreshEnded"}));
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

class NotifyHandlers : public kytest::ManagerFixture {
protected:
    void SetUp() override {
        ManagerFixture::SetUp();
        g_handlerCalls = 0;
        KyUiAddNotifyHandler(countCall, true);
    }
    void TearDown() override {
        KyUiAddNotifyHandler(countCall, false);
        ManagerFixture::TearDown();
    }
};

}  // namespace

TEST_F(NotifyHandlers, AreCalledAtTheEndOfAPassOnlyWhileADocumentIsOpen) {
    KyDiManager::refresh();
    EXPECT_EQ(g_handlerCalls, 0);
    host.documents.openDocument();
    KyDiManager::refresh();
    EXPECT_EQ(g_handlerCalls, 1);
}

TEST_F(NotifyHandlers, AddedTwiceAndRemovedOnceLeavesOneCall) {
    host.documents.openDocument();
    KyUiAddNotifyHandler(countCall, true);
    KyUiAddNotifyHandler(countCall, false);
    KyDiManager::refresh();
    EXPECT_EQ(g_handlerCalls, 1);
}

TEST_F(NotifyHandlers, AskTheHostsRawAnswerWhileADocumentIsDestroyed) {
    const KyDiDocument document = host.documents.openDocument();
    host.raise([document](KyDiHostReactor* r) { r->documentToBeDestroyed(document); });
    EXPECT_EQ(g_handlerCalls, 1) << "the host still answers the dying document";
}

namespace {

class EditingState : public kytest::ManagerFixture {
protected:
    void SetUp() override {
        ManagerFixture::SetUp();
        host.documents.openDocument(&database);
        host.documents.working = &database;
        database.setTilemode(false);
        host.editorService.setShort(L"CVPORT", 1);
    }
    short paperSpace() {
        KyDiManager::refresh();
        resbuf value{};
        EXPECT_EQ(KyDiManager::getSysVar(L"PAPERSPACE")->getValue(value), Kyro::eOk);
        return value.resval.rint;
    }

    KyDbDatabase database;
};

}  // namespace

TEST_F(EditingState, PaperSpaceIsTheLayoutsPaperViewport) {
    EXPECT_EQ(paperSpace(), 1);
    host.editorService.setShort(L"CVPORT", 2);
    EXPECT_EQ(paperSpace(), 0) << "a floating viewport of the layout is current";
}

TEST_F(EditingState, ModelSpaceIsNeverPaperSpaceWhateverTheViewportSays) {
    database.setTilemode(true);
    EXPECT_EQ(paperSpace(), 0);
}

TEST_F(EditingState, UnreadableViewportCountsAsModelSpace) {
    host.editorService.setText(L"CVPORT", L"1");
    EXPECT_EQ(paperSpace(), 0);
    host.documents.working = nullptr;
    host.editorService.setShort(L"CVPORT", 1);
    EXPECT_EQ(paperSpace(), 0) << "no working database";
    host.documents.working = &database;
    host.withEditor = false;
    EXPECT_EQ(paperSpace(), 0) << "no editor service";
}
