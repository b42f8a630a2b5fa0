// Paper space viewports: the paper is the first viewport of its layout,
// layers frozen in one viewport alone, the clip boundary, the view a viewport
// and a viewport configuration show, and the undo of each.
#include <gtest/gtest.h>

#include <cmath>

#include "DbTestSupport.h"
#include "db/KyDbLine.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbViewport.h"
#include "db/KyDbViewportTableRecord.h"
#include "db/KyDbVisualStyle.h"

namespace dbtest {
namespace {

class ViewportTest : public DbTest {
protected:
    ViewportTest()
        : walls(addLayer(L"Walls")),
          doors(addLayer(L"Doors")),
          paper(addEntity(new KyDbViewport(), L"*Paper_Space")),
          line(addEntity(new KyDbLine(), L"*Paper_Space")),
          window(addEntity(new KyDbViewport(), L"*Paper_Space")) {}

    static KyArray<KyDbObjectId> ids(std::initializer_list<KyDbObjectId> list) {
        KyArray<KyDbObjectId> array;
        for (KyDbObjectId id : list) {
            array.append(id);
        }
        return array;
    }

    // Runs `change` on the window opened for write; answers its status.
    template <typename Change>
    Kyro::ErrorStatus changeWindow(Change change) {
        KyDbObjectPointer<KyDbViewport> viewport(window, KyDb::kForWrite);
        return viewport ? change(viewport.object()) : viewport.openStatus();
    }

    KyArray<KyDbObjectId> frozenInWindow() const {
        KyDbObjectPointer<KyDbViewport> viewport(window, KyDb::kForRead);
        KyArray<KyDbObjectId> list;
        viewport->getFrozenLayerList(list);
        return list;
    }

    int numberOf(KyDbObjectId id) const {
        KyDbObjectPointer<KyDbViewport> viewport(id, KyDb::kForRead, true);
        return viewport->number();
    }

    KyDbObjectId walls;
    KyDbObjectId doors;
    KyDbObjectId paper;
    KyDbObjectId line;
    KyDbObjectId window;
};

TEST_F(ViewportTest, ThePaperIsTheFirstViewportOfALayout) {
    EXPECT_EQ(numberOf(paper), 1);
    EXPECT_EQ(numberOf(window), 2) << "other entities between them don't count";
    {
        KyDbObjectPointer<KyDbViewport> viewport(paper, KyDb::kForRead);
        EXPECT_TRUE(viewport->isPaperViewport());
    }
    const KyDbObjectId inModel = addEntity(new KyDbViewport());
    EXPECT_EQ(numberOf(inModel), 0) << "model space has no paper";
    KyDbViewport loose;
    EXPECT_EQ(loose.number(), 0);

    ASSERT_EQ(setErased(paper, true), Kyro::eOk);
    EXPECT_EQ(numberOf(window), 1) << "an erased viewport leaves the count";
    EXPECT_EQ(numberOf(paper), 0);
}

TEST_F(ViewportTest, LayersFreezeAndThawInOneViewportAlone) {
    ASSERT_EQ(changeWindow([&](KyDbViewport* viewport) {
                  return viewport->freezeLayersInViewport(ids({doors, walls, doors}));
              }),
              Kyro::eOk);
    EXPECT_EQ(frozenInWindow(), ids({doors, walls})) << "in the order frozen, each once";
    {
        KyDbObjectPointer<KyDbViewport> other(paper, KyDb::kForRead);
        EXPECT_FALSE(other->isLayerFrozenInViewport(walls));
        KyDbObjectPointer<KyDbViewport> viewport(window, KyDb::kForRead);
        EXPECT_TRUE(viewport->isLayerFrozenInViewport(walls));
    }

    ASSERT_EQ(changeWindow([&](KyDbViewport* viewport) {
                  return viewport->thawLayersInViewport(ids({walls, line}));
              }),
              Kyro::eOk);
    EXPECT_EQ(frozenInWindow(), ids({doors}));

    ASSERT_EQ(setErased(doors, true), Kyro::eOk);
    EXPECT_TRUE(frozenInWindow().isEmpty()) << "an erased layer is not listed";
    ASSERT_EQ(setErased(doors, false), Kyro::eOk);
    EXPECT_EQ(frozenInWindow(), ids({doors}));
}

TEST_F(ViewportTest, OnlyLayersFreezeAndARefusalChangesNothing) {
    ObjectSpy spy(log);
    watch(window, &spy);
    EXPECT_EQ(changeWindow([&](KyDbViewport* viewport) {
                  return viewport->freezeLayersInViewport(ids({walls, line}));
              }),
              Kyro::eNotThatKindOfClass);
    EXPECT_EQ(changeWindow([&](KyDbViewport* viewport) {
                  return viewport->thawLayersInViewport(ids({walls}));
              }),
              Kyro::eOk);
    EXPECT_TRUE(frozenInWindow().isEmpty());
    EXPECT_TRUE(log.lines().empty()) << "nothing frozen, nothing thawed, nothing told";

    KyDbObjectPointer<KyDbViewport> viewport(window, KyDb::kForRead);
    EXPECT_EQ(viewport->freezeLayersInViewport(ids({walls})), Kyro::eWasNotOpenForWrite);
}

TEST_F(ViewportTest, FreezingIsUndoneWithTheViewportsNotifications) {
    ObjectSpy spy(log);
    watch(window, &spy);
    changeWindow(
        [&](KyDbViewport* viewport) { return viewport->freezeLayersInViewport(ids({walls})); });
    EXPECT_EQ(log.lines(), (Lines{"openedForModify KyDbViewport", "modified KyDbViewport",
                                  "objectClosed KyDbViewport"}));
    log.clear();

    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_TRUE(frozenInWindow().isEmpty());
    EXPECT_EQ(log.lines(), (Lines{"modifyUndone KyDbViewport", "modified KyDbViewport",
                                  "objectClosed KyDbViewport"}));
    ASSERT_EQ(undo()->redo(), Kyro::eOk);
    EXPECT_EQ(frozenInWindow(), ids({walls}));
}

TEST_F(ViewportTest, AClipBoundaryNeedsThreePoints) {
    KyArray<KyGePoint3d> points;
    points.append(KyGePoint3d(0, 0, 0));
    points.append(KyGePoint3d(4, 0, 0));
    EXPECT_EQ(changeWindow([&](KyDbViewport* v) { return v->setNonRectClipPoints(points); }),
              Kyro::eInvalidInput);
    points.append(KyGePoint3d(2, 3, 0));
    ASSERT_EQ(changeWindow([&](KyDbViewport* v) { return v->setNonRectClipPoints(points); }),
              Kyro::eOk);
    {
        KyDbObjectPointer<KyDbViewport> viewport(window, KyDb::kForRead);
        EXPECT_TRUE(viewport->isNonRectClipOn());
        EXPECT_EQ(viewport->nonRectClipPoints().length(), 3);
    }
    ASSERT_EQ(changeWindow(
                  [](KyDbViewport* v) { return v->setNonRectClipPoints(KyArray<KyGePoint3d>()); }),
              Kyro::eOk);
    KyDbObjectPointer<KyDbViewport> viewport(window, KyDb::kForRead);
    EXPECT_FALSE(viewport->isNonRectClipOn());
}

TEST_F(ViewportTest, AVisualStyleIsOneOfTheDrawingOrNone) {
    KyDbObjectId hidden;
    {
        KyDbObjectPointer<KyDbDictionary> styles(db->visualStyleDictionaryId(), KyDb::kForRead);
        ASSERT_EQ(styles->getAt(L"Hidden", hidden), Kyro::eOk);
    }
    EXPECT_EQ(changeWindow([&](KyDbViewport* v) { return v->setVisualStyle(walls); }),
              Kyro::eNotThatKindOfClass);
    ASSERT_EQ(changeWindow([&](KyDbViewport* v) { return v->setVisualStyle(hidden); }), Kyro::eOk);
    {
        KyDbObjectPointer<KyDbViewport> viewport(window, KyDb::kForRead);
        EXPECT_EQ(viewport->visualStyleId(), hidden);
        EXPECT_TRUE(viewport->sunId().isNull());
    }
    ASSERT_EQ(changeWindow([](KyDbViewport* v) { return v->setVisualStyle(KyDbObjectId()); }),
              Kyro::eOk);
    KyDbObjectPointer<KyDbViewport> viewport(window, KyDb::kForRead);
    EXPECT_TRUE(viewport->visualStyleId().isNull());
}

TEST_F(ViewportTest, TheViewsTargetDirectionAndLensAreCheckedAndUndone) {
    {
        KyDbObjectPointer<KyDbViewport> viewport(window, KyDb::kForRead);
        EXPECT_EQ(viewport->viewTarget(), KyGePoint3d::kOrigin);
        EXPECT_EQ(viewport->viewDirection(), KyGePoint3d(0, 0, 1)) << "a plan view";
        EXPECT_EQ(viewport->lensLength(), 50.0);
    }
    ObjectSpy spy(log);
    watch(window, &spy);
    EXPECT_EQ(changeWindow([](KyDbViewport* v) { return v->setViewDirection(KyGePoint3d()); }),
              Kyro::eInvalidInput);
    for (const double length : {0.0, -35.0, static_cast<double>(INFINITY)}) {
        EXPECT_EQ(changeWindow([length](KyDbViewport* v) { return v->setLensLength(length); }),
                  Kyro::eInvalidInput);
    }
    EXPECT_TRUE(log.lines().empty()) << "a refusal changes nothing";

    ASSERT_EQ(changeWindow([](KyDbViewport* v) {
                  v->setViewTarget(KyGePoint3d(10, 20, 0));
                  v->setViewDirection(KyGePoint3d(1, -1, 1));
                  return v->setLensLength(35.0);
              }),
              Kyro::eOk);
    EXPECT_EQ(log.lines().back(), "objectClosed KyDbViewport");
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    {
        KyDbObjectPointer<KyDbViewport> viewport(window, KyDb::kForRead);
        EXPECT_EQ(viewport->viewTarget(), KyGePoint3d::kOrigin);
        EXPECT_EQ(viewport->viewDirection(), KyGePoint3d(0, 0, 1));
        EXPECT_EQ(viewport->lensLength(), 50.0);
    }
    ASSERT_EQ(undo()->redo(), Kyro::eOk);
    KyDbObjectPointer<KyDbViewport> viewport(window, KyDb::kForRead);
    EXPECT_EQ(viewport->viewTarget(), KyGePoint3d(10, 20, 0));
    EXPECT_EQ(viewport->viewDirection(), KyGePoint3d(1, -1, 1));
    EXPECT_EQ(viewport->lensLength(), 35.0);
}

TEST_F(ViewportTest, AConfigurationsLensLengthIsPositiveAndUndone) {
    KyDbObjectId active;
    {
        KyDbObjectPointer<KyDbSymbolTable> table(db->viewportTableId(), KyDb::kForWrite);
        auto* record = new KyDbViewportTableRecord();
        record->setName(L"*Active");
        ASSERT_EQ(table->add(active, record), Kyro::eOk);
        EXPECT_EQ(record->lensLength(), 50.0);
        EXPECT_EQ(record->setLensLength(0.0), Kyro::eInvalidInput);
        record->close();
    }
    {
        KyDbObjectPointer<KyDbViewportTableRecord> record(active, KyDb::kForWrite);
        ASSERT_EQ(record->setLensLength(85.0), Kyro::eOk);
    }
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    KyDbObjectPointer<KyDbViewportTableRecord> record(active, KyDb::kForRead);
    EXPECT_EQ(record->lensLength(), 50.0);
}

}  // namespace
}  // namespace dbtest
