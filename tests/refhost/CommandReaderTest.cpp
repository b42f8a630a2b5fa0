// How the host reads command text: cancel marks, unknown commands and
// values it can't take (an error line, nothing changed), commands that wait
// at their prompt for the rest of their input, transparent commands inside
// them, and literal names.
#include "RefHostTestSupport.h"

namespace refhost {
namespace {

class CommandReaderTest : public RefHostTest {
protected:
    CommandReaderTest() { addLayer(L"Walls"); }
};

TEST_F(CommandReaderTest, TheCancelCharacterAbandonsTheCommandAndLeavesNoPrompt) {
    run(L"CLAYER\n\x03");
    EXPECT_EQ(getString(L"CLAYER"), "0");
    EXPECT_TRUE(host->commandNames().isEmpty());
    EXPECT_EQ(takeLog(),
              (Lines{"Command: CLAYER", "Enter new value for CLAYER <\"0\">: *Cancel*"}));
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart CLAYER", "refreshNeeded false"}));

    run(L"CLAYER\n^C");
    EXPECT_EQ(getString(L"CLAYER"), "0");
    EXPECT_EQ(takeLog(),
              (Lines{"Command: CLAYER", "Enter new value for CLAYER <\"0\">: *Cancel*"}));
}

TEST_F(CommandReaderTest, CancelsAtTheCommandPromptAndEchoSwitchesArePassedOver) {
    run(L"^C^C^Q_LUPREC\n2\n");
    EXPECT_EQ(getShort(L"LUPREC"), 2);
    EXPECT_EQ(takeLog(), (Lines{"Command: *Cancel*", "Command: *Cancel*", "Command: _LUPREC",
                                "Enter new value for LUPREC <4>: 2"}));
}

TEST_F(CommandReaderTest, AnUnknownCommandIsAnErrorLineAndTheRestRuns) {
    run(L"FROBNICATE\n'LUPREC 3\n");
    EXPECT_EQ(takeLog(), (Lines{"Command: FROBNICATE", "Unknown command \"FROBNICATE\".",
                                "Command: 'LUPREC", "Enter new value for LUPREC <4>: 3"}));
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart LUPREC", "sysVarChanged LUPREC true",
                                 "commandEnded LUPREC", "refreshNeeded false"}));
}

TEST_F(CommandReaderTest, ANameTheDrawingLacksFailsTheCommandAndChangesNothing) {
    run(L"CLAYER\nNoSuchLayer\n");
    EXPECT_EQ(getString(L"CLAYER"), "0");
    EXPECT_EQ(takeLog(),
              (Lines{"Command: CLAYER", "Enter new value for CLAYER <\"0\">: NoSuchLayer",
                     "Cannot find layer \"NoSuchLayer\"."}));
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart CLAYER", "refreshNeeded false"}));
    EXPECT_TRUE(host->commandNames().isEmpty());
}

TEST_F(CommandReaderTest, AFrozenLayerCantBeMadeCurrent) {
    addLayer(L"Frozen", false, true);
    run(L"CLAYER\nFrozen\n");
    EXPECT_EQ(getString(L"CLAYER"), "0");
    EXPECT_EQ(takeLog().back(), "Cannot set the frozen layer \"Frozen\" current.");
}

TEST_F(CommandReaderTest, ANumberOutOfRangeIsRefusedAndAskedAgainUntilCancelled) {
    run(L"'LUPREC 9\n");
    EXPECT_EQ(getShort(L"LUPREC"), 4);
    EXPECT_EQ(host->commandNames(), L"SETVAR") << "waits at the prompt";
    EXPECT_EQ(takeLog(),
              (Lines{"Command: 'LUPREC", "Enter new value for LUPREC <4>: 9",
                     "Requires an integer between 0 and 8.", "Enter new value for LUPREC <4>: "}));
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart LUPREC"}));

    run(L"\x03");
    EXPECT_EQ(getShort(L"LUPREC"), 4);
    EXPECT_TRUE(host->commandNames().isEmpty());
    EXPECT_EQ(takeLog(), (Lines{"*Cancel*"}));
    EXPECT_EQ(spy.take(), (Lines{"refreshNeeded false"}));
}

TEST_F(CommandReaderTest, TheDataItemLayersRefusedShortSetEndsAtNoPrompt) {
    // What the data item layer sends for a short variable set by command: the
    // value, and a cancel in case the host refused it.
    run(L"'LUPREC 9\n\x03");
    EXPECT_EQ(getShort(L"LUPREC"), 4);
    EXPECT_TRUE(host->commandNames().isEmpty());
    EXPECT_EQ(takeLog(), (Lines{"Command: 'LUPREC", "Enter new value for LUPREC <4>: 9",
                                "Requires an integer between 0 and 8.",
                                "Enter new value for LUPREC <4>: *Cancel*"}));
    // An accepted value: the cancel then finds the host at its prompt.
    run(L"'LUPREC 8\n\x03");
    EXPECT_EQ(getShort(L"LUPREC"), 8);
    EXPECT_EQ(takeLog(), (Lines{"Command: 'LUPREC", "Enter new value for LUPREC <4>: 8",
                                "Command: *Cancel*"}));
}

TEST_F(CommandReaderTest, TextThatIsNoNumberIsToldAndAskedAgain) {
    run(L"LUPREC\nmany\n5\n");
    EXPECT_EQ(getShort(L"LUPREC"), 5);
    EXPECT_EQ(takeLog(),
              (Lines{"Command: LUPREC", "Enter new value for LUPREC <4>: many",
                     "Requires an integer between 0 and 8.", "Enter new value for LUPREC <4>: 5"}));
}

TEST_F(CommandReaderTest, ACommandWaitsForTheRestOfItsInputAndShowsNothingTwice) {
    run(L"CLAYER\n");
    EXPECT_EQ(host->commandNames(), L"SETVAR");
    EXPECT_FALSE(host->documents().isDocumentQuiescent(host->documents().currentDocument()));
    EXPECT_EQ(takeLog(), (Lines{"Command: CLAYER", "Enter new value for CLAYER <\"0\">: "}));
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart CLAYER"}));

    run(L"Walls\n");
    EXPECT_EQ(getString(L"CLAYER"), "Walls");
    EXPECT_TRUE(host->commandNames().isEmpty());
    EXPECT_EQ(takeLog(), (Lines{"Walls"}));
    EXPECT_EQ(spy.take(),
              (Lines{"sysVarChanged CLAYER true", "commandEnded CLAYER", "refreshNeeded false"}));
}

TEST_F(CommandReaderTest, AnAnswerIsTakenOnlyWhenItsLineIsEnded) {
    run(L"CLAYER\nWal");
    EXPECT_EQ(getString(L"CLAYER"), "0");
    EXPECT_EQ(takeLog(), (Lines{"Command: CLAYER", "Enter new value for CLAYER <\"0\">: "}));
    run(L"ls\n");
    EXPECT_EQ(getString(L"CLAYER"), "Walls");
    EXPECT_EQ(takeLog(), (Lines{"Walls"}));
    // Part of a command word waits as well, and empty lines at the command
    // prompt do nothing.
    run(L"\n\nLUP");
    run(L"REC 6\n");
    EXPECT_EQ(getShort(L"LUPREC"), 6);
}

TEST_F(CommandReaderTest, ATransparentCommandRunsInsideAWaitingOneAndEndsFirst) {
    run(L"SETVAR\n");
    spy.take();
    takeLog();
    run(L"'LUPREC 2\nCLAYER\nWalls\n");
    EXPECT_EQ(getShort(L"LUPREC"), 2);
    EXPECT_EQ(getString(L"CLAYER"), "Walls");
    EXPECT_EQ(takeLog(),
              (Lines{"'LUPREC", ">>Enter new value for LUPREC <4>: 2",
                     "Enter variable name: CLAYER", "Enter new value for CLAYER <\"0\">: Walls"}));
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart LUPREC", "sysVarChanged CLAYER true",
                                 "sysVarChanged LUPREC true", "commandEnded LUPREC",
                                 "commandEnded SETVAR", "refreshNeeded false"}));
}

TEST_F(CommandReaderTest, ACancelledCommandTakesBackWhatRanInsideIt) {
    run(L"SETVAR\n'LUPREC 2\n");
    EXPECT_EQ(host->commandNames(), L"SETVAR");
    run(L"\x03");
    EXPECT_EQ(getShort(L"LUPREC"), 4);
    // What the host took back is no change that REDO could make again.
    run(L"REDO\n");
    EXPECT_EQ(getShort(L"LUPREC"), 4);
    EXPECT_EQ(takeLog().back(), "Nothing to redo.");
}

TEST_F(CommandReaderTest, AnEqualsSignMakesANameLiteral) {
    run(L"SETVAR\n=clayer\nWalls\n");
    EXPECT_EQ(getString(L"CLAYER"), "Walls");
}

TEST_F(CommandReaderTest, AReadOnlyVariableIsShown) {
    run(L"PSTYLEMODE\nCMDNAMES\n");
    EXPECT_EQ(takeLog(), (Lines{"Command: PSTYLEMODE", "PSTYLEMODE = 1 (read only)",
                                "Command: CMDNAMES", "CMDNAMES = \"SETVAR\" (read only)"}));
}

TEST_F(CommandReaderTest, WithoutADrawingOnlySessionVariablesCanBeSet) {
    host->documents().closeAll();
    spy.take();
    run(L"PROPOBJLIMIT\n5\nLUPREC\nSETVAR\nLUPREC\n");
    EXPECT_EQ(getShort(L"PROPOBJLIMIT"), 5);
    EXPECT_EQ(takeLog(),
              (Lines{"Command: PROPOBJLIMIT", "Enter new value for PROPOBJLIMIT <25000>: 5",
                     "Command: LUPREC", "No drawing is open.", "Command: SETVAR",
                     "Enter variable name: LUPREC", "LUPREC can't be read: no drawing is open."}));
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart PROPOBJLIMIT", "sysVarChanged PROPOBJLIMIT true",
                                 "commandEnded PROPOBJLIMIT", "refreshNeeded false",
                                 "commandWillStart SETVAR", "refreshNeeded false"}));
}

TEST_F(CommandReaderTest, AWaitingCommandIsDroppedWhenAnotherDocumentComesInFront) {
    run(L"CLAYER\n");
    host->documents().newDocument();
    EXPECT_TRUE(host->commandNames().isEmpty());
    run(L"LUPREC\n7\n");
    EXPECT_EQ(getShort(L"LUPREC"), 7);
}

}  // namespace
}  // namespace refhost
