// The view lives in the drawing: the viewport service reads and writes it in
// the active configuration of model space, the paper of a layout or the
// viewport entered, each change closing that object for its reactors; a
// locked viewport keeps its view; a restored view and REPAINT regenerate
// everything.
#include "KyRefReadAccess.h"
#include "ViewTestSupport.h"
#include "base/KyRxResourceInstance.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbViewTableRecord.h"
#include "db/KyDbViewport.h"
#include "db/KyDbViewportTableRecord.h"

namespace refhost {
namespace {

using Service = KyDiViewportService;

class ViewportServiceTest : public ViewsFixture {
protected:
    KyRefViewportService& service() { return *host->viewportService(); }

    KyGePoint3d viewPoint(int selector) {
        KyGePoint3d point;
        EXPECT_EQ(service().getViewPoint(point, selector), Kyro::eOk);
        return point;
    }
    KyGePoint3d viewCenterOf(const wchar_t* handle) const {
        KyRefReadAccess<KyDbViewport> viewport(object(handle));
        return viewport->viewCenter();
    }
};

TEST_F(ViewportServiceTest, InModelSpaceTheViewIsTheActiveConfigurationsAndEachChangeClosesIt) {
    EXPECT_EQ(currentViewport(), object(L"49"));
    KyDbObjectId entered;
    ASSERT_EQ(service().viewportId(entered), Kyro::eOk);
    EXPECT_TRUE(entered.isNull()) << "model space has no viewport entity";
    EXPECT_EQ(viewPoint(Service::kViewCenter), KyGePoint3d(50, 30, 0));
    EXPECT_EQ(viewPoint(Service::kCameraLocation), KyGePoint3d(0, 0, 1));
    EXPECT_EQ(service().getLensLength(), 50.0);
    EXPECT_FALSE(service().isViewLocked(db())) << "model space is never locked";

    watchClosed(L"49");
    ASSERT_EQ(service().setViewPoint(KyGePoint3d(8, 9, 0), Service::kViewCenter), Kyro::eOk);
    ASSERT_EQ(service().setViewPoint(KyGePoint3d(1, -1, 1), Service::kCameraLocation), Kyro::eOk);
    ASSERT_EQ(service().setLensLength(35.0), Kyro::eOk);
    EXPECT_EQ(spy.take(), (Lines{"objectClosed 49", "objectClosed 49", "objectClosed 49"}));
    {
        KyRefReadAccess<KyDbViewportTableRecord> active(object(L"49"));
        EXPECT_EQ(active->centerPoint(), KyGePoint3d(8, 9, 0));
        EXPECT_EQ(active->viewDirection(), KyGePoint3d(1, -1, 1));
        EXPECT_EQ(active->lensLength(), 35.0);
    }

    // Refusals change nothing and close nothing.
    EXPECT_EQ(service().setViewPoint(KyGePoint3d(), Service::kCameraLocation), Kyro::eInvalidInput);
    EXPECT_EQ(service().setLensLength(0.0), Kyro::eInvalidInput);
    EXPECT_EQ(service().setViewPoint(KyGePoint3d(), 7), Kyro::eInvalidInput);
    ASSERT_EQ(service().setLensLength(35.0), Kyro::eOk);
    EXPECT_TRUE(spy.take().empty()) << "an equal value is no change";
    EXPECT_EQ(service().getLensLength(), 35.0);
}

TEST_F(ViewportServiceTest, OnALayoutTheViewIsThePapersUntilAViewportIsEntered) {
    run(L"CTAB\nPlan\n");
    spy.take();
    EXPECT_EQ(currentViewport(), object(L"40"));
    watchClosed(L"40");
    watchClosed(L"41");
    ASSERT_EQ(service().setViewPoint(KyGePoint3d(200, 100, 0), Service::kViewCenter), Kyro::eOk);
    EXPECT_EQ(viewCenterOf(L"40"), KyGePoint3d(200, 100, 0));
    EXPECT_EQ(spy.take(), (Lines{"objectClosed 40"}));

    ASSERT_EQ(host->enterViewport(object(L"41")), Kyro::eOk);
    spy.take();
    EXPECT_EQ(currentViewport(), object(L"41"));
    KyDbObjectId entered;
    service().viewportId(entered);
    EXPECT_EQ(entered, object(L"41"));
    EXPECT_EQ(viewPoint(Service::kViewCenter), KyGePoint3d(0, 0, 0));
    ASSERT_EQ(service().setViewPoint(KyGePoint3d(3, 4, 0), Service::kViewCenter), Kyro::eOk);
    ASSERT_EQ(service().setLensLength(28.0), Kyro::eOk);
    EXPECT_EQ(spy.take(), (Lines{"objectClosed 41", "objectClosed 41"}));
    {
        KyRefReadAccess<KyDbViewport> viewport(object(L"41"));
        EXPECT_EQ(viewport->viewCenter(), KyGePoint3d(3, 4, 0));
        EXPECT_EQ(viewport->lensLength(), 28.0);
    }
    EXPECT_EQ(viewCenterOf(L"40"), KyGePoint3d(200, 100, 0)) << "the paper keeps its own";

    ASSERT_EQ(host->leaveViewport(), Kyro::eOk);
    EXPECT_EQ(currentViewport(), object(L"40"));
    EXPECT_EQ(service().getLensLength(), 50.0);
}

TEST_F(ViewportServiceTest, ALockedViewportKeepsItsViewAndOnlyItsOwnLockCounts) {
    run(L"CTAB\nPlan\n");
    EXPECT_FALSE(service().isViewLocked(db())) << "the paper is not locked";
    ASSERT_EQ(host->enterViewport(object(L"43")), Kyro::eOk);
    EXPECT_TRUE(service().isViewLocked(db()));
    spy.take();
    watchClosed(L"43");
    EXPECT_EQ(service().setViewPoint(KyGePoint3d(1, 1, 0), Service::kViewCenter),
              Kyro::eNotApplicable);
    EXPECT_EQ(service().setLensLength(20.0), Kyro::eNotApplicable);
    EXPECT_EQ(service().restoreView(object(L"45")), Kyro::eNotApplicable);
    EXPECT_EQ(viewCenterOf(L"43"), KyGePoint3d(7, 7, 0));
    EXPECT_TRUE(spy.take().empty()) << "nothing closed, nothing regenerated";

    ASSERT_EQ(host->enterViewport(object(L"41")), Kyro::eOk);
    EXPECT_FALSE(service().isViewLocked(db()));
}

TEST_F(ViewportServiceTest, ARestoredViewIsWrittenIntoTheViewportAndRegeneratesEverything) {
    KyRefReadAccess<KyDbViewTableRecord> north(object(L"45"));
    EXPECT_FALSE(service().matchesView(north.object()));
    watchClosed(L"49");
    ASSERT_EQ(service().restoreView(object(L"45")), Kyro::eOk);
    EXPECT_EQ(spy.take(), (Lines{"objectClosed 49", "invalidateAll"}));
    EXPECT_EQ(host->regenerationService()->fullRegenerations(), 1);
    EXPECT_TRUE(service().matchesView(north.object()));
    EXPECT_EQ(viewPoint(Service::kViewCenter), KyGePoint3d(5, 6, 0));
    ASSERT_EQ(service().setViewPoint(KyGePoint3d(1, 1, 0), Service::kViewCenter), Kyro::eOk);
    EXPECT_FALSE(service().matchesView(north.object()));
    EXPECT_NE(service().restoreView(object(L"20")), Kyro::eOk) << "a layer is no view";

    // Into a viewport its window's proportions keep their width.
    run(L"CTAB\nPlan\n");
    ASSERT_EQ(host->enterViewport(object(L"41")), Kyro::eOk);
    ASSERT_EQ(service().restoreView(object(L"45")), Kyro::eOk);
    KyRefReadAccess<KyDbViewport> viewport(object(L"41"));
    EXPECT_EQ(viewport->viewCenter(), KyGePoint3d(5, 6, 0));
    EXPECT_EQ(viewport->viewHeight(), 10.0);
    EXPECT_TRUE(service().matchesView(north.object()));
}

TEST_F(ViewportServiceTest, RepaintRegeneratesEverythingInEitherLanguage) {
    run(L"REPAINT\n");
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart REPAINT", "invalidateAll",
                                 "commandEnded REPAINT", "refreshNeeded false"}));
    KyRxResourceInstance::setLanguage(L"de");
    run(L"AUFFRISCHEN\n");
    KyRxResourceInstance::setLanguage(L"");
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart REPAINT", "invalidateAll",
                                 "commandEnded REPAINT", "refreshNeeded false"}));
    EXPECT_EQ(host->regenerationService()->fullRegenerations(), 2);
}

class WithoutRegeneration : public RefHostTest {
protected:
    WithoutRegeneration() : RefHostTest(options()) {}
    static KyRefHostOptions options() {
        KyRefHostOptions options = testOptions();
        options.regenerationService = false;
        return options;
    }
};

TEST_F(WithoutRegeneration, RepaintStillInvalidatesAll) {
    run(L"_REPAINT\n");
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart REPAINT", "invalidateAll",
                                 "commandEnded REPAINT", "refreshNeeded false"}));
}

TEST_F(ViewportServiceTest, ANewDrawingGetsItsActiveConfigurationAtTheFirstChangeOfView) {
    host->documents().newDocument();
    EXPECT_TRUE(currentViewport().isNull());
    EXPECT_EQ(viewPoint(Service::kViewCenter), KyGePoint3d());
    EXPECT_EQ(service().getLensLength(), 50.0);
    ASSERT_EQ(service().setViewPoint(KyGePoint3d(2, 3, 0), Service::kViewCenter), Kyro::eOk);
    const KyDbObjectId active = currentViewport();
    ASSERT_FALSE(active.isNull());
    {
        KyRefReadAccess<KyDbViewportTableRecord> record(active);
        EXPECT_EQ(record->name(), KyString(L"*Active"));
        EXPECT_EQ(record->centerPoint(), KyGePoint3d(2, 3, 0));
    }

    // A layout without a paper viewport has no view to change.
    run(L"CTAB\nLayout1\n");
    EXPECT_TRUE(currentViewport().isNull());
    EXPECT_EQ(service().setLensLength(20.0), Kyro::eNotApplicable);

    host->documents().closeAll();
    KyDbObjectId none;
    EXPECT_EQ(service().getCurrentViewportId(none), Kyro::eNoCurrentDocument);
    EXPECT_EQ(service().getLensLength(), 0.0);
    EXPECT_EQ(service().setLensLength(20.0), Kyro::eNoCurrentDocument);
}

TEST_F(ViewportServiceTest, TheNavigationBoxIsASessionVariableOfTheHost) {
    EXPECT_FALSE(service().isNavBoxOff(db()));
    ASSERT_EQ(host->setVariable(L"NAVBOX", *KyRefResbuf::makeShort(0)), KyRefSysVarStatus::kOk);
    EXPECT_EQ(spy.take(), (Lines{"sysVarWillChange NAVBOX", "sysVarChanged NAVBOX true"}));
    EXPECT_TRUE(service().isNavBoxOff(db()));
    host->documents().newDocument();
    EXPECT_TRUE(service().isNavBoxOff(db())) << "the session's, not the drawing's";
    EXPECT_EQ(host->setVariable(L"NAVBOX", *KyRefResbuf::makeShort(2)),
              KyRefSysVarStatus::kOutOfRange);
}

}  // namespace
}  // namespace refhost
