// U, UNDO and REDO take back and make again whole commands: the variables
// and the objects they changed, with the events of a command.
#include <algorithm>

#include "RefHostTestSupport.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbObjectPointer.h"

namespace refhost {
namespace {

class UndoCommandTest : public RefHostTest {
protected:
    UndoCommandTest() { addLayer(L"Walls"); }
};

TEST_F(UndoCommandTest, URestoresAVariableAndTellsItAsACommand) {
    run(L"CLAYER\nWalls\n");
    spy.take();
    takeLog();

    run(L"U\n");
    EXPECT_EQ(getString(L"CLAYER"), "0");
    EXPECT_EQ(takeLog(), (Lines{"Command: U", "Undone: CLAYER"}));
    EXPECT_EQ(spy.take(),
              (Lines{"commandWillStart U", "sysVarChanged CLAYER true", "drawingContentChanged",
                     "commandEnded U", "refreshNeeded false"}));
}

TEST_F(UndoCommandTest, URestoresAnErasedObjectAndItsReactorsHearIt) {
    const KyDbObjectId entity = addEntity(L"Walls");
    ObjectSpy objectSpy(spy);
    {
        KyDbObjectPointer<KyDbObject> object(entity, KyDb::kForNotify);
        object->addReactor(&objectSpy);
    }
    run((L"ERASE\n" + handleOf(entity) + L"\n\n").c_str());
    EXPECT_TRUE(isErased(entity));
    run(L"U\n");
    EXPECT_FALSE(isErased(entity));
    EXPECT_EQ(spy.take(),
              (Lines{"commandWillStart ERASE", "erased KyDbEntity true", "commandEnded ERASE",
                     "refreshNeeded false", "commandWillStart U", "erased KyDbEntity false",
                     "drawingContentChanged", "commandEnded U", "refreshNeeded false"}));
    KyDbObjectPointer<KyDbObject> object(entity, KyDb::kForNotify);
    object->removeReactor(&objectSpy);
}

TEST_F(UndoCommandTest, RedoMakesAgainWhatUTookBack) {
    run(L"CLAYER\nWalls\nU\n");
    takeLog();
    run(L"REDO\n");
    EXPECT_EQ(getString(L"CLAYER"), "Walls");
    EXPECT_EQ(takeLog(), (Lines{"Command: REDO", "Redone: CLAYER"}));
    run(L"REDO\n");
    EXPECT_EQ(takeLog(), (Lines{"Command: REDO", "Nothing to redo."}));
}

TEST_F(UndoCommandTest, ANewChangeThrowsTheRedoListAway) {
    run(L"CLAYER\nWalls\nU\nLUPREC\n2\nREDO\n");
    EXPECT_EQ(getString(L"CLAYER"), "0");
    EXPECT_EQ(takeLog().back(), "Nothing to redo.");
}

TEST_F(UndoCommandTest, UndoTakesBackACountOfCommands) {
    run(L"LUPREC\n1\nLUPREC\n2\nLUPREC\n3\n");
    run(L"UNDO\n2\n");
    EXPECT_EQ(getShort(L"LUPREC"), 1);
    run(L"UNDO 5\n");
    EXPECT_EQ(getShort(L"LUPREC"), 4);
    EXPECT_EQ(takeLog().back(), "Everything has been undone.");
}

TEST_F(UndoCommandTest, UndoBackStopsAtTheLastMark) {
    run(L"LUPREC\n1\nUNDO\n_Mark\nLUPREC\n2\nLUPREC\n3\n");
    takeLog();
    run(L"UNDO\n_Back\n");
    EXPECT_EQ(getShort(L"LUPREC"), 1);
    EXPECT_EQ(takeLog(), (Lines{"Command: UNDO",
                                "Enter the number of operations to undo or [Mark/Back] <1>: _Back",
                                "Undone: LUPREC", "Undone: LUPREC", "Mark encountered."}));
    // Without a mark Back takes everything back.
    run(L"UNDO\nb\n");
    EXPECT_EQ(getShort(L"LUPREC"), 4);
}

TEST_F(UndoCommandTest, AnAnswerThatIsNeitherCountNorKeywordIsAskedAgain) {
    run(L"LUPREC\n1\nUNDO\nsideways\n=Back\n\n");
    EXPECT_EQ(getShort(L"LUPREC"), 4);
    const Lines log = takeLog();
    EXPECT_EQ(
        std::count(log.begin(), log.end(), "Requires a positive integer or an option keyword."), 2)
        << "=Back is a literal, not the keyword";
}

TEST_F(UndoCommandTest, UWithNothingToTakeBackSaysSo) {
    run(L"U\n");
    EXPECT_EQ(takeLog(), (Lines{"Command: U", "Everything has been undone."}));
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart U", "commandEnded U", "refreshNeeded false"}));
}

}  // namespace
}  // namespace refhost
