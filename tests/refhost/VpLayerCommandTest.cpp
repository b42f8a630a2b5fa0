// VPLAYER: the overrides and viewport freezes that the data item layer sends
// for the current viewport of a layout, the same for all or selected
// viewports, the linetype text whose answers stand out of order, bad input,
// and undo.
#include "LayerTestSupport.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbDatabase.h"
#include "rx/KyRxValue.h"

namespace refhost {
namespace {

const std::string kOptions =
    "Enter an option [Color/Ltype/LWeight/PStyle/TRansparency/Freeze/Thaw]: ";
const std::string kViewports = "Enter an option [All/Select/Current] <Current>: ";
const Lines kEnded = {"commandWillStart VPLAYER", "commandEnded VPLAYER", "refreshNeeded false"};
const Lines kFailed = {"commandWillStart VPLAYER", "refreshNeeded false"};

class VpLayerCommandTest : public LayerFixture {
protected:
    VpLayerCommandTest() {
        openDrawing(kLayerDrawing);
        EXPECT_EQ(host->enterViewport(object(L"41")), Kyro::eOk);
        spy.take();
    }

    void runToEnd(const wchar_t* text) {
        run(text);
        EXPECT_TRUE(host->commandNames().isEmpty()) << utf8(text);
    }
};

TEST_F(VpLayerCommandTest, AColorByIndexOverridesTheLayerInTheCurrentViewportOnly) {
    runToEnd(L"'_.VPLAYER\n_COLOR\n1\n=Walls\n_CURRENT\n\n");
    EXPECT_EQ(overrides(L"Walls", L"41"), "color=1");
    EXPECT_EQ(overrides(L"Walls", L"42"), "");
    EXPECT_EQ(state(L"Walls").substr(0, 7), "color=7");
    EXPECT_EQ(takeLog(), (Lines{"Command: '_.VPLAYER", kOptions + "_COLOR",
                                "Enter color name or number (1-255) or [Truecolor/COlorbook]: 1",
                                "Enter layer name(s) for viewport color red: =Walls",
                                kViewports + "_CURRENT", kOptions}));
    EXPECT_EQ(spy.take(), kEnded);
}

TEST_F(VpLayerCommandTest, EveryColorFormOfTheDataItemLayerEndsTheCommand) {
    addNamedColors();
    runToEnd(L"'_.VPLAYER\n_COLOR\n_COLORBOOK\nRAL\n3020\n=Walls\n_CURRENT\n\n");
    EXPECT_EQ(overrides(L"Walls", L"41"), "color=RAL$3020");
    runToEnd(L"'_.VPLAYER\n_COLOR\nSignal\n=Walls\n_CURRENT\n\n");
    EXPECT_EQ(overrides(L"Walls", L"41"), "color=Signal");
    runToEnd(L"'_.VPLAYER\n_COLOR\n_TRUECOLOR\n10,20,30\n=Walls\n_CURRENT\n\n");
    EXPECT_EQ(overrides(L"Walls", L"41"), "color=RGB:10,20,30");

    // The effective colour forms: the name without "=", and the true colour
    // with its doubled "_" before CURRENT.
    runToEnd(L"'_.VPLAYER\n_COLOR\nSignal\nWalls\n_CURRENT\n\n");
    EXPECT_EQ(overrides(L"Walls", L"41"), "color=Signal");
    runToEnd(L"'_.VPLAYER\n_COLOR\n_TRUECOLOR\n1,2,3\n=Walls\n__CURRENT\n\n");
    EXPECT_EQ(overrides(L"Walls", L"41"), "color=RGB:1,2,3");
    EXPECT_EQ(spy.take().size(), 5 * kEnded.size());
    EXPECT_EQ(state(L"Walls").substr(0, 7), "color=7");
}

TEST_F(VpLayerCommandTest, LineweightTransparencyPlotStyleAndFreezeOverrideTheLayer) {
    // The lineweight in the text the data item layer makes of the value.
    const KyString weight = KyRxValue(KyDb::kLnWt025).text();
    EXPECT_EQ(weight, L"0.25 mm");
    runToEnd(
        KyString::formatted(L"'_.VPLAYER\n_LWEIGHT\n%ls\n=Walls\n_CURRENT\n\n", weight.kwszPtr()));
    runToEnd(L"'_.VPLAYER\n_TRANSPARENCY\n50\n=Walls\n_CURRENT\n\n");
    runToEnd(L"'_.VPLAYER\nPSTYLE\nThick\n=Walls\n_CURRENT\n\n");
    runToEnd(L"'_.VPLAYER\n_FREEZE\n=Walls\n_CURRENT\n\n");
    EXPECT_EQ(overrides(L"Walls", L"41"), "lineweight=25 transparency=50 plotStyle=Thick frozen=1");
    runToEnd(L"'_.VPLAYER\n_THAW\n=Walls\n_CURRENT\n\n");
    EXPECT_EQ(overrides(L"Walls", L"41"), "lineweight=25 transparency=50 plotStyle=Thick");
    EXPECT_EQ(overrides(L"Walls", L"42"), "");
    EXPECT_EQ(spy.take().size(), 5 * kEnded.size());
}

TEST_F(VpLayerCommandTest, TheLinetypeTextWithItsEmptyAnswerEndsWithoutAChange) {
    // The linetype's name stands where the layers would: the empty answer
    // leaves the option, and the lines after it are read as options.
    runToEnd(L"'_.VPLAYER\n_LTYPE\n\n=DASHED\n_CURRENT\n\n");
    EXPECT_EQ(overrides(L"Walls", L"41"), "");
    EXPECT_EQ(takeLog(), (Lines{"Command: '_.VPLAYER", kOptions + "_LTYPE",
                                "Enter a loaded linetype name: ", kOptions + "=DASHED",
                                "Invalid option keyword.", kOptions + "_CURRENT",
                                "Invalid option keyword.", kOptions}));
    EXPECT_EQ(spy.take(), kEnded);

    runToEnd(L"'_.VPLAYER\n_LTYPE\nDASHED\n=Walls\n_CURRENT\n\n");
    EXPECT_EQ(overrides(L"Walls", L"41"), "linetype=DASHED");
}

TEST_F(VpLayerCommandTest, AllAndSelectNameOtherViewportsThanTheCurrentOne) {
    runToEnd(L"VPLAYER\nFreeze\nDoors\nAll\n\n");
    EXPECT_EQ(overrides(L"Doors", L"41"), "frozen=1");
    EXPECT_EQ(overrides(L"Doors", L"42"), "frozen=1");
    EXPECT_EQ(overrides(L"Doors", L"40"), "") << "the paper is no viewport of the layout's";

    runToEnd(L"VPLAYER\nColor\n2\nDoors\nSelect\n42\n\n\n");
    EXPECT_EQ(overrides(L"Doors", L"42"), "color=2 frozen=1");
    EXPECT_EQ(overrides(L"Doors", L"41"), "frozen=1");
    // The default viewport is the current one.
    runToEnd(L"VPLAYER\nT\nDoors\n\n\n");
    EXPECT_EQ(overrides(L"Doors", L"41"), "");
}

TEST_F(VpLayerCommandTest, InModelSpaceTheCommandRefusesAtOnce) {
    run(L"TILEMODE\n1\n");
    spy.take();
    takeLog();
    run(L"'_.VPLAYER\n_COLOR\n1\n=Walls\n_CURRENT\n\n");
    const Lines log = takeLog();
    ASSERT_GE(log.size(), 2u);
    EXPECT_EQ(log[1], "VPLAYER works only in a layout: set TILEMODE to 0 first.");
    EXPECT_EQ(overrides(L"Walls", L"41"), "");
    EXPECT_TRUE(host->commandNames().isEmpty());
    EXPECT_EQ(spy.take(), kFailed);
}

TEST_F(VpLayerCommandTest, BadInputIsAnErrorLineThatChangesNothingAndLeavesNoPrompt) {
    struct Case {
        const wchar_t* text;
        const char* error;
    };
    const Case cases[] = {
        {L"'_.VPLAYER\n_COLOR\n1\n=Nowhere\n_CURRENT\n\n", "Cannot find layer \"Nowhere\"."},
        {L"'_.VPLAYER\n_COLOR\n0\n=Walls\n_CURRENT\n\n",
         "Invalid color \"0\": requires a color number from 1 to 255 or a color name."},
        {L"'_.VPLAYER\n_COLOR\n_TRUECOLOR\n1,2\n=Walls\n_CURRENT\n\n",
         "Invalid true color \"1,2\": requires red, green and blue from 0 to 255."},
        {L"'_.VPLAYER\n_LTYPE\nZIGZAG\n=Walls\n_CURRENT\n\n", "Cannot find linetype \"ZIGZAG\"."},
        {L"'_.VPLAYER\n_LWEIGHT\n3 mm\n=Walls\n_CURRENT\n\n",
         "Invalid lineweight \"3 mm\": requires a standard lineweight in millimeters."},
        {L"'_.VPLAYER\n_TRANSPARENCY\n91\n=Walls\n_CURRENT\n\n",
         "Invalid transparency \"91\": requires a whole percentage from 0 to 90."},
        {L"VPLAYER\nFreeze\nWalls\nCurrent\nColor\n1\nNowhere\n", "Cannot find layer \"Nowhere\"."},
    };
    for (const Case& test : cases) {
        run(test.text);
        EXPECT_EQ(overrides(L"Walls", L"41"), "") << utf8(test.text);
        EXPECT_TRUE(host->commandNames().isEmpty()) << utf8(test.text);
        bool found = false;
        for (const std::string& line : takeLog()) {
            found = found || line == test.error;
        }
        EXPECT_TRUE(found) << utf8(test.text);
        EXPECT_EQ(spy.take(), kFailed) << utf8(test.text);
    }
}

TEST_F(VpLayerCommandTest, WithoutACurrentViewportCurrentIsAnError) {
    ASSERT_EQ(host->leaveViewport(), Kyro::eOk);
    spy.take();
    run(L"'_.VPLAYER\n_FREEZE\n=Walls\n_CURRENT\n\n");
    EXPECT_EQ(takeLog().back(), "No viewport is current.");
    EXPECT_EQ(spy.take(), kFailed);
}

TEST_F(VpLayerCommandTest, ColorDependentPlotStylesLeaveNoPlotStyleToOverride) {
    {
        KyAxDocLock lock(db());
        ASSERT_EQ(db()->setPlotStyleMode(true), Kyro::eOk);
    }
    run(L"'_.VPLAYER\nPSTYLE\nThick\n=Walls\n_CURRENT\n\n");
    EXPECT_EQ(takeLog()[3],
              "The drawing uses color-dependent plot styles: layers have no plot style.");
    EXPECT_EQ(overrides(L"Walls", L"41"), "");
}

TEST_F(VpLayerCommandTest, ACancelInTheMiddleChangesNothing) {
    run(L"VPLAYER\nColor\n1\nWalls\n\x03");
    EXPECT_EQ(overrides(L"Walls", L"41"), "");
    EXPECT_TRUE(host->commandNames().isEmpty());
    EXPECT_EQ(takeLog().back(), kViewports + "*Cancel*");
    EXPECT_EQ(spy.take(), kFailed);
}

TEST_F(VpLayerCommandTest, UndoTakesBackAnOverrideAndAFreeze) {
    runToEnd(L"'_.VPLAYER\n_COLOR\n1\n=Walls\n_CURRENT\n_FREEZE\n=Doors\n_CURRENT\n\n");
    EXPECT_EQ(overrides(L"Walls", L"41"), "color=1");
    EXPECT_EQ(overrides(L"Doors", L"41"), "frozen=1");
    runToEnd(L"U\n");
    EXPECT_EQ(overrides(L"Walls", L"41"), "");
    EXPECT_EQ(overrides(L"Doors", L"41"), "");
    EXPECT_EQ(takeLog().back(), "Undone: VPLAYER");
}

}  // namespace
}  // namespace refhost
