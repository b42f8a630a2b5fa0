// The view a viewport shows in drawing files: the target, direction, lens
// length and visual style of viewport entities, viewport configurations and
// views read into
// their objects and written back, and values the drawing can't take refused
// at their own path.
#include <gtest/gtest.h>

#include "DrawingTestSupport.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbViewTableRecord.h"
#include "db/KyDbViewport.h"
#include "db/KyDbViewportTableRecord.h"
#include "db/KyDbVisualStyle.h"

using namespace drawingio;

namespace {

// The small drawing with a paper and a window on its layout, the active
// configuration and a named view, each with the members given.
KyRefJson withViews(const KyRefJson& window, const KyRefJson& active, const KyRefJson& view) {
    KyRefJson document = smallDrawing();
    KyRefJson& entities = document["blocks"][1]["entities"];
    entities.push_back({{"type", "VIEWPORT"},
                        {"handle", "40"},
                        {"center", {210, 148.5}},
                        {"width", 420},
                        {"height", 297},
                        {"viewCenter", {210, 148.5}},
                        {"viewHeight", 297}});
    KyRefJson entity = {{"type", "VIEWPORT"}, {"handle", "41"}, {"center", {100, 100}},
                        {"width", 100},       {"height", 80},   {"viewCenter", {0, 0}},
                        {"viewHeight", 50}};
    if (window.is_object()) {
        entity.update(window);
    }
    entities.push_back(entity);
    KyRefJson record = {{"handle", "49"}, {"name", "*Active"}};
    if (active.is_object()) {
        record.update(active);
    }
    document["viewports"] = KyRefJson::array({record});
    KyRefJson named = {{"handle", "42"}, {"name", "North"}};
    if (view.is_object()) {
        named.update(view);
    }
    document["views"] = KyRefJson::array({named});
    return document;
}

KyDbObjectId idOf(KyDbDatabase* db, std::uint64_t handle) {
    KyDbObjectId id;
    db->getKyDbObjectId(id, KyDbHandle(handle));
    return id;
}

std::string errorOf(const KyRefJson& document) {
    const Reading reading = read(document);
    EXPECT_EQ(reading.db, nullptr) << "the drawing was read";
    return reading.error;
}

TEST(DrawingViews, TheViewMembersAreReadIntoTheirObjectsAndWrittenBackAsTheyWere) {
    const KyRefJson original = withViews(
        {{"target", {5, 5, 0}}, {"direction", {1, -1, 1}}, {"lensLength", 35}},
        {{"center", {50, 30}},
         {"height", 90},
         {"width", 120},
         {"target", {50, 30, 0}},
         {"direction", {0, -1, 1}},
         {"lensLength", 24.5},
         {"visualStyle", "Conceptual"}},
        {{"center", {2, 3}}, {"height", 4}, {"lensLength", 85}, {"visualStyle", "Hidden"}});
    const Reading reading = read(original);
    ASSERT_NE(reading.db, nullptr) << reading.error;
    KyDbDatabase* db = reading.db.get();
    {
        KyDbObjectPointer<KyDbViewport> window(idOf(db, 0x41), KyDb::kForRead);
        EXPECT_EQ(window->viewTarget(), KyGePoint3d(5, 5, 0));
        EXPECT_EQ(window->viewDirection(), KyGePoint3d(1, -1, 1));
        EXPECT_EQ(window->lensLength(), 35.0);
        KyDbObjectPointer<KyDbViewport> paper(idOf(db, 0x40), KyDb::kForRead);
        EXPECT_EQ(paper->viewDirection(), KyGePoint3d(0, 0, 1)) << "the default: a plan";
        EXPECT_EQ(paper->lensLength(), 50.0);
        KyDbObjectPointer<KyDbViewportTableRecord> active(idOf(db, 0x49), KyDb::kForRead);
        EXPECT_EQ(active->width(), 120.0);
        EXPECT_EQ(active->target(), KyGePoint3d(50, 30, 0));
        EXPECT_EQ(active->viewDirection(), KyGePoint3d(0, -1, 1));
        EXPECT_EQ(active->lensLength(), 24.5);
        KyDbObjectPointer<KyDbVisualStyle> shown(active->visualStyleId(), KyDb::kForRead);
        ASSERT_TRUE(shown);
        EXPECT_STREQ(shown->name(), L"Conceptual");
        KyDbObjectPointer<KyDbViewTableRecord> view(idOf(db, 0x42), KyDb::kForRead);
        EXPECT_EQ(view->lensLength(), 85.0);
        EXPECT_FALSE(view->visualStyleId().isNull());
        EXPECT_TRUE(paper->visualStyleId().isNull()) << "the default style";
    }
    const KyRefJson saved = save(db);
    EXPECT_TRUE(unordered(saved) == unordered(original))
        << nlohmann::json::diff(unordered(original), unordered(saved));
}

TEST(DrawingViews, AViewTheDrawingCantTakeIsRefusedAtItsPath) {
    EXPECT_EQ(errorOf(withViews({{"direction", {0, 0, 0}}}, {}, {})),
              "blocks[1].entities[1].direction: expected a direction other than [0, 0, 0]; the "
              "drawing refused it as a value the drawing can't take");
    EXPECT_EQ(errorOf(withViews({{"lensLength", 0}}, {}, {})),
              "blocks[1].entities[1].lensLength: expected a positive lens length; the drawing "
              "refused it as a value the drawing can't take");
    EXPECT_EQ(errorOf(withViews({}, {{"lensLength", -50}}, {})),
              "viewports[0].lensLength: expected a positive lens length; the drawing refused it "
              "as a value the drawing can't take");
    EXPECT_EQ(errorOf(withViews({}, {}, {{"lensLength", "long"}})),
              "views[0].lensLength: expected a number, found a string");
    EXPECT_EQ(errorOf(withViews({}, {{"visualStyle", "Moonlight"}}, {})),
              "viewports[0].visualStyle: expected the name of a visual style, found \"Moonlight\", "
              "which the drawing does not have");
}

}  // namespace
