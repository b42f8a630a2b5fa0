// -DIMSTYLE restores a dimension style as the data item layer's current
// dimension style asks; OPTCHPROP sets the styles of the annotation objects
// that have them and leaves every other object alone.
#include <string>

#include "DrawingContent.h"
#include "KyRefNamedItem.h"
#include "RefHostTestSupport.h"
#include "db/KyDbDimStyleTableRecord.h"
#include "db/KyDbDimension.h"
#include "db/KyDbEntity.h"
#include "db/KyDbLeader.h"
#include "db/KyDbMLeader.h"
#include "db/KyDbMLeaderStyle.h"
#include "db/KyDbMText.h"
#include "db/KyDbTable.h"
#include "db/KyDbTableStyle.h"
#include "db/KyDbText.h"
#include "db/KyDbTextStyleTableRecord.h"

namespace refhost {
namespace {

class DimStyleCommandTest : public RefHostTest {
protected:
    DimStyleCommandTest() : content(db()) {
        content.addRecord<KyDbDimStyleTableRecord>(db()->dimStyleTableId(), L"Arch");
    }

    DrawingContent content;
};

const std::string kOptionPrompt =
    "Enter a dimension style option [ANnotative/Save/Restore/STatus/Variables/Apply/?] "
    "<Restore>: ";

TEST_F(DimStyleCommandTest, RestoreMakesTheStyleCurrentAsOneCommand) {
    run(L"_-dimstyle\n_Restore\nArch\n");
    EXPECT_EQ(getString(L"DIMSTYLE"), "Arch");
    EXPECT_TRUE(host->commandNames().isEmpty());
    EXPECT_EQ(takeLog(), (Lines{"Command: _-dimstyle", "Current dimension style: Standard",
                                kOptionPrompt + "_Restore", "Enter a dimension style name: Arch"}));
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart -DIMSTYLE", "sysVarChanged DIMSTYLE true",
                                 "commandEnded -DIMSTYLE", "refreshNeeded false"}));

    run(L"U\n");
    EXPECT_EQ(getString(L"DIMSTYLE"), "Standard");
}

TEST_F(DimStyleCommandTest, RestoreIsTheDefaultAndTakesLiteralNamesInAnyCase) {
    run(L"-DIMSTYLE\n\n=\"arch\"\n");
    EXPECT_EQ(getString(L"DIMSTYLE"), "Arch");
}

TEST_F(DimStyleCommandTest, AnUnknownStyleOrAnotherOptionIsAnErrorAndChangesNothing) {
    run(L"_-dimstyle\n_Restore\nGothic\n");
    EXPECT_EQ(takeLog().back(), "Cannot find dimension style \"Gothic\".");
    run(L"_-dimstyle\n_Save\n");
    EXPECT_EQ(takeLog().back(), "This host does not support the option Save.");
    EXPECT_EQ(getString(L"DIMSTYLE"), "Standard");
    EXPECT_TRUE(host->commandNames().isEmpty());
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart -DIMSTYLE", "refreshNeeded false",
                                 "commandWillStart -DIMSTYLE", "refreshNeeded false"}));
}

// A drawing with one object of each annotation kind and a table, all
// selected, and a line, which has none of the styles.
class OptChPropCommandTest : public RefHostTest {
protected:
    OptChPropCommandTest()
        : content(db()),
          mono(content.addRecord<KyDbTextStyleTableRecord>(db()->textStyleTableId(), L"Mono")),
          arch(content.addRecord<KyDbDimStyleTableRecord>(db()->dimStyleTableId(), L"Arch")),
          callout(content.addEntry<KyDbMLeaderStyle>(
              db()->mleaderStyleDictionaryId(), L"Callout",
              [](KyDbMLeaderStyle& style) { style.setName(L"Callout"); })),
          schedule(content.addEntry<KyDbTableStyle>(
              db()->tableStyleDictionaryId(), L"Schedule",
              [](KyDbTableStyle& style) { style.setName(L"Schedule"); })),
          dimension(content.addEntity<KyDbDimension>()),
          leader(content.addEntity<KyDbLeader>()),
          text(content.addEntity<KyDbText>()),
          mtext(content.addEntity<KyDbMText>()),
          mleader(content.addEntity<KyDbMLeader>()),
          table(content.addEntity<KyDbTable>()),
          plain(addEntity()) {
        host->selectionService()->setSelection(
            {dimension, leader, text, mtext, mleader, table, plain});
        spy.take();
    }

    template <typename Entity, typename Read>
    static KyDbObjectId styleOf(KyDbObjectId id, Read read) {
        const KyDbObjectPointer<Entity> entity(id, KyDb::kForRead);
        return ((*entity.object()).*read)();
    }

    // Runs `text` and expects the events of a command that ended.
    void runCommand(const wchar_t* text) {
        run(text);
        EXPECT_TRUE(host->commandNames().isEmpty());
        EXPECT_EQ(spy.take(), (Lines{"commandWillStart OPTCHPROP", "commandEnded OPTCHPROP",
                                     "refreshNeeded false"}));
    }

    DrawingContent content;
    KyDbObjectId mono;
    KyDbObjectId arch;
    KyDbObjectId callout;
    KyDbObjectId schedule;
    KyDbObjectId dimension;
    KyDbObjectId leader;
    KyDbObjectId text;
    KyDbObjectId mtext;
    KyDbObjectId mleader;
    KyDbObjectId table;
    KyDbObjectId plain;
};

TEST_F(OptChPropCommandTest, TheDimensionStyleGoesToDimensionsAndLeaders) {
    runCommand(L"_optchprop\n_dimstyle\nArch\n\n");
    EXPECT_EQ(styleOf<KyDbDimension>(dimension, &KyDbDimension::dimensionStyle), arch);
    EXPECT_EQ(styleOf<KyDbLeader>(leader, &KyDbLeader::dimensionStyle), arch);
    EXPECT_EQ(takeLog(),
              (Lines{"Command: _optchprop", "7 found",
                     "Enter property to change [Dimstyle/Textstyle/MLstyle/TAblestyle]: _dimstyle",
                     "Enter new dimension style name: Arch",
                     "Enter property to change [Dimstyle/Textstyle/MLstyle/TAblestyle]: "}));
}

TEST_F(OptChPropCommandTest, TheTextStyleGoesToTextsAndTheMultileaderStyleToMultileaders) {
    runCommand(L"_optchprop\n_textstyle\nMono\n\n");
    EXPECT_EQ(styleOf<KyDbText>(text, &KyDbText::textStyle), mono);
    EXPECT_EQ(styleOf<KyDbMText>(mtext, &KyDbMText::textStyle), mono);
    EXPECT_NE(styleOf<KyDbDimension>(dimension, &KyDbDimension::textStyle), mono)
        << "a dimension takes its text style from its dimension style";

    runCommand(L"_optchprop\n_mlstyle\nCallout\n\n");
    EXPECT_EQ(styleOf<KyDbMLeader>(mleader, &KyDbMLeader::MLeaderStyle), callout);

    run(L"U\n");
    EXPECT_NE(styleOf<KyDbMLeader>(mleader, &KyDbMLeader::MLeaderStyle), callout);
    EXPECT_EQ(styleOf<KyDbText>(text, &KyDbText::textStyle), mono) << "one command taken back";
}

TEST_F(OptChPropCommandTest, TheTableStyleGoesToTablesAsOneStepThatUTakesBack) {
    const KyDbObjectId standard = styleOf<KyDbTable>(table, &KyDbTable::tableStyle);
    ASSERT_NE(standard, schedule);
    const int before = db()->undoController()->undoCount();
    runCommand(L"_optchprop\n_tablestyle\nSchedule\n\n");
    EXPECT_EQ(styleOf<KyDbTable>(table, &KyDbTable::tableStyle), schedule);
    EXPECT_EQ(db()->undoController()->undoCount(), before + 1);
    EXPECT_EQ(
        takeLog(),
        (Lines{"Command: _optchprop", "7 found",
               "Enter property to change [Dimstyle/Textstyle/MLstyle/TAblestyle]: _tablestyle",
               "Enter new table style name: Schedule",
               "Enter property to change [Dimstyle/Textstyle/MLstyle/TAblestyle]: "}));

    run(L"U\n");
    EXPECT_EQ(styleOf<KyDbTable>(table, &KyDbTable::tableStyle), standard);
    takeLog();
    run(L"_optchprop\n_tablestyle\nLedger\n\n");
    EXPECT_EQ(takeLog().back(), "Cannot find table style \"Ledger\".");
    EXPECT_EQ(styleOf<KyDbTable>(table, &KyDbTable::tableStyle), standard);
    EXPECT_TRUE(host->commandNames().isEmpty());
}

TEST_F(OptChPropCommandTest, AStyleTheDrawingLacksTakesTheWholeCommandBack) {
    run(L"_optchprop\n_dimstyle\nArch\n_textstyle\nComic\n\n");
    EXPECT_EQ(takeLog().back(), "Cannot find text style \"Comic\".");
    EXPECT_NE(styleOf<KyDbDimension>(dimension, &KyDbDimension::dimensionStyle), arch);
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart OPTCHPROP", "refreshNeeded false"}));
    EXPECT_TRUE(host->commandNames().isEmpty());
}

}  // namespace
}  // namespace refhost
