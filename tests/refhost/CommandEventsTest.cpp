// Command text runs only when the host is idle, and each command ends with the
// events a real host raises, in order: the variables that changed, the end of
// the command under its global name, a refresh.
#include "RefHostTestSupport.h"
#include "base/KyRxResourceInstance.h"
#include "db/KyDbDatabase.h"

namespace refhost {
namespace {

class CommandEventsTest : public RefHostTest {
protected:
    CommandEventsTest() { addLayer(L"Walls"); }
};

TEST_F(CommandEventsTest, QueuedTextRunsOnlyWhenTheHostIsIdle) {
    editor().sendCommand(L"'_clayer\nWalls\n", false, false, true);

    EXPECT_TRUE(spy.lines().empty());
    EXPECT_TRUE(takeLog().empty());
    EXPECT_EQ(getString(L"CLAYER"), "0");

    host->idle();
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart CLAYER", "sysVarChanged CLAYER true",
                                 "commandEnded CLAYER", "refreshNeeded false"}));
    EXPECT_EQ(getString(L"CLAYER"), "Walls");
    EXPECT_EQ(takeLog(), (Lines{"Command: '_clayer", "Enter new value for CLAYER <\"0\">: Walls"}));
}

TEST_F(CommandEventsTest, EveryFormOfSettingAVariableByNameWorks) {
    run(L"CLAYER\nWalls\n");
    EXPECT_EQ(getString(L"CLAYER"), "Walls");
    run(L"'_clayer\n0\n");
    EXPECT_EQ(getString(L"CLAYER"), "0");
    // The data item layer's form for a variable: name and value on one line.
    run(L"'LUPREC 2\n");
    EXPECT_EQ(getShort(L"LUPREC"), 2);
    run(L"'CLAYER \"Walls\"\n");
    EXPECT_EQ(getString(L"CLAYER"), "Walls");
    run(L"SETVAR\nlunits\n3\n");
    EXPECT_EQ(getShort(L"LUNITS"), 3);
    EXPECT_EQ(
        spy.take(),
        (Lines{
            "commandWillStart CLAYER",   "sysVarChanged CLAYER true", "commandEnded CLAYER",
            "refreshNeeded false",       "commandWillStart CLAYER",   "sysVarChanged CLAYER true",
            "commandEnded CLAYER",       "refreshNeeded false",       "commandWillStart LUPREC",
            "sysVarChanged LUPREC true", "commandEnded LUPREC",       "refreshNeeded false",
            "commandWillStart CLAYER",   "sysVarChanged CLAYER true", "commandEnded CLAYER",
            "refreshNeeded false",       "commandWillStart SETVAR",   "sysVarChanged LUNITS true",
            "commandEnded SETVAR",       "refreshNeeded false"}));
}

TEST_F(CommandEventsTest, AnEqualValueChangesNothingAndTheCommandStillEnds) {
    run(L"CLAYER\n0\n");
    EXPECT_EQ(spy.take(),
              (Lines{"commandWillStart CLAYER", "commandEnded CLAYER", "refreshNeeded false"}));
}

TEST_F(CommandEventsTest, AnEmptyAnswerKeepsTheValue) {
    run(L"LUPREC\n\n");
    EXPECT_EQ(getShort(L"LUPREC"), 4);
    EXPECT_EQ(takeLog(), (Lines{"Command: LUPREC", "Enter new value for LUPREC <4>: "}));
}

TEST_F(CommandEventsTest, EveryVariableThatChangedIsReportedInTableOrder) {
    // Switching to the layout turns model space off and enters the paper
    // viewport: three variables change, and the layout changed, with the plot
    // settings in effect.
    run(L"CTAB\nLayout1\n");
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart CTAB", "sysVarChanged TILEMODE true",
                                 "sysVarChanged CTAB true", "sysVarChanged CVPORT true",
                                 "plotSettingsChanged", "plotSettingsChangedForLayout Layout1",
                                 "layoutChanged", "commandEnded CTAB", "refreshNeeded false"}));
    EXPECT_EQ(getShort(L"TILEMODE"), 0);
    EXPECT_EQ(getShort(L"CVPORT"), 1);
}

TEST_F(CommandEventsTest, CommandsOfOneTextRunOneAfterTheOther) {
    run(L"CLAYER\nWalls\nLUPREC\n6\n");
    EXPECT_EQ(spy.take(),
              (Lines{"commandWillStart CLAYER", "sysVarChanged CLAYER true", "commandEnded CLAYER",
                     "refreshNeeded false", "commandWillStart LUPREC", "sysVarChanged LUPREC true",
                     "commandEnded LUPREC", "refreshNeeded false"}));
}

// A reactor that queues more command text when a command ends, as a client
// of the data item layer may do.
class FollowUpReactor : public EventSpy {
public:
    explicit FollowUpReactor(KyRefEditor& editor) : m_editor(editor) {}
    void commandEnded(const wchar_t* name) override {
        EventSpy::commandEnded(name);
        if (KyString(name) == L"CLAYER") {
            m_editor.sendCommand(L"'LUPREC 1\n", false, false, true);
        }
    }

private:
    KyRefEditor& m_editor;
};

TEST_F(CommandEventsTest, TextQueuedByAReactorRunsInTheSameIdlePass) {
    FollowUpReactor followUp(editor());
    host->addReactor(&followUp);
    run(L"CLAYER\nWalls\n");
    host->removeReactor(&followUp);
    EXPECT_EQ(getShort(L"LUPREC"), 1);
    EXPECT_EQ(followUp.take(),
              (Lines{"commandWillStart CLAYER", "sysVarChanged CLAYER true", "commandEnded CLAYER",
                     "refreshNeeded false", "commandWillStart LUPREC", "sysVarChanged LUPREC true",
                     "commandEnded LUPREC", "refreshNeeded false"}));
}

TEST_F(CommandEventsTest, ANamedScopeEndsWithTheEventsOfACommandAndIsOneUndoStep) {
    editor().beginCommand(L"OPM_CHGPROP");
    EXPECT_EQ(host->commandNames(), L"OPM_CHGPROP");
    ASSERT_EQ(db()->setCecolor([] {
        KyCmColor red;
        red.setColorIndex(1);
        return red;
    }()),
              Kyro::eOk);
    ASSERT_EQ(db()->setCelweight(KyDb::kLnWt050), Kyro::eOk);
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart OPM_CHGPROP"})) << "changes told at the end";
    editor().endCommand(L"opm_chgprop");

    EXPECT_EQ(spy.take(), (Lines{"sysVarChanged CECOLOR true", "sysVarChanged CELWEIGHT true",
                                 "commandEnded OPM_CHGPROP", "refreshNeeded false"}));
    EXPECT_TRUE(host->commandNames().isEmpty());
    run(L"U\n");
    EXPECT_EQ(getString(L"CECOLOR"), "BYLAYER");
    EXPECT_EQ(getShort(L"CELWEIGHT"), -1);
}

TEST_F(CommandEventsTest, TheHostsSecondLanguageHasItsOwnCommandNamesAndKeywords) {
    KyRxResourceInstance::setLanguage(L"de");
    EXPECT_STREQ(editor().localCommandName(L"ERASE"), L"LOESCHEN");
    EXPECT_STREQ(editor().localCommandName(L"CLAYER"), L"CLAYER");
    run(L"ERASE\n");
    EXPECT_EQ(takeLog(), (Lines{"Command: ERASE", "Unknown command \"ERASE\"."}));
    run(L"_ERASE\n\nLOESCHEN\n\n");
    EXPECT_EQ(takeLog(), (Lines{"Command: _ERASE", "Select objects: ", "Command: LOESCHEN",
                                "Select objects: "}));
    run(L"CLAYER\nWalls\nZURUECK\nZurueck\n");
    EXPECT_EQ(getString(L"CLAYER"), "0") << "UNDO Back took everything back";
    run(L"CLAYER\nWalls\n_UNDO\n_Back\n");
    EXPECT_EQ(getString(L"CLAYER"), "0");
    KyRxResourceInstance::setLanguage(L"");
    EXPECT_STREQ(editor().localCommandName(L"ERASE"), L"ERASE");
}

}  // namespace
}  // namespace refhost
