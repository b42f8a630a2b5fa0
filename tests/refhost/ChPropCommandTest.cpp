// CHPROP as the data item layer sends it for the properties of the selected
// objects: each property text changes what a user then reads on the objects,
// locked layers are left alone, U takes a change back, and text the host
// can't take changes nothing and leaves it at the command prompt.
#include <string>

#include "DrawingContent.h"
#include "KyRefNamedItem.h"
#include "RefHostTestSupport.h"
#include "base/KyRxResourceInstance.h"
#include "db/KyCmColorBook.h"
#include "db/KyDbEntity.h"
#include "db/KyDbHostApplicationServices.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbStandardContent.h"

namespace refhost {
namespace {

const std::string kPropertyPrompt =
    "Enter property to change "
    "[Color/LAyer/LType/ltScale/LWeight/Thickness/TRansparency/Material/PLotstyle]: ";

class ChPropCommandTest : public RefHostTest {
protected:
    ChPropCommandTest()
        : content(db()),
          walls(addLayer(L"Walls")),
          locked(addLayer(L"Locked", true)),
          dashed(content.addRecord<KyDbLinetypeTableRecord>(db()->linetypeTableId(), L"Dashed")),
          first(addEntity()),
          second(addEntity()),
          onLocked(addEntity(L"Locked")) {
        host->selectionService()->setSelection({first, second});
        spy.take();
    }

    static KyDbObjectId layerOf(KyDbObjectId id) { return read(id)->layerId(); }
    static KyCmColor colorOf(KyDbObjectId id) { return read(id)->color(); }
    static KyDb::LineWeight weightOf(KyDbObjectId id) { return read(id)->lineWeight(); }

    static KyDbObjectPointer<KyDbEntity> read(KyDbObjectId id) {
        return KyDbObjectPointer<KyDbEntity>(id, KyDb::kForRead);
    }

    // Runs `text` and expects it to end at the command prompt.
    void runToEnd(const std::wstring& text) {
        run(text.c_str());
        EXPECT_TRUE(host->commandNames().isEmpty()) << utf8(text.c_str());
    }

    DrawingContent content;
    KyDbObjectId walls;
    KyDbObjectId locked;
    KyDbObjectId dashed;
    KyDbObjectId first;
    KyDbObjectId second;
    KyDbObjectId onLocked;
};

TEST_F(ChPropCommandTest, TheLayerTextMovesTheSelectionWithTheEventsOfOneCommand) {
    runToEnd(L"_chprop\n_layer\nWalls\n\n");
    EXPECT_EQ(layerOf(first), walls);
    EXPECT_EQ(layerOf(second), walls);
    EXPECT_EQ(takeLog(), (Lines{"Command: _chprop", "2 found", kPropertyPrompt + "_layer",
                                "Enter new layer name: Walls", kPropertyPrompt}));
    EXPECT_EQ(spy.take(),
              (Lines{"commandWillStart CHPROP", "commandEnded CHPROP", "refreshNeeded false"}));
    EXPECT_TRUE(host->selectionService()->hasSelection()) << "the selection stays";
}

TEST_F(ChPropCommandTest, UTakesTheWholeChangeBack) {
    runToEnd(L"_chprop\n_layer\nWalls\n_color\nred\n_ltype\nDashed\n\n");
    takeLog();
    run(L"U\n");
    EXPECT_NE(layerOf(first), walls);
    EXPECT_TRUE(colorOf(first).isByLayer());
    EXPECT_NE(read(second)->linetypeId(), dashed);
    EXPECT_EQ(takeLog(), (Lines{"Command: U", "Undone: CHPROP"}));
}

TEST_F(ChPropCommandTest, EveryColorTextTheDataItemLayerWritesIsTaken) {
    KyCmColor book;
    book.setRGB(187, 30, 16);
    book.setNames(L"3020", L"RAL");
    ASSERT_EQ(KyCmColorBook::addColor(book), Kyro::eOk);
    KyCmColor signal;
    signal.setRGB(0, 128, 0);
    signal.setNames(L"Signal");
    ASSERT_EQ(KyCmColorBook::addColor(signal), Kyro::eOk);

    KyCmColor index;
    index.setColorIndex(30);
    KyCmColor red;
    red.setColorIndex(KyCmColor::kACIRed);
    KyCmColor byBlock;
    byBlock.setColorMethod(KyCmColor::kByBlock);
    KyCmColor byLayer;
    KyCmColor rgb;
    rgb.setRGB(10, 20, 30);
    const std::pair<std::wstring, KyCmColor> cases[] = {
        {L"_chprop\n_color\nred\n\n", red},
        {L"_chprop\n_color\n30\n\n", index},
        {L"_chprop\n_color\nByBlock\n\n", byBlock},
        {L"_chprop\n_color\nBYLAYER\n\n", byLayer},
        {L"_chprop\n_color\n10,20,30\n\n", rgb},
        {L"_chprop\n_color\n_Truecolor\n10,20,30\n\n", rgb},
        {L"_chprop\n_color\n_COlorbook\nRAL\n3020\n\n", book},
        {L"_chprop\n_color\nRAL$3020\n\n", book},
        {L"_chprop\n_color\nSignal\n\n", signal},
    };
    for (const auto& [text, expected] : cases) {
        runToEnd(text);
        EXPECT_EQ(colorOf(first), expected) << utf8(text.c_str());
        EXPECT_EQ(colorOf(second), expected) << utf8(text.c_str());
    }
    KyCmColorBook::clear();
}

TEST_F(ChPropCommandTest, LineweightsAreReadInTheUnitsTheyAreShownIn) {
    const short units = gLineWeightUnits;
    gLineWeightUnits = 1;  // millimetres
    runToEnd(L"_chprop\n_lweight\n0.25\n\n");
    EXPECT_EQ(weightOf(first), KyDb::kLnWt025);
    runToEnd(L"_chprop\n_lweight\n0.250\n\n");
    EXPECT_EQ(weightOf(first), KyDb::kLnWt025);
    runToEnd(L"_chprop\n_lweight\n2.11\n\n");
    EXPECT_EQ(weightOf(first), KyDb::kLnWt211);
    gLineWeightUnits = 0;  // inches: a width takes the standard weight nearest to it
    runToEnd(L"_chprop\n_lweight\n0.010\n\n");
    EXPECT_EQ(weightOf(first), KyDb::kLnWt025);
    runToEnd(L"_chprop\n_lweight\n0.021\n\n");
    EXPECT_EQ(weightOf(second), KyDb::kLnWt053);
    gLineWeightUnits = units;

    const std::pair<const wchar_t*, KyDb::LineWeight> words[] = {
        {L"_chprop\n_lweight\n_byblock\n\n", KyDb::kLnWtByBlock},
        {L"_chprop\n_lweight\n_default\n\n", KyDb::kLnWtByLwDefault},
        {L"_chprop\n_lweight\nByLayer\n\n", KyDb::kLnWtByLayer},
    };
    for (const auto& [text, weight] : words) {
        runToEnd(text);
        EXPECT_EQ(weightOf(second), weight) << utf8(text);
    }
}

// LWEIGHTUNITS, typed as a user types it, says which units the widths that
// CHPROP reads are in; values other than 0 and 1 are refused as the table
// refuses any number out of its range.
TEST_F(ChPropCommandTest, TheLineweightUnitsVariableSaysHowAWidthIsRead) {
    EXPECT_EQ(getShort(L"LWEIGHTUNITS"), 1) << "millimetres, as the platform starts";
    run(L"LWEIGHTUNITS\n0\n");
    EXPECT_EQ(gLineWeightUnits, 0);
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart LWEIGHTUNITS", "sysVarChanged LWEIGHTUNITS true",
                                 "commandEnded LWEIGHTUNITS", "refreshNeeded false"}));
    runToEnd(L"_chprop\n_lweight\n0.010\n\n");
    EXPECT_EQ(weightOf(first), KyDb::kLnWt025) << "0.010 inches";

    takeLog();
    run(L"LWEIGHTUNITS\n2\n-1\nmm\n1\n");
    EXPECT_EQ(
        takeLog(),
        (Lines{"Command: LWEIGHTUNITS", "Enter new value for LWEIGHTUNITS <0>: 2",
               "Requires an integer between 0 and 1.", "Enter new value for LWEIGHTUNITS <0>: -1",
               "Requires an integer between 0 and 1.", "Enter new value for LWEIGHTUNITS <0>: mm",
               "Requires an integer between 0 and 1.", "Enter new value for LWEIGHTUNITS <0>: 1"}));
    EXPECT_EQ(gLineWeightUnits, 1);
    runToEnd(L"_chprop\n_lweight\n0.010\n\n");
    EXPECT_EQ(weightOf(first), KyDb::kLnWt000) << "0.010 millimetres: the nearest is 0.00 mm";
    runToEnd(L"_chprop\n_lweight\n0.53\n\n");
    EXPECT_EQ(weightOf(first), KyDb::kLnWt053);
}

TEST_F(ChPropCommandTest, SeveralPropertiesChangeInOneCommand) {
    runToEnd(L"_chprop\n_ltype\nDashed\n_ltscale\n2.5\n_transparency\n40\n_material\nGlobal\n\n");
    const KyDbObjectPointer<KyDbEntity> entity = read(second);
    EXPECT_EQ(entity->linetypeId(), dashed);
    EXPECT_DOUBLE_EQ(entity->linetypeScale(), 2.5);
    EXPECT_FALSE(entity->transparency().isByLayer());
    EXPECT_EQ(entity->materialId(), KyRefNamedItem::find(db()->materialDictionaryId(), L"Global"));
}

TEST_F(ChPropCommandTest, WithoutASelectionItAsksForObjectsAndLeavesLockedLayersAlone) {
    host->selectionService()->clear();
    takeLog();
    runToEnd(L"CHPROP\n" + handleOf(first) + L"\n" + handleOf(onLocked) + L"\n\n_color\n3\n\n");
    EXPECT_EQ(colorOf(first).colorIndex(), 3);
    EXPECT_TRUE(colorOf(onLocked).isByLayer());
    EXPECT_FALSE(host->selectionService()->hasSelection());
    const Lines log = takeLog();
    ASSERT_EQ(log.size(), 10u);
    EXPECT_EQ(log[5], "Select objects: ");
    EXPECT_EQ(log[6], "1 was on a locked layer.");
    EXPECT_EQ(log[7], kPropertyPrompt + "_color");
}

TEST_F(ChPropCommandTest, ObjectsOnALockedLayerInTheSelectionAreLeftAlone) {
    host->selectionService()->setSelection({onLocked, first});
    runToEnd(L"_chprop\n_layer\nWalls\n\n");
    EXPECT_EQ(layerOf(first), walls);
    EXPECT_EQ(layerOf(onLocked), locked);
    EXPECT_EQ(takeLog()[2], "1 was on a locked layer.");
}

TEST_F(ChPropCommandTest, AValueItCantTakeIsAnErrorAndTakesTheWholeCommandBack) {
    const std::pair<const wchar_t*, const char*> cases[] = {
        {L"_chprop\n_color\nred\n_layer\nNoSuchLayer\n\n", "Cannot find layer \"NoSuchLayer\"."},
        {L"_chprop\n_ltype\nZigzag\n\n", "Cannot find linetype \"Zigzag\"."},
        {L"_chprop\n_color\nsunset\n\n", "Invalid color \"sunset\"."},
        {L"_chprop\n_color\n_Truecolor\n300,0,0\n\n",
         "Requires three values from 0 to 255 (Red,Green,Blue)."},
        {L"_chprop\n_color\n_COlorbook\nRAL\n9999\n\n",
         "Cannot find color \"9999\" in color book \"RAL\"."},
        {L"_chprop\n_lweight\n-0.25\n\n", "Invalid lineweight \"-0.25\"."},
        {L"_chprop\n_transparency\n95\n\n",
         "Requires ByLayer, ByBlock or a whole number from 0 to 90."},
        {L"_chprop\n_ltscale\n0\n\n", "Requires a positive number."},
        {L"_chprop\n_material\nGold\n\n", "Cannot find material \"Gold\"."},
        {L"_chprop\n_plotstyle\nNormal\n\n",
         "The drawing plots by colour: its objects have no plot styles."},
    };
    for (const auto& [text, error] : cases) {
        runToEnd(text);
        EXPECT_EQ(takeLog().back(), error) << utf8(text);
        EXPECT_EQ(spy.take(), (Lines{"commandWillStart CHPROP", "refreshNeeded false"}))
            << utf8(text);
        EXPECT_TRUE(colorOf(first).isByLayer()) << utf8(text);
        EXPECT_NE(layerOf(first), walls) << utf8(text);
    }
}

TEST_F(ChPropCommandTest, ACancelInTheMiddleChangesNothing) {
    runToEnd(L"_chprop\n_layer\nWalls\n_color\n\x03");
    EXPECT_NE(layerOf(first), walls);
    EXPECT_EQ(takeLog().back(), "Enter new color [Truecolor/COlorbook]: *Cancel*");
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart CHPROP", "refreshNeeded false"}));
}

TEST_F(ChPropCommandTest, AnUnknownPropertyIsAskedAgainAndAnEmptyValueKeepsTheProperty) {
    runToEnd(L"_chprop\n_height\n_color\n\n\n");
    EXPECT_TRUE(colorOf(first).isByLayer());
    EXPECT_EQ(takeLog(), (Lines{"Command: _chprop", "2 found", kPropertyPrompt + "_height",
                                "Invalid option keyword.", kPropertyPrompt + "_color",
                                "Enter new color [Truecolor/COlorbook]: ", kPropertyPrompt}));
}

TEST_F(ChPropCommandTest, NamedPlotStylesAreSetInADrawingThatHasThem) {
    {
        KyAxDocLock lock(db());
        ASSERT_EQ(db()->setPlotStyleMode(false), Kyro::eOk);
    }
    runToEnd(L"_chprop\n_plotstyle\nnormal\n\n");
    EXPECT_EQ(read(first)->plotStyleName(), L"Normal");
    runToEnd(L"_chprop\n_plotstyle\nByBlock\n\n");
    EXPECT_EQ(read(first)->plotStyleName(), L"ByBlock");
}

TEST_F(ChPropCommandTest, TheHostsSecondLanguageTakesItsOwnWordsAndTheGlobalOnes) {
    KyRxResourceInstance::setLanguage(L"de");
    runToEnd(L"EIGAENDR\nLAyer\nWalls\nFarbe\nVonBlock\n\n");
    EXPECT_EQ(layerOf(first), walls);
    EXPECT_TRUE(colorOf(first).isByBlock());
    EXPECT_EQ(spy.take(),
              (Lines{"commandWillStart CHPROP", "commandEnded CHPROP", "refreshNeeded false"}));
    runToEnd(L"_chprop\n_ltype\nVonLayer\n_lweight\n_bylayer\n\n");
    EXPECT_EQ(weightOf(second), KyDb::kLnWtByLayer);
    KyRxResourceInstance::setLanguage(L"");
}

}  // namespace
}  // namespace refhost
