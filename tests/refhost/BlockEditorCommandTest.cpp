// BEDIT and BCLOSE: a block of the drawing opened in the block editor and
// closed again. BLOCKEDITOR follows and is told when the command ends, the
// entity commands draw in the block meanwhile, the host's block service
// answers the block, and what can't be edited is refused with nothing
// changed. A switch of documents makes BLOCKEDITOR follow the one in front.
#include "DrawingContent.h"
#include "RefHostTestSupport.h"
#include "db/KyDbBlockTableRecord.h"

namespace refhost {
namespace {

class BlockEditorCommandTest : public RefHostTest {
protected:
    BlockEditorCommandTest() {
        door = DrawingContent(db()).addRecord<KyDbBlockTableRecord>(db()->blockTableId(), L"Door");
        spy.take();
    }

    static Lines commandEvents(const char* command, const Lines& told) {
        Lines lines{std::string("commandWillStart ") + command};
        lines.insert(lines.end(), told.begin(), told.end());
        lines.push_back(std::string("commandEnded ") + command);
        lines.push_back("refreshNeeded false");
        return lines;
    }

    KyDbObjectId beingEdited() const { return host->recentBlockService()->blockBeingEdited(); }

    KyDbObjectId door;
};

TEST_F(BlockEditorCommandTest, BeditOpensTheBlockAndBcloseClosesIt) {
    run(L"BEDIT\ndoor\n");
    EXPECT_EQ(takeLog(), (Lines{"Command: BEDIT", "Enter the name of the block to edit: door"}));
    EXPECT_EQ(spy.take(), commandEvents("BEDIT", {"sysVarChanged BLOCKEDITOR true"}));
    EXPECT_EQ(getShort(L"BLOCKEDITOR"), 1);
    EXPECT_EQ(beingEdited(), door);

    run(L"LINE\n0,0\n1,0\n\n");
    EXPECT_EQ(DrawingContent::entitiesOf(door).size(), 1u) << "drawn in the block";
    EXPECT_TRUE(DrawingContent::entitiesOf(DrawingContent(db()).modelSpaceId()).empty());
    spy.take();

    run(L"_BCLOSE\n");
    EXPECT_EQ(spy.take(), commandEvents("BCLOSE", {"sysVarChanged BLOCKEDITOR true"}));
    EXPECT_EQ(getShort(L"BLOCKEDITOR"), 0);
    EXPECT_TRUE(beingEdited().isNull());
    run(L"LINE\n0,0\n1,0\n\n");
    EXPECT_EQ(DrawingContent::entitiesOf(DrawingContent(db()).modelSpaceId()).size(), 1u);
}

TEST_F(BlockEditorCommandTest, WhatCantBeEditedIsRefusedWithNothingChanged) {
    DrawingContent(db()).addRecord<KyDbBlockTableRecord>(
        db()->blockTableId(), L"Site",
        [](KyDbBlockTableRecord& block) { block.setPathName(L"site.kyd"); });
    const std::pair<const wchar_t*, const char*> cases[] = {
        {L"BEDIT\nWindow\n", "Cannot find block \"Window\"."},
        {L"BEDIT\n*paper_space\n",
         "The block \"*Paper_Space\" is the sheet of a layout and can't be edited."},
        {L"BEDIT\n*Model_Space\n",
         "The block \"*Model_Space\" is the sheet of a layout and can't be edited."},
        {L"BEDIT\nSite\n", "The block \"Site\" is an external reference and can't be edited."},
        {L"BCLOSE\n", "No block is open for editing."},
    };
    spy.take();
    takeLog();
    for (const auto& [text, error] : cases) {
        run(text);
        EXPECT_EQ(takeLog().back(), error);
        EXPECT_EQ(getShort(L"BLOCKEDITOR"), 0) << error;
        EXPECT_EQ(spy.take().size(), 2u) << "commandWillStart and refreshNeeded: " << error;
    }

    run(L"BEDIT\nDoor\n");
    spy.take();
    run(L"BEDIT\n");
    EXPECT_EQ(takeLog().back(),
              "The block \"Door\" is open for editing: close it with BCLOSE first.");
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart BEDIT", "refreshNeeded false"}));
    EXPECT_EQ(beingEdited(), door);
}

TEST_F(BlockEditorCommandTest, BlockEditorFollowsTheDocumentInFront) {
    KyRefDocument* first = host->documents().current();
    run(L"BEDIT\nDoor\n");
    spy.take();
    KyRefDocument* second = host->documents().newDocument();
    EXPECT_EQ(getShort(L"BLOCKEDITOR"), 0);
    EXPECT_TRUE(beingEdited().isNull());
    host->documents().makeCurrent(first);
    EXPECT_EQ(getShort(L"BLOCKEDITOR"), 1);
    EXPECT_EQ(beingEdited(), door);

    host->documents().makeCurrent(second);
    host->documents().makeCurrent(first);
    host->documents().closeDocument(first);
    EXPECT_EQ(getShort(L"BLOCKEDITOR"), 0) << "its block editor went with the drawing";
    for (const std::string& line : spy.take()) {
        EXPECT_EQ(line.find("BLOCKEDITOR"), std::string::npos)
            << "a switch has no report of its own: " << line;
    }
}

}  // namespace
}  // namespace refhost
