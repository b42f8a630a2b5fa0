// The named views and the viewport configurations, and the view tracker:
// which views "NAMEDVIEWS" lists as the user crosses between a layout's paper
// and model space, what the viewport list leaves out, and how the current
// view is found (the view remembered for a viewport, else the last view that
// matches) and shown.
#include <gtest/gtest.h>

#include "KyRefViewportService.h"
#include "collections/CollectionFixture.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbViewport.h"
#include "kydi/KyDiFunctions.h"

namespace {

using kytest::CollectionSpy;
using kytest::ContractChecker;
using Lines = std::vector<std::string>;

class ViewCollections : public kytest::CollectionFixture {
protected:
    using CollectionFixture::CollectionFixture;

    KyRefViewportService& viewports() { return *host.viewportService(); }
    // The paper and one viewport on the first layout; the viewport's id.
    KyDbObjectId addLayoutViewports() {
        KyDbDatabase* database = db();
        const KyAxDocLock lock(database);
        KyDbObjectId paperId;
        {
            KyDbObjectPointer<KyDbSymbolTable> blocks(database->blockTableId(), KyDb::kForRead);
            blocks->getAt(KyDbStandardContent::kPaperSpaceName, paperId);
        }
        KyDbObjectPointer<KyDbBlockTableRecord> paper(paperId, KyDb::kForWrite);
        KyDbObjectId id;
        for (int i = 0; i < 2; ++i) {
            auto* viewport = new KyDbViewport();
            EXPECT_EQ(paper->appendKyDbEntity(id, viewport), Kyro::eOk);
            viewport->close();
        }
        return id;
    }
    // The host says that whatever is shown may be stale: currency is asked
    // again.
    void invalidate() {
        host.events().raiseInvalidateAll();
        pass();
    }
};

TEST_F(ViewCollections, CrossingBetweenPaperAndModelSpaceResetsTheViewsOfTheSpaceOnly) {
    const KyDbObjectId entered = addLayoutViewports();
    addView(L"Plan", {0.0, 50.0, 0.0});
    addView(L"Sheet", {0.0, 80.0, 0.0}, true);
    KyDiObservableCollection* views = known(L"NAMEDVIEWS");
    KyDiObservableCollection* modelViews = known(L"NAMEDMODELVIEWS");
    EXPECT_EQ(names(views), (Lines{"Plan"}));
    EXPECT_EQ(names(modelViews), (Lines{"Plan"}));
    pass();
    ContractChecker checker(views, "NAMEDVIEWS");
    ContractChecker modelChecker(modelViews, "NAMEDMODELVIEWS");
    CollectionSpy spy(views);
    CollectionSpy modelSpy(modelViews);

    type(L"TILEMODE\n0\n");
    pass();
    // No view is shown; a reset tells the current item again all the same.
    const Lines reset = {"collectionReset", "currentItemChanged null"};
    EXPECT_EQ(spy.take(), reset) << "on the layout's paper";
    EXPECT_EQ(names(views), (Lines{"Sheet"}));
    // A viewport of the layout entered, and left again.
    ASSERT_EQ(host.enterViewport(entered), Kyro::eOk);
    pass();
    EXPECT_EQ(spy.take(), reset);
    EXPECT_EQ(names(views), (Lines{"Plan"}));
    ASSERT_EQ(host.leaveViewport(), Kyro::eOk);
    pass();
    EXPECT_EQ(names(views), (Lines{"Sheet"}));
    spy.take();

    type(L"TILEMODE\n1\n");
    pass();
    pass();
    EXPECT_EQ(spy.take(), reset) << "once, in model space";
    EXPECT_EQ(names(views), (Lines{"Plan"}));
    EXPECT_EQ(modelSpy.take(), Lines{}) << "the model views stay what they were";
    EXPECT_EQ(names(modelViews), (Lines{"Plan"}));
    checker.expectInStep();
    modelChecker.expectInStep();
}

TEST_F(ViewCollections, ANewViewIsListedAndAskedAboutInOnePass) {
    KyDiObservableCollection* views = known(L"NAMEDVIEWS");
    pass();
    ContractChecker checker(views, "NAMEDVIEWS");
    CollectionSpy spy(views);
    // A new view holds what the viewport shows now.
    type(L"RECORD\n_New\nVIEW\nHome\n");
    pass();
    EXPECT_EQ(spy.take(),
              (Lines{"itemsChanged added=[Home] removed=[]", "currentItemChanged Home"}));
    type(L"RECORD\n_Erase\nVIEW\nHome\n");
    pass();
    EXPECT_EQ(spy.take(),
              (Lines{"itemsChanged added=[] removed=[Home]", "currentItemChanged null"}));
    checker.expectInStep();
}

TEST_F(ViewCollections, TheHostsOwnViewportConfigurationsAreNeitherListedNorReported) {
    addViewport(L"*Active");
    type(L"RECORD\n_New\nVIEWPORT\nTwoSides\n");
    KyDiObservableCollection* viewports = known(L"VIEWPORT");
    EXPECT_EQ(KyDiManager::getKnownCollectionFromPath(L"/ViewportTableId/Items"), viewports);
    EXPECT_EQ(names(viewports), (Lines{"TwoSides"}));
    EXPECT_EQ(viewports->getCurrentItem(), nullptr) << "no tracker";
    pass();
    ContractChecker checker(viewports, "VIEWPORT");
    CollectionSpy spy(viewports);
    const KyDbObjectId spare = addViewport(L"*Spare");
    rename(spare, L"*Other");
    type(L"RECORD\n_Rename\nVIEWPORT\nTwoSides\nFourCorners\n");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"itemsModified [FourCorners]"}));
    erase(spare);
    pass();
    EXPECT_EQ(spy.take(), Lines{});
    EXPECT_EQ(names(viewports), (Lines{"FourCorners"}));
    checker.expectInStep();
}

TEST_F(ViewCollections, TheTrackerShowsAViewAndFindsTheViewRememberedOrTheLastThatMatches) {
    // Model space shows the view of its active configuration; a layout's
    // viewport, entered, is another viewport with a view of its own.
    addViewport(L"*Active");
    const KyDbObjectId entered = addLayoutViewports();
    const KyDbObjectId north = addView(L"North", {0.0, 10.0, 0.0});
    addView(L"South", {0.0, -10.0, 0.0});
    addView(L"Twin", {0.0, 10.0, 0.0});
    KyDiObservableCollection* views = known(L"NAMEDMODELVIEWS");
    EXPECT_EQ(views->getCurrentItem(), nullptr) << "the viewport shows none of them";
    pass();
    ContractChecker checker(views, "NAMEDMODELVIEWS");
    CollectionSpy spy(views);

    views->setCurrentItem(item(views, "North"));
    KyGePoint3d center;
    viewports().getViewPoint(center, KyDiViewportService::kViewCenter);
    EXPECT_EQ(center, KyGePoint3d(0.0, 10.0, 0.0)) << "shown at once";
    EXPECT_EQ(sentTexts(), std::vector<std::wstring>{}) << "without a command";
    invalidate();
    EXPECT_EQ(spy.take(), Lines{}) << "the view it showed is still shown: nothing new";
    EXPECT_EQ(views->getCurrentItem(), nullptr);

    // Another viewport remembers nothing: from the end, Twin shows the same.
    ASSERT_TRUE(host.plotService()->setLayoutByName(L"Layout1"));
    ASSERT_EQ(host.enterViewport(entered), Kyro::eOk);
    ASSERT_EQ(viewports().restoreView(north), Kyro::eOk);
    invalidate();
    EXPECT_EQ(spy.take(), (Lines{"currentItemChanged Twin"}));
    // Back in model space, North is remembered and still shown.
    ASSERT_TRUE(host.plotService()->setLayoutByName(L"Model"));
    invalidate();
    EXPECT_EQ(spy.take(), (Lines{"currentItemChanged null"}));
    // The user pans to what South holds: the remembered view no longer
    // matches.
    ASSERT_EQ(
        viewports().setViewPoint(KyGePoint3d(0.0, -10.0, 0.0), KyDiViewportService::kViewCenter),
        Kyro::eOk);
    invalidate();
    EXPECT_EQ(spy.take(), (Lines{"currentItemChanged South"}));
    checker.expectInStep();
}

class ViewCollectionsWithoutViewports : public ViewCollections {
protected:
    ViewCollectionsWithoutViewports() : ViewCollections(noViewportService()) {}
    static KyRefHostOptions noViewportService() {
        KyRefHostOptions options = onManualClock();
        options.viewportService = false;
        return options;
    }
};

TEST_F(ViewCollectionsWithoutViewports, AnyViewMatchesSoTheLastIsCurrentAndNoneCanBeShown) {
    addView(L"North", {0.0, 10.0, 0.0});
    addView(L"South", {0.0, -10.0, 0.0});
    KyDiObservableCollection* views = known(L"NAMEDVIEWS");
    EXPECT_EQ(kytest::itemName(views->getCurrentItem()), "South");
    pass();
    ContractChecker checker(views, "NAMEDVIEWS");
    CollectionSpy spy(views);
    views->setCurrentItem(item(views, "North"));
    invalidate();
    EXPECT_EQ(spy.take(), Lines{});
    EXPECT_EQ(kytest::itemName(views->getCurrentItem()), "South");
    checker.expectInStep();
}

}  // namespace
