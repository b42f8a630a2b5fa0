// Hatches and regions: the area of a union of regions against areas worked
// out by hand (overlaps, touching shapes, holes that another shape covers,
// crossing edges, degenerate loops), what a hatch refuses, its region, its
// members through reflection, and a change of its loops through undo.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "DbTestSupport.h"
#include "base/KyRxResourceInstance.h"
#include "db/KyDbCircle.h"
#include "db/KyDbHatch.h"
#include "db/KyDbRegion.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"
#include "rx/KyRxStandardAttributes.h"

namespace dbtest {
namespace {

KyDbLoop loop(std::initializer_list<KyGePoint3d> points) {
    KyDbLoop out;
    for (const KyGePoint3d& point : points) {
        out.append(point);
    }
    return out;
}

KyDbLoop rectangle(double x0, double y0, double x1, double y1) {
    return loop({{x0, y0, 0}, {x1, y0, 0}, {x1, y1, 0}, {x0, y1, 0}});
}

KyDbLoopArray loops(std::initializer_list<KyDbLoop> list) {
    KyDbLoopArray out;
    for (const KyDbLoop& item : list) {
        out.append(item);
    }
    return out;
}

// A region of one shape.
std::unique_ptr<KyDbRegion> region(std::initializer_list<KyDbLoop> list) {
    auto out = std::make_unique<KyDbRegion>();
    EXPECT_EQ(out->addShape(loops(list)), Kyro::eOk);
    return out;
}

// The area of the union of the regions, united one by one into the first.
double unionArea(std::initializer_list<KyDbRegion*> regions) {
    KyDbRegion* sum = *regions.begin();
    for (KyDbRegion* other : regions) {
        if (other != sum) {
            EXPECT_EQ(sum->booleanOper(KyDb::kBoolUnite, other), Kyro::eOk);
        }
    }
    double area = -1.0;
    EXPECT_EQ(sum->getArea(area), Kyro::eOk);
    return area;
}

constexpr double kExact = 1e-9;

TEST(RegionArea, OverlapsCountOnceAndTouchingShapesCountWhole) {
    auto a = region({rectangle(0, 0, 2, 2)});
    auto b = region({rectangle(1, 1, 3, 3)});
    EXPECT_NEAR(unionArea({a.get(), b.get()}), 7.0, kExact) << "4 + 4 less the overlap of 1";
    EXPECT_NEAR(b->area(), 4.0, kExact) << "the other region stays as it was";

    auto left = region({rectangle(0, 0, 1, 1)});
    auto right = region({rectangle(1, 0, 2, 1)});
    auto corner = region({rectangle(2, 1, 3, 2)});
    EXPECT_NEAR(unionArea({left.get(), right.get(), corner.get()}), 3.0, kExact)
        << "along an edge and at a corner";

    // Edges on one line that overlap in part: the two slabs join, and a
    // shape whose edge lies on another's counts beside it.
    auto wide = region({rectangle(0, 0, 2, 1)});
    auto shifted = region({rectangle(1, 0, 3, 1)});
    auto above = region({rectangle(1, 1, 3, 2)});
    EXPECT_NEAR(unionArea({wide.get(), shifted.get(), above.get()}), 5.0, kExact);

    auto same = region({rectangle(0, 0, 2, 2)});
    auto twin = region({rectangle(0, 0, 2, 2)});
    EXPECT_NEAR(unionArea({same.get(), twin.get(), same.get()}), 4.0, kExact)
        << "a region united with itself or its twin";
}

TEST(RegionArea, AHoleCountsAsCoveredWhereAnotherRegionCoversIt) {
    // 16 less the hole of 4.
    auto holed = region({rectangle(0, 0, 4, 4), rectangle(1, 1, 3, 3)});
    EXPECT_NEAR(holed->area(), 12.0, kExact);
    // Half in the hole (2), half on the solid part (2), a third outside (2).
    auto across = region({rectangle(2, 1, 5, 3)});
    EXPECT_NEAR(unionArea({holed.get(), across.get()}), 16.0, kExact);

    auto plugged = region({rectangle(0, 0, 4, 4), rectangle(1, 1, 3, 3)});
    auto plug = region({rectangle(1, 1, 3, 3)});
    EXPECT_NEAR(unionArea({plugged.get(), plug.get()}), 16.0, kExact);

    // Holes that overlap cut out their union; a hole running out of its outer
    // loop cuts out only what lies inside it; either way round is a hole.
    auto twoHoles = region({rectangle(0, 0, 4, 4), rectangle(1, 1, 3, 3),
                            loop({{2, 2, 0}, {2, 3.5, 0}, {3.5, 3.5, 0}, {3.5, 2, 0}})});
    EXPECT_NEAR(twoHoles->area(), 16.0 - 4.0 - 2.25 + 1.0, kExact);
    auto outside = region({rectangle(0, 0, 4, 4), rectangle(3, 3, 6, 6)});
    EXPECT_NEAR(outside->area(), 15.0, kExact);
}

TEST(RegionArea, EdgesThatCrossBetweenVerticesAreCutThere) {
    // The triangle's long edge crosses the square's top at x = 1, where no
    // vertex lies: 4 + 4.5 less the corner of 0.5 they share.
    auto square = region({rectangle(0, 0, 2, 2)});
    auto triangle = region({loop({{0, 3, 0}, {3, 0, 0}, {3, 3, 0}})});
    EXPECT_NEAR(unionArea({square.get(), triangle.get()}), 8.0, kExact);

    // A diamond over a square's right edge: half of it inside.
    auto base = region({rectangle(0, 0, 2, 2)});
    auto diamond = region({loop({{1, 1, 0}, {2, 0, 0}, {3, 1, 0}, {2, 2, 0}})});
    EXPECT_NEAR(unionArea({base.get(), diamond.get()}), 5.0, kExact);

    // A loop that crosses itself covers its two lobes (even-odd): 1 + 1.
    auto bowTie = region({loop({{0, 0, 0}, {2, 2, 0}, {2, 0, 0}, {0, 2, 0}})});
    EXPECT_NEAR(bowTie->area(), 2.0, kExact);

    // The same a tenth the size, where the crossing at 0.1 is no binary
    // fraction.
    auto small = region({rectangle(0, 0, 0.2, 0.2)});
    auto smallTriangle = region({loop({{0, 0.3, 0}, {0.3, 0, 0}, {0.3, 0.3, 0}})});
    EXPECT_NEAR(unionArea({small.get(), smallTriangle.get()}), 0.08, kExact);
}

TEST(RegionArea, DegenerateLoopsCoverNothing) {
    auto line = region({loop({{0, 0, 0}, {1, 1, 0}, {2, 2, 0}})});
    EXPECT_NEAR(line->area(), 0.0, kExact);
    auto repeated = region({loop({{1, 1, 0}, {1, 1, 0}, {1, 1, 0}})});
    EXPECT_NEAR(repeated->area(), 0.0, kExact);
    auto square = region({rectangle(0, 0, 2, 2), loop({{0.5, 0.5, 0}, {1, 1, 0}, {1.5, 1.5, 0}})});
    EXPECT_NEAR(unionArea({square.get(), line.get(), repeated.get()}), 4.0, kExact)
        << "a flat hole cuts nothing out, a flat region adds nothing";
    EXPECT_NEAR(KyDbRegion().area(), 0.0, kExact);

    // Points above the plan count where they stand in plan.
    auto raised = region({loop({{0, 0, 5}, {2, 0, 5}, {2, 2, 9}, {0, 2, 9}})});
    EXPECT_NEAR(raised->area(), 4.0, kExact);
}

TEST(RegionArea, WhatARegionRefuses) {
    KyDbRegion empty;
    EXPECT_EQ(empty.addShape(KyDbLoopArray()), Kyro::eInvalidInput);
    EXPECT_EQ(empty.addShape(loops({rectangle(0, 0, 1, 1), loop({{0, 0, 0}, {1, 1, 0}})})),
              Kyro::eInvalidInput);
    EXPECT_TRUE(empty.isEmpty()) << "a refused shape changes nothing";

    auto square = region({rectangle(0, 0, 1, 1)});
    auto other = region({rectangle(5, 5, 6, 6)});
    EXPECT_EQ(square->booleanOper(KyDb::kBoolUnite, nullptr), Kyro::eInvalidInput);
    EXPECT_EQ(square->booleanOper(KyDb::kBoolIntersect, other.get()), Kyro::eNotImplementedYet);
    EXPECT_EQ(square->booleanOper(KyDb::kBoolSubtract, other.get()), Kyro::eNotImplementedYet);
    EXPECT_EQ(square->numShapes(), 1);
    EXPECT_EQ(square->booleanOper(KyDb::kBoolUnite, other.get()), Kyro::eOk);
    EXPECT_EQ(square->numShapes(), 2);
    KyDbLoopArray second;
    ASSERT_EQ(square->getShapeAt(1, second), Kyro::eOk);
    EXPECT_EQ(second[0].first(), KyGePoint3d(5, 5, 0));
    EXPECT_EQ(square->getShapeAt(2, second), Kyro::eInvalidIndex);
}

class HatchTest : public DbTest {
protected:
    // A hatch in model space: a 10 by 10 square with a hole of 2 by 2.
    KyDbObjectId addHatch(double x, double y) {
        auto* hatch = new KyDbHatch();
        EXPECT_EQ(hatch->setLoops(loops(
                      {rectangle(x, y, x + 10, y + 10), rectangle(x + 1, y + 1, x + 3, y + 3)})),
                  Kyro::eOk);
        return addEntity(hatch);
    }

    static const KyRxProperty* property(const KyRxObject* object, const wchar_t* name) {
        KyRxMemberQueryEngine* engine = KyRxMemberQueryEngine::theEngine();
        return kyrxCast<KyRxProperty>(engine->find(object, name, engine->promotingContext()));
    }

    template <typename T>
    static const T* attributeOf(const KyRxMember* member) {
        return static_cast<const T*>(member->attributes().get(T::desc()));
    }
};

TEST_F(HatchTest, AHatchKeepsItsLoopsAndGivesTheirRegion) {
    KyDbHatch hatch;
    EXPECT_EQ(hatch.patternName(), KyString(L"SOLID"));
    EXPECT_EQ(hatch.getRegionArea(), nullptr) << "no loops, no region";
    EXPECT_DOUBLE_EQ(hatch.area(), 0.0);

    EXPECT_EQ(hatch.appendLoop(rectangle(0, 0, 4, 4)), Kyro::eOk);
    EXPECT_EQ(hatch.appendLoop(loop({{1, 1, 0}, {2, 2, 0}})), Kyro::eInvalidInput);
    EXPECT_EQ(hatch.setLoops(loops({rectangle(0, 0, 4, 4), KyDbLoop()})), Kyro::eInvalidInput);
    EXPECT_EQ(hatch.setPatternName(L""), Kyro::eInvalidInput);
    EXPECT_EQ(hatch.setPatternName(nullptr), Kyro::eInvalidInput);
    EXPECT_EQ(hatch.patternName(), KyString(L"SOLID"));
    EXPECT_EQ(hatch.appendLoop(rectangle(1, 1, 2, 3)), Kyro::eOk);
    EXPECT_EQ(hatch.numLoops(), 2);
    EXPECT_DOUBLE_EQ(hatch.area(), 14.0);

    const std::unique_ptr<KyDbRegion> region(hatch.getRegionArea());
    ASSERT_NE(region, nullptr);
    EXPECT_FALSE(region->isDatabaseResident());
    EXPECT_EQ(region->numShapes(), 1);
    double area = 0.0;
    EXPECT_EQ(region->getArea(area), Kyro::eOk);
    EXPECT_DOUBLE_EQ(area, 14.0);

    EXPECT_EQ(hatch.removeLoopAt(2), Kyro::eInvalidIndex);
    EXPECT_EQ(hatch.removeLoopAt(1), Kyro::eOk);
    EXPECT_DOUBLE_EQ(hatch.area(), 16.0);
}

// As a palette sums the area of a selection: each hatch open for read gives
// its region, united into the first.
TEST_F(HatchTest, TheRegionsOfOverlappingHatchesUniteToTheirCoveredArea) {
    const KyDbObjectId first = addHatch(0, 0);
    const KyDbObjectId second = addHatch(5, 5);
    std::unique_ptr<KyDbRegion> sum;
    for (const KyDbObjectId id : {first, second}) {
        KyDbObjectPointer<KyDbHatch> hatch(id, KyDb::kForRead);
        ASSERT_EQ(hatch.openStatus(), Kyro::eOk);
        std::unique_ptr<KyDbRegion> region(hatch->getRegionArea());
        ASSERT_NE(region, nullptr);
        if (!sum) {
            sum = std::move(region);
        } else {
            EXPECT_EQ(sum->booleanOper(KyDb::kBoolUnite, region.get()), Kyro::eOk);
        }
    }
    double area = 0.0;
    ASSERT_EQ(sum->getArea(area), Kyro::eOk);
    // Each 96. The square from (5, 5) to (10, 10) lies in both, and the
    // second's hole in it is covered by the first: they share 25 less 4.
    EXPECT_NEAR(area, 96.0 + 96.0 - 25.0 + 4.0, kExact);
    EXPECT_EQ(kydbOpenObjectCount(), 0);
}

TEST_F(HatchTest, APaletteShowsThePatternAndTheAreaThatAddsUp) {
    const KyDbObjectId id = addHatch(0, 0);
    KyDbObjectPointer<KyDbHatch> hatch(id, KyDb::kForRead);
    const KyRxProperty* pattern = property(hatch.object(), L"PatternName");
    const KyRxProperty* area = property(hatch.object(), L"Area");
    const KyRxProperty* count = property(hatch.object(), L"NumLoops");
    ASSERT_NE(pattern, nullptr);
    ASSERT_NE(area, nullptr);
    ASSERT_NE(count, nullptr);

    KyRxValue value;
    ASSERT_EQ(area->getValue(hatch.object(), value), Kyro::eOk);
    EXPECT_EQ(value, KyRxValue(96.0));
    ASSERT_EQ(count->getValue(hatch.object(), value), Kyro::eOk);
    EXPECT_EQ(value, KyRxValue(2));
    EXPECT_TRUE(area->isReadOnly());
    EXPECT_NE(attributeOf<KyRxCumulativeAttribute>(area), nullptr);
    EXPECT_STREQ(attributeOf<KyRxUiPlacementAttribute>(area)->category(), L"Geometry");
    EXPECT_STREQ(attributeOf<KyRxUiPlacementAttribute>(pattern)->category(), L"Pattern");
    EXPECT_EQ(attributeOf<KyRxCumulativeAttribute>(pattern), nullptr);
    KyDbCircle circle;
    EXPECT_EQ(attributeOf<KyRxCumulativeAttribute>(property(&circle, L"Area")), nullptr)
        << "only the areas of hatches are summed";

    EXPECT_EQ(pattern->setValue(hatch.object(), KyRxValue(KyString(L"ANSI31"))),
              Kyro::eWasNotOpenForWrite);
    hatch.close();
    KyDbObjectPointer<KyDbHatch> writable(id, KyDb::kForWrite);
    EXPECT_EQ(pattern->setValue(writable.object(), KyRxValue(KyString(L"ANSI31"))), Kyro::eOk);
    EXPECT_EQ(pattern->setValue(writable.object(), KyRxValue(KyString(L""))), Kyro::eInvalidInput);
    EXPECT_EQ(writable->patternName(), KyString(L"ANSI31"));

    EXPECT_EQ(KyRxLocalizedNameAttribute::getLocalizedName(KyDbHatch::desc()).utf8(), "Hatch");
    KyRxResourceInstance::setLanguage(L"de");
    EXPECT_EQ(KyRxLocalizedNameAttribute::getLocalizedName(KyDbHatch::desc()).utf8(), "Schraffur");
    EXPECT_EQ(pattern->localName().utf8(), "Mustername");
    KyRxResourceInstance::setLanguage(L"");
}

TEST_F(HatchTest, AChangeOfTheLoopsIsUndoneAndRedoneWhole) {
    const KyDbObjectId id = addHatch(0, 0);
    ObjectSpy spy(log);
    watch(id, &spy);
    ASSERT_EQ(undo()->beginUndoGroup(), Kyro::eOk);
    {
        KyDbObjectPointer<KyDbHatch> hatch(id, KyDb::kForWrite);
        ASSERT_EQ(hatch->setLoops(loops({rectangle(0, 0, 3, 3)})), Kyro::eOk);
        ASSERT_EQ(hatch->setPatternName(L"ANSI31"), Kyro::eOk);
        ASSERT_EQ(hatch->setLoops(loops({rectangle(0, 0, 3, 3)})), Kyro::eOk) << "an equal write";
    }
    ASSERT_EQ(undo()->endUndoGroup(), Kyro::eOk);
    EXPECT_EQ(log.lines(),
              (Lines{"openedForModify KyDbHatch", "modified KyDbHatch", "objectClosed KyDbHatch"}));
    log.clear();

    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_EQ(log.lines(),
              (Lines{"modifyUndone KyDbHatch", "modified KyDbHatch", "objectClosed KyDbHatch"}));
    {
        KyDbObjectPointer<KyDbHatch> hatch(id, KyDb::kForRead);
        EXPECT_EQ(hatch->numLoops(), 2);
        EXPECT_EQ(hatch->loops()[1].first(), KyGePoint3d(1, 1, 0));
        EXPECT_EQ(hatch->patternName(), KyString(L"SOLID"));
        EXPECT_DOUBLE_EQ(hatch->area(), 96.0);
    }
    ASSERT_EQ(undo()->redo(), Kyro::eOk);
    KyDbObjectPointer<KyDbHatch> hatch(id, KyDb::kForRead);
    EXPECT_EQ(hatch->numLoops(), 1);
    EXPECT_DOUBLE_EQ(hatch->area(), 9.0);
    EXPECT_EQ(hatch->patternName(), KyString(L"ANSI31"));

    // A hatch of the database open for read refuses changes, and so does a
    // region there.
    EXPECT_EQ(hatch->appendLoop(rectangle(0, 0, 1, 1)), Kyro::eWasNotOpenForWrite);
    const KyDbObjectId regionId = addEntity(new KyDbRegion());
    KyDbObjectPointer<KyDbRegion> placed(regionId, KyDb::kForRead);
    KyDbRegion other;
    EXPECT_EQ(placed->booleanOper(KyDb::kBoolUnite, &other), Kyro::eWasNotOpenForWrite);
}

}  // namespace
}  // namespace dbtest
