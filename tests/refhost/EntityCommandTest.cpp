// LINE, CIRCLE, POINT, TEXT and -INSERT draw in the current space with the
// drawing's current properties, are taken back by U, and draw nothing when
// an answer is no point or no number in range, or the command is cancelled.
#include <algorithm>
#include <string>

#include "DrawingContent.h"
#include "RefHostTestSupport.h"
#include "db/KyDbBlockReference.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbCircle.h"
#include "db/KyDbLine.h"
#include "db/KyDbPoint.h"
#include "db/KyDbText.h"
#include "db/KyDbTextStyleTableRecord.h"
#include "db/KyDbViewport.h"

namespace refhost {
namespace {

class EntityCommandTest : public RefHostTest {
protected:
    EntityCommandTest() : content(db()), walls(addLayer(L"Walls")) {}

    std::vector<KyDbObjectId> drawn() const {
        return DrawingContent::entitiesOf(content.modelSpaceId());
    }

    // Runs `text` and expects it to end at the command prompt.
    void runToEnd(const wchar_t* text) {
        run(text);
        EXPECT_TRUE(host->commandNames().isEmpty()) << utf8(text);
    }

    DrawingContent content;
    KyDbObjectId walls;
};

TEST_F(EntityCommandTest, LineDrawsASegmentFromEachPointToTheNext) {
    runToEnd(L"LINE\n0,0\n10,0\n10,10,5\n\n");
    const std::vector<KyDbObjectId> lines = drawn();
    ASSERT_EQ(lines.size(), 2u);
    const KyDbObjectPointer<KyDbLine> first(lines[0], KyDb::kForRead);
    const KyDbObjectPointer<KyDbLine> second(lines[1], KyDb::kForRead);
    ASSERT_TRUE(first && second);
    EXPECT_EQ(first->startPoint(), KyGePoint3d(0, 0, 0));
    EXPECT_EQ(first->endPoint(), KyGePoint3d(10, 0, 0));
    EXPECT_EQ(second->startPoint(), KyGePoint3d(10, 0, 0));
    EXPECT_EQ(second->endPoint(), KyGePoint3d(10, 10, 5));
    EXPECT_EQ(takeLog(),
              (Lines{"Command: LINE", "Specify first point: 0,0", "Specify next point: 10,0",
                     "Specify next point: 10,10,5", "Specify next point: "}));
    EXPECT_EQ(spy.take(),
              (Lines{"commandWillStart LINE", "commandEnded LINE", "refreshNeeded false"}));
}

TEST_F(EntityCommandTest, NewEntitiesTakeTheCurrentProperties) {
    runToEnd(
        L"CLAYER\nWalls\nCECOLOR\n1\nCELWEIGHT\n35\nCETRANSPARENCY\n40\nCELTYPE\nContinuous\n");
    runToEnd(L"CIRCLE\n5,5\n2.5\n");
    const std::vector<KyDbObjectId> ids = drawn();
    ASSERT_EQ(ids.size(), 1u);
    const KyDbObjectPointer<KyDbCircle> circle(ids[0], KyDb::kForRead);
    ASSERT_TRUE(circle);
    EXPECT_EQ(circle->center(), KyGePoint3d(5, 5, 0));
    EXPECT_DOUBLE_EQ(circle->radius(), 2.5);
    EXPECT_EQ(circle->layerId(), walls);
    EXPECT_EQ(circle->color().colorIndex(), 1);
    EXPECT_EQ(circle->lineWeight(), KyDb::kLnWt035);
    EXPECT_EQ(circle->transparency(), db()->cetransparency());
    EXPECT_FALSE(circle->transparency().isByLayer());
    EXPECT_EQ(circle->linetypeId(), db()->celtype());
}

TEST_F(EntityCommandTest, TextTakesTheCurrentStyleAndItsDefaults) {
    const KyDbObjectId mono =
        content.addRecord<KyDbTextStyleTableRecord>(db()->textStyleTableId(), L"Mono");
    runToEnd(L"TEXTSTYLE\nMono\nTEXT\n1,2\n\n45\nHello, world\n");
    const std::vector<KyDbObjectId> ids = drawn();
    ASSERT_EQ(ids.size(), 1u);
    const KyDbObjectPointer<KyDbText> text(ids[0], KyDb::kForRead);
    ASSERT_TRUE(text);
    EXPECT_EQ(text->position(), KyGePoint3d(1, 2, 0));
    EXPECT_DOUBLE_EQ(text->height(), 2.5) << "TEXTSIZE";
    EXPECT_DOUBLE_EQ(text->rotation(), 45.0);
    EXPECT_EQ(text->textString(), L"Hello, world");
    EXPECT_EQ(text->textStyle(), mono);
    const Lines log = takeLog();
    EXPECT_EQ(log[3], "Current text style: \"Mono\"  Text height: 2.5000");
    EXPECT_EQ(log[5], "Specify height <2.5000>: ");
}

TEST_F(EntityCommandTest, PointAndInsertDrawAndUTakesTheLastBack) {
    const KyDbObjectId door =
        content.addRecord<KyDbBlockTableRecord>(db()->blockTableId(), L"Door");
    runToEnd(L"POINT\n1,2,3\n-INSERT\ndoor\n5,0\n2\n90\n");
    std::vector<KyDbObjectId> ids = drawn();
    ASSERT_EQ(ids.size(), 2u);
    EXPECT_EQ(KyDbObjectPointer<KyDbPoint>(ids[0], KyDb::kForRead)->position(),
              KyGePoint3d(1, 2, 3));
    {
        const KyDbObjectPointer<KyDbBlockReference> reference(ids[1], KyDb::kForRead);
        ASSERT_TRUE(reference);
        EXPECT_EQ(reference->blockTableRecord(), door);
        EXPECT_EQ(reference->position(), KyGePoint3d(5, 0, 0));
        EXPECT_EQ(reference->scaleFactors(), KyGePoint3d(2, 2, 2));
        EXPECT_DOUBLE_EQ(reference->rotation(), 90.0);
    }
    run(L"U\n");
    ids = drawn();
    ASSERT_EQ(ids.size(), 1u);
    EXPECT_EQ(takeLog().back(), "Undone: -INSERT");
}

TEST_F(EntityCommandTest, OnTheSheetOfALayoutEntitiesGoToPaperSpace) {
    for (int i = 0; i < 2; ++i) {
        content.addEntityTo<KyDbViewport>(content.paperSpaceId(), [](KyDbViewport&) {});
    }
    runToEnd(L"TILEMODE\n0\nCVPORT\n1\nPOINT\n0,0\n");
    EXPECT_TRUE(drawn().empty());
    EXPECT_EQ(DrawingContent::entitiesOf(content.paperSpaceId()).size(), 3u);
    runToEnd(L"CVPORT\n2\nPOINT\n0,0\n");
    EXPECT_EQ(drawn().size(), 1u) << "through a viewport of the layout";
}

TEST_F(EntityCommandTest, AnAnswerItCantTakeDrawsNothingAndEndsAtNoPrompt) {
    content.addRecord<KyDbBlockTableRecord>(db()->blockTableId(), L"Door");
    const std::pair<const wchar_t*, const char*> cases[] = {
        {L"LINE\n0,0\n10,0\nten,0\n", "Invalid point \"ten,0\"."},
        {L"LINE\n0,0\n1,2,3,4\n", "Invalid point \"1,2,3,4\"."},
        {L"POINT\n5\n", "Invalid point \"5\"."},
        {L"CIRCLE\n\n", "Requires a point."},
        {L"CIRCLE\n0,0\n-1\n", "Requires a positive number."},
        {L"CIRCLE\n0,0\nwide\n", "Requires a number."},
        {L"TEXT\n0,0\n0\n", "Requires a positive number."},
        {L"-INSERT\nWindow\n", "Cannot find block \"Window\"."},
        {L"-INSERT\n*Model_Space\n", "The block \"*Model_Space\" can't be inserted."},
        {L"-INSERT\nDoor\n0,0\n0\n", "Requires a number other than zero."},
        {L"LINE\n0,0\n10,0\n\x03", "Specify next point: *Cancel*"},
    };
    for (const auto& [text, error] : cases) {
        runToEnd(text);
        EXPECT_EQ(takeLog().back(), error);
        EXPECT_TRUE(drawn().empty()) << error;
        const Lines events = spy.take();
        ASSERT_FALSE(events.empty());
        EXPECT_EQ(events.back(), "refreshNeeded false");
        EXPECT_EQ(std::count_if(
                      events.begin(), events.end(),
                      [](const std::string& event) { return event.rfind("commandEnded", 0) == 0; }),
                  0)
            << error;
    }
}

}  // namespace
}  // namespace refhost
