// -LAYER: the texts the data item layer sends for a layer's colour and
// states, the same typed by hand, the other options, bad input (an error
// line, nothing changed, no prompt left waiting), undo, and the current layer
// filter that a save writes back.
#include <fstream>

#include "KyRefDocument.h"
#include "KyRefLayerFilters.h"
#include "LayerTestSupport.h"
#include "base/KyRxResourceInstance.h"
#include "db/KyDbDatabase.h"
#include "io/KyRefJson.h"

namespace refhost {
namespace {

const std::string kOptions =
    "Enter an option [?/Make/Set/New/ON/OFF/Color/Ltype/LWeight/TRansparency/Plot/PStyle/"
    "Freeze/Thaw/LOck/Unlock/Description/Filter/STate]: ";
const std::string kColorPrompt = "Enter color name or number (1-255) or [Truecolor/COlorbook]: ";
const std::string kWalls =
    "color=7 linetype=Continuous lineweight=-3 transparency=0 "
    "plotStyle=Normal off=0 frozen=0 locked=0 plot=1 description=";
const Lines kEnded = {"commandWillStart -LAYER", "commandEnded -LAYER", "refreshNeeded false"};
const Lines kFailed = {"commandWillStart -LAYER", "refreshNeeded false"};

class LayerCommandTest : public LayerFixture {
protected:
    LayerCommandTest() { openDrawing(kLayerDrawing); }

    std::string colorOf(const wchar_t* name) const {
        const std::string text = state(name);
        return text.substr(0, text.find(' '));
    }
    // Runs `text` and expects it to end the command with no prompt left.
    void runToEnd(const wchar_t* text) {
        run(text);
        EXPECT_TRUE(host->commandNames().isEmpty()) << utf8(text);
    }
};

TEST_F(LayerCommandTest, TheDataItemLayersColorByIndexChangesTheLayerAndEndsTheCommand) {
    runToEnd(L"'_.-LAYER\n_COLOR\n1\n=Walls\n\n");
    EXPECT_EQ(colorOf(L"Walls"), "color=1");
    EXPECT_EQ(takeLog(), (Lines{"Command: '_.-LAYER", "Current layer: \"0\"", kOptions + "_COLOR",
                                kColorPrompt + "1",
                                "Enter name list of layer(s) for color red: =Walls", kOptions}));
    EXPECT_EQ(spy.take(), kEnded);
}

TEST_F(LayerCommandTest, TypedByHandWithOrWithoutPrefixesTheColorCommandIsTheSame) {
    runToEnd(L"-LAYER\n_COLOR\n1\n=Walls\n\n");
    EXPECT_EQ(colorOf(L"Walls"), "color=1");
    runToEnd(L"-layer\ncolor\n5\nwalls\n\n");
    EXPECT_EQ(colorOf(L"Walls"), "color=5");
    runToEnd(L"'_.-LAYER\n_COLOR\n2\n=Walls\n\n");
    EXPECT_EQ(colorOf(L"Walls"), "color=2");
    EXPECT_EQ(spy.take().size(), 3 * kEnded.size());
}

TEST_F(LayerCommandTest, BookColorsNamedColorsAndTrueColorsTakeEveryForm) {
    addNamedColors();

    runToEnd(L"'_.-LAYER\n_COLOR\n_COLORBOOK\nRAL\n3020\n=Walls\n\n");
    EXPECT_EQ(colorOf(L"Walls"), "color=RAL$3020");
    runToEnd(L"'_.-LAYER\n_COLOR\nSignal\n=Doors\n\n");
    EXPECT_EQ(colorOf(L"Doors"), "color=Signal");
    runToEnd(L"'_.-LAYER\n_COLOR\n_TRUECOLOR\n10,20,30\n=Walls\n\n");
    EXPECT_EQ(colorOf(L"Walls"), "color=RGB:10,20,30");
    EXPECT_EQ(takeLog().back(), kOptions);
}

TEST_F(LayerCommandTest, TheEffectiveColorFormsEndTheCommandCleanly) {
    addNamedColors();

    runToEnd(L"'_.-LAYER\n_COLOR\n4\n=Walls\n\n");
    EXPECT_EQ(colorOf(L"Walls"), "color=4");
    runToEnd(L"'_.-LAYER\n_COLOR\n_COLORBOOK\nRAL\n3020\n=Walls\n\n");
    EXPECT_EQ(colorOf(L"Walls"), "color=RAL$3020");
    // The name form leaves the "=" out: the layer's name is read as a pattern.
    runToEnd(L"'_.-LAYER\n_COLOR\nSignal\nWalls\n\n");
    EXPECT_EQ(colorOf(L"Walls"), "color=Signal");
    // The true colour form ends in a lone "_": an empty answer in its global form.
    spy.take();
    takeLog();
    runToEnd(L"'_.-LAYER\n_COLOR\n_TRUECOLOR\n1,2,3\n=Walls\n_\n");
    EXPECT_EQ(colorOf(L"Walls"), "color=RGB:1,2,3");
    EXPECT_EQ(takeLog().back(), kOptions + "_");
    EXPECT_EQ(spy.take(), kEnded);
}

TEST_F(LayerCommandTest, TheDataItemLayersStateCommandsSwitchTheNamedLayer) {
    runToEnd(L"'_.-LAYER\n_OFF\n=Walls\n\n");
    runToEnd(L"'_.-LAYER\n_FREEZE\n=Doors\n\n");
    runToEnd(L"'_.-LAYER\n_LOCK\n=Walls\n\n");
    EXPECT_EQ(state(L"Walls"),
              "color=7 linetype=Continuous lineweight=-3 transparency=0 "
              "plotStyle=Normal off=1 frozen=0 locked=1 plot=1 description=");
    EXPECT_NE(state(L"Doors").find("frozen=1"), std::string::npos);

    runToEnd(L"'_.-LAYER\n_ON\n=Walls\n\n");
    runToEnd(L"'_.-LAYER\n_THAW\n=Doors\n\n");
    runToEnd(L"'_.-LAYER\n_UNLOCK\n=Walls\n\n");
    EXPECT_EQ(state(L"Walls"), kWalls);
    EXPECT_NE(state(L"Doors").find("frozen=0"), std::string::npos);
    EXPECT_EQ(spy.take().size(), 6 * kEnded.size());
}

TEST_F(LayerCommandTest, TheCurrentLayerGoesOffOnlyWhenTheQuestionIsAnsweredYes) {
    runToEnd(L"'_.-LAYER\n_OFF\n=0\n_Yes\n\n");
    EXPECT_NE(state(L"0").find("off=1"), std::string::npos);
    const Lines log = takeLog();
    EXPECT_EQ(log[log.size() - 2], "Really want layer current off? [Yes/No] <No>: _Yes");

    runToEnd(L"-LAYER\nON\n0\nOFF\n0,Walls\n\n\n");
    EXPECT_NE(state(L"0").find("off=0"), std::string::npos) << "the default answer is No";
    EXPECT_NE(state(L"Walls").find("off=1"), std::string::npos);
}

TEST_F(LayerCommandTest, TheCurrentLayerCantBeFrozenAndTheCommandStillEnds) {
    runToEnd(L"'_.-LAYER\n_FREEZE\n=0\n\n");
    EXPECT_NE(state(L"0").find("frozen=0"), std::string::npos);
    const Lines log = takeLog();
    EXPECT_EQ(log[log.size() - 2], "Cannot freeze layer \"0\": it is the current layer.");
    EXPECT_EQ(spy.take(), kEnded);
}

TEST_F(LayerCommandTest, NamesAreListsWithWildCardsUnlessAnEqualsSignMakesThemLiteral) {
    runToEnd(L"-LAYER\nLO\nW*,d?ors\n\n");
    EXPECT_NE(state(L"Walls").find("locked=1"), std::string::npos);
    EXPECT_NE(state(L"Doors").find("locked=1"), std::string::npos);
    EXPECT_NE(state(L"0").find("locked=0"), std::string::npos);

    run(L"-LAYER\nU\n=W*\n");
    EXPECT_EQ(takeLog().back(), "Cannot find layer \"W*\".");
    EXPECT_NE(state(L"Walls").find("locked=1"), std::string::npos);
    run(L"-LAYER\nU\nX*\n");
    EXPECT_EQ(takeLog().back(), "No layer matches \"X*\".");
}

TEST_F(LayerCommandTest, MakeSetAndNewCreateLayersAndMakeThemCurrent) {
    runToEnd(L"-LAYER\nMake\nStairs\n\n");
    EXPECT_EQ(getString(L"CLAYER"), "Stairs");
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart -LAYER", "sysVarChanged CLAYER true",
                                 "commandEnded -LAYER", "refreshNeeded false"}));
    runToEnd(L"-LAYER\nSet\nWalls\n\n");
    EXPECT_EQ(getString(L"CLAYER"), "Walls");
    takeLog();
    runToEnd(L"-LAYER\nNew\nRoof, Floor,Walls\n\n");
    EXPECT_NE(state(L"Roof"), "missing");
    EXPECT_NE(state(L"Floor"), "missing");
    EXPECT_EQ(takeLog()[4], "Layer \"Walls\" already exists.");

    run(L"-LAYER\nSet\nFrozen\n\n");
    EXPECT_EQ(getString(L"CLAYER"), "Walls");
    EXPECT_EQ(takeLog().back(), "Cannot set the frozen layer \"Frozen\" current.");
    run(L"-LAYER\nNew\nA<B\n");
    EXPECT_EQ(takeLog().back(), "Invalid layer name \"A<B\".");
    EXPECT_EQ(state(L"Roof"),
              "color=7 linetype=Continuous lineweight=-3 transparency=0 "
              "plotStyle=Normal off=0 frozen=0 locked=0 plot=1 description=");
}

TEST_F(LayerCommandTest, TheOtherPropertiesTakeTheirValuesInTheFormsUsersType) {
    runToEnd(
        L"-LAYER\nL\nDASHED\nWalls\nLW\n0.25\nWalls\nTR\n50\nWalls\nP\nN\nWalls\n"
        L"PS\nThick\nWalls\nD\nOuter walls\nWalls\n\n");
    EXPECT_EQ(state(L"Walls"),
              "color=7 linetype=DASHED lineweight=25 transparency=50 "
              "plotStyle=Thick off=0 frozen=0 locked=0 plot=0 "
              "description=Outer walls");
    runToEnd(L"-LAYER\nLWeight\n0,30 mm\nWalls\nLWeight\nDefault\nDoors\n\n");
    EXPECT_NE(state(L"Walls").find("lineweight=30"), std::string::npos);
    EXPECT_NE(state(L"Doors").find("lineweight=-3"), std::string::npos);
}

TEST_F(LayerCommandTest, TheListShowsEachNamedLayer) {
    runToEnd(L"-LAYER\n?\nD*\n\n");
    const Lines log = takeLog();
    EXPECT_EQ(log[5], "Doors: on thawed unlocked, green, Continuous, Default");
}

TEST_F(LayerCommandTest, BadInputIsAnErrorLineThatChangesNothingAndLeavesNoPrompt) {
    struct Case {
        const wchar_t* text;
        const char* error;
    };
    const Case cases[] = {
        {L"'_.-LAYER\n_COLOR\n1\n=Nowhere\n\n", "Cannot find layer \"Nowhere\"."},
        {L"'_.-LAYER\n_COLOR\n256\n=Walls\n\n",
         "Invalid color \"256\": requires a color number from 1 to 255 or a color name."},
        {L"'_.-LAYER\n_COLOR\nMauve\n=Walls\n\n",
         "Invalid color \"Mauve\": requires a color number from 1 to 255 or a color name."},
        {L"'_.-LAYER\n_COLOR\n_TRUECOLOR\n300,0,0\n=Walls\n\n",
         "Invalid true color \"300,0,0\": requires red, green and blue from 0 to 255."},
        {L"'_.-LAYER\n_COLOR\n_COLORBOOK\nRAL\n9999\n=Walls\n\n",
         "Cannot find color \"9999\" in color book \"RAL\"."},
        {L"-LAYER\nLtype\nZIGZAG\nWalls\n\n", "Cannot find linetype \"ZIGZAG\"."},
        {L"-LAYER\nLtype\nByLayer\nWalls\n\n", "A layer can't take the linetype \"ByLayer\"."},
        {L"-LAYER\nLWeight\n0.26\nWalls\n\n",
         "Invalid lineweight \"0.26\": requires a standard lineweight in millimeters."},
        {L"-LAYER\nTR\n95\nWalls\n\n",
         "Invalid transparency \"95\": requires a whole percentage from 0 to 90."},
        {L"-LAYER\nPS\nHeavy\nWalls\n\n", "Cannot find plot style \"Heavy\"."},
        // An error takes back what the options before it did.
        {L"-LAYER\nLOck\nWalls\nColor\n1\nNowhere\n\n", "Cannot find layer \"Nowhere\"."},
    };
    for (const Case& test : cases) {
        run(test.text);
        EXPECT_EQ(state(L"Walls"), kWalls) << utf8(test.text);
        EXPECT_TRUE(host->commandNames().isEmpty()) << utf8(test.text);
        bool found = false;
        for (const std::string& line : takeLog()) {
            found = found || line == test.error;
        }
        EXPECT_TRUE(found) << utf8(test.text);
        EXPECT_EQ(spy.take(), kFailed) << utf8(test.text);
    }
}

TEST_F(LayerCommandTest, WhatFollowsAFailedCommandIsReadAtTheCommandPrompt) {
    run(L"'_.-LAYER\n_COLOR\n999\n=Walls\n\n");
    EXPECT_EQ(takeLog(),
              (Lines{"Command: '_.-LAYER", "Current layer: \"0\"", kOptions + "_COLOR",
                     kColorPrompt + "999",
                     "Invalid color \"999\": requires a color number from 1 to 255 or a color "
                     "name.",
                     "Command: =Walls", "Unknown command \"=Walls\"."}));
    EXPECT_TRUE(host->commandNames().isEmpty());
}

TEST_F(LayerCommandTest, AnUnknownOptionIsToldAndAskedAgain) {
    runToEnd(L"-LAYER\nFrobnicate\nColor\n1\nWalls\n\n");
    EXPECT_EQ(colorOf(L"Walls"), "color=1");
    EXPECT_EQ(takeLog()[3], "Invalid option keyword.");
}

TEST_F(LayerCommandTest, ACancelInTheMiddleTakesBackEveryOption) {
    run(L"-LAYER\nColor\n1\nWalls\nLOck\n\x03");
    EXPECT_EQ(state(L"Walls"), kWalls);
    EXPECT_TRUE(host->commandNames().isEmpty());
    EXPECT_EQ(takeLog().back(), "Enter name list of layer(s) to lock: *Cancel*");
    EXPECT_EQ(spy.take(), kFailed);
}

TEST_F(LayerCommandTest, AnUnfinishedTextWaitsAtThePromptForTheRest) {
    run(L"'_.-LAYER\n_COLOR\n1\n");
    EXPECT_EQ(host->commandNames(), L"-LAYER");
    EXPECT_EQ(colorOf(L"Walls"), "color=7");
    runToEnd(L"=Walls\n\n");
    EXPECT_EQ(colorOf(L"Walls"), "color=1");
}

TEST_F(LayerCommandTest, UndoTakesBackAColorChange) {
    runToEnd(L"'_.-LAYER\n_COLOR\n1\n=Walls\n_OFF\n=Doors\n\n");
    EXPECT_EQ(colorOf(L"Walls"), "color=1");
    runToEnd(L"U\n");
    EXPECT_EQ(state(L"Walls"), kWalls);
    EXPECT_NE(state(L"Doors").find("off=0"), std::string::npos);
    EXPECT_EQ(takeLog().back(), "Undone: -LAYER");
}

TEST_F(LayerCommandTest, RunTransparentlyInsideAWaitingCommandItEndsFirst) {
    run(L"SETVAR\n");
    spy.take();
    run(L"'_.-LAYER\n_COLOR\n1\n=Walls\n\n");
    EXPECT_EQ(host->commandNames(), L"SETVAR") << "asks for its variable again";
    // While the outer command waits, what ran inside it is taken back for now.
    EXPECT_EQ(spy.take(), kFailed);
    run(L"CLAYER\nDoors\n");
    EXPECT_EQ(colorOf(L"Walls"), "color=1");
    EXPECT_EQ(getString(L"CLAYER"), "Doors");
    EXPECT_EQ(spy.take(), (Lines{"sysVarChanged CLAYER true", "commandEnded -LAYER",
                                 "commandEnded SETVAR", "refreshNeeded false"}));
}

TEST_F(LayerCommandTest, CancellingTheCommandAroundItTakesItBack) {
    run(L"SETVAR\n'_.-LAYER\n_COLOR\n1\n=Walls\n\n\x03");
    EXPECT_EQ(colorOf(L"Walls"), "color=7");
    EXPECT_TRUE(host->commandNames().isEmpty());
}

TEST_F(LayerCommandTest, FilterSetMakesTheNamedFilterCurrentAndASaveWritesItBack) {
    runToEnd(L"'_.-LAYER\n_Filter\n_Set\n\"nested\"\n\n");
    EXPECT_EQ(KyRefLayerFilters::current(db()), L"Nested");
    EXPECT_EQ(spy.take(), kEnded);

    const std::filesystem::path saved = folder / "saved.kyd";
    KyString error;
    ASSERT_TRUE(
        host->documents().saveDocument(host->documents().current(), saved.wstring().c_str(), error))
        << error.utf8();
    std::ifstream file(saved);
    const KyRefJson json = KyRefJson::parse(file);
    EXPECT_EQ(json["layerFilters"]["current"], "Nested");
    spy.take();  // the save under a new name tells DRAWINGNAME

    run(L"'_.-LAYER\n_Filter\n_Set\n\"Missing\"\n\n");
    EXPECT_EQ(KyRefLayerFilters::current(db()), L"Nested");
    EXPECT_EQ(takeLog().back(), "Cannot find layer filter \"Missing\".");
    EXPECT_EQ(spy.take(), kFailed);
}

TEST_F(LayerCommandTest, ADrawingWithoutFiltersHasNoneToMakeCurrent) {
    host->documents().newDocument();
    run(L"'_.-LAYER\n_Filter\n_Set\n\"All\"\n\n");
    EXPECT_EQ(takeLog().back(), "Cannot find layer filter \"All\".");
    EXPECT_TRUE(host->commandNames().isEmpty());
}

TEST_F(LayerCommandTest, TheSecondLanguageHasItsOwnCommandNameAndKeywords) {
    KyRxResourceInstance::setLanguage(L"de");
    runToEnd(L"-EBENE\nFarbe\n1\nWalls\nSPerren\nDoors\n\n");
    runToEnd(L"_-LAYER\n_LOck\nWalls\n\n");
    KyRxResourceInstance::setLanguage(L"");
    EXPECT_EQ(colorOf(L"Walls"), "color=1");
    EXPECT_NE(state(L"Doors").find("locked=1"), std::string::npos);
    EXPECT_NE(state(L"Walls").find("locked=1"), std::string::npos);
}

}  // namespace
}  // namespace refhost
