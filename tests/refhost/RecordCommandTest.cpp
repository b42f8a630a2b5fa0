// RECORD makes, renames and erases the records of every table and the entries
// of every named dictionary, as one command each that U takes back; what the
// drawing or the host refuses is an error line that changes nothing.
#include <unistd.h>

#include <filesystem>
#include <string>

#include "DrawingContent.h"
#include "KyRefNamedItem.h"
#include "RefHostTestSupport.h"
#include "base/KyRxResourceInstance.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDimStyleTableRecord.h"
#include "db/KyDbEntity.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbLayout.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbMLeaderStyle.h"
#include "db/KyDbMaterial.h"
#include "db/KyDbModelDocViewStyle.h"
#include "db/KyDbPlotSettings.h"
#include "db/KyDbTableStyle.h"
#include "db/KyDbTextStyleTableRecord.h"
#include "db/KyDbViewportTableRecord.h"
#include "db/KyDbVisualStyle.h"

namespace refhost {
namespace {

namespace fs = std::filesystem;

class RecordCommandTest : public RefHostTest {
protected:
    RecordCommandTest() { spy.take(); }

    KyDbObjectId find(KyDbObjectId (KyDbDatabase::*container)() const, const wchar_t* name) const {
        return KyRefNamedItem::find((db()->*container)(), name);
    }
    // The name the table or dictionary holds `id` under.
    std::string keyOf(KyDbObjectId (KyDbDatabase::*container)() const, KyDbObjectId id) const {
        return KyRefNamedItem::nameOf((db()->*container)(), id).utf8();
    }
    // Runs `text` and expects the events of a RECORD that ended.
    void runRecord(const wchar_t* text) {
        run(text);
        EXPECT_EQ(spy.take(),
                  (Lines{"commandWillStart RECORD", "commandEnded RECORD", "refreshNeeded false"}))
            << utf8(text);
        EXPECT_TRUE(host->commandNames().isEmpty());
    }
    // Runs `text` and expects a RECORD that failed with `error` as its last
    // line, at no prompt.
    void expectRefused(const wchar_t* text, const std::string& error) {
        run(text);
        EXPECT_EQ(takeLog().back(), error) << utf8(text);
        EXPECT_EQ(spy.take(), (Lines{"commandWillStart RECORD", "refreshNeeded false"}))
            << utf8(text);
        EXPECT_TRUE(host->commandNames().isEmpty());
    }
};

TEST_F(RecordCommandTest, ALinetypeIsMadeRenamedAndErasedAndUTakesEachStepBack) {
    const auto linetypes = &KyDbDatabase::linetypeTableId;
    runRecord(L"RECORD\n_New\nLINETYPE\nDashed\n");
    EXPECT_EQ(takeLog(), (Lines{"Command: RECORD", "Enter an option [New/Rename/Erase]: _New",
                                "Enter the kind of record "
                                "[LAYER/LINETYPE/TEXTSTYLE/DIMSTYLE/VIEW/UCS/VIEWPORT/TABLESTYLE/"
                                "MLEADERSTYLE/SECTIONVIEWSTYLE/DETAILVIEWSTYLE/MATERIAL/LAYOUT/"
                                "PLOTSETTINGS/VISUALSTYLE]: LINETYPE",
                                "Enter name of new linetype: Dashed"}));
    const KyDbObjectId dashed = find(linetypes, L"Dashed");
    ASSERT_FALSE(dashed.isNull());

    runRecord(L"RECORD\n_Rename\nLINETYPE\nDashed\nDotted\n");
    EXPECT_EQ(find(linetypes, L"Dotted"), dashed) << "the same record under its new name";
    EXPECT_TRUE(find(linetypes, L"Dashed").isNull());
    EXPECT_EQ(takeLog().back(), "Enter new name for linetype \"Dashed\": Dotted");

    runRecord(L"RECORD\n_Erase\nLINETYPE\nDotted\n");
    EXPECT_TRUE(dashed.isErased());

    run(L"U\n");
    EXPECT_FALSE(dashed.isErased());
    EXPECT_EQ(keyOf(linetypes, dashed), "Dotted");
    run(L"U\n");
    EXPECT_EQ(keyOf(linetypes, dashed), "Dashed");
    run(L"U\n");
    EXPECT_TRUE(dashed.isErased());
    run(L"REDO\n");
    EXPECT_EQ(find(linetypes, L"Dashed"), dashed);
}

template <typename T, auto get>
std::string ownName(KyDbObjectId id) {
    const KyDbObjectPointer<T> object(id, KyDb::kForRead, true);
    return object ? ((*object.object()).*get)().utf8() : std::string("?");
}

struct KindCase {
    const wchar_t* word;
    KyDbObjectId (KyDbDatabase::*container)() const;
    // The entry's own name; null for a record, whose name is its key.
    std::string (*ownName)(KyDbObjectId id);
};

const KindCase kKinds[] = {
    {L"LAYER", &KyDbDatabase::layerTableId, nullptr},
    {L"LINETYPE", &KyDbDatabase::linetypeTableId, nullptr},
    {L"TEXTSTYLE", &KyDbDatabase::textStyleTableId, nullptr},
    {L"DIMSTYLE", &KyDbDatabase::dimStyleTableId, nullptr},
    {L"VIEW", &KyDbDatabase::viewTableId, nullptr},
    {L"UCS", &KyDbDatabase::UCSTableId, nullptr},
    {L"VIEWPORT", &KyDbDatabase::viewportTableId, nullptr},
    {L"TABLESTYLE", &KyDbDatabase::tableStyleDictionaryId,
     &ownName<KyDbTableStyle, &KyDbTableStyle::name>},
    {L"MLEADERSTYLE", &KyDbDatabase::mleaderStyleDictionaryId,
     &ownName<KyDbMLeaderStyle, &KyDbMLeaderStyle::name>},
    {L"SECTIONVIEWSTYLE", &KyDbDatabase::sectionViewStyleDictionaryId,
     &ownName<KyDbModelDocViewStyle, &KyDbModelDocViewStyle::name>},
    {L"DETAILVIEWSTYLE", &KyDbDatabase::detailViewStyleDictionaryId,
     &ownName<KyDbModelDocViewStyle, &KyDbModelDocViewStyle::name>},
    {L"MATERIAL", &KyDbDatabase::materialDictionaryId, &ownName<KyDbMaterial, &KyDbMaterial::name>},
    {L"LAYOUT", &KyDbDatabase::layoutDictionaryId, &ownName<KyDbLayout, &KyDbLayout::layoutName>},
    {L"PLOTSETTINGS", &KyDbDatabase::plotSettingsDictionaryId,
     &ownName<KyDbPlotSettings, &KyDbPlotSettings::plotSettingsName>},
    {L"VISUALSTYLE", &KyDbDatabase::visualStyleDictionaryId,
     &ownName<KyDbVisualStyle, &KyDbVisualStyle::name>},
};

TEST_F(RecordCommandTest, EveryKindIsMadeRenamedAndErasedInItsTableOrDictionary) {
    for (const KindCase& kind : kKinds) {
        const std::wstring word = kind.word;
        runRecord((L"RECORD\n_New\n" + word + L"\nAlpha\n").c_str());
        const KyDbObjectId id = find(kind.container, L"Alpha");
        ASSERT_FALSE(id.isNull()) << utf8(kind.word);
        if (kind.ownName != nullptr) {
            EXPECT_EQ(kind.ownName(id), "Alpha") << utf8(kind.word);
        }

        runRecord((L"RECORD\n_Rename\n" + word + L"\nalpha\nBeta\n").c_str());
        EXPECT_EQ(find(kind.container, L"Beta"), id) << utf8(kind.word);
        EXPECT_EQ(keyOf(kind.container, id), "Beta") << utf8(kind.word);
        if (kind.ownName != nullptr) {
            EXPECT_EQ(kind.ownName(id), "Beta") << utf8(kind.word);
        }

        runRecord((L"RECORD\n_Erase\n" + word + L"\nBeta\n").c_str());
        EXPECT_TRUE(id.isErased()) << utf8(kind.word);
        EXPECT_TRUE(find(kind.container, L"Beta").isNull()) << utf8(kind.word);
        run(L"U\n");
        EXPECT_EQ(find(kind.container, L"Beta"), id) << utf8(kind.word);
        spy.take();
    }
}

TEST_F(RecordCommandTest, ANewRecordOfEveryKindIsSavedAndReadBack) {
    for (const KindCase& kind : kKinds) {
        runRecord((L"RECORD\n_New\n" + std::wstring(kind.word) + L"\nAlpha\n").c_str());
    }
    const fs::path file =
        fs::temp_directory_path() / ("kydi-new-records-" + std::to_string(getpid()) + ".kyd");
    KyString error;
    ASSERT_TRUE(host->documents().saveDocument(host->documents().current(),
                                               KyString::fromUtf8(file.string()), error))
        << error.utf8();
    KyRefDocument* reopened =
        host->documents().openDocument(KyString::fromUtf8(file.string()), error);
    fs::remove(file);
    ASSERT_NE(reopened, nullptr) << error.utf8();
    for (const KindCase& kind : kKinds) {
        EXPECT_FALSE(find(kind.container, L"Alpha").isNull()) << utf8(kind.word);
    }
}

TEST_F(RecordCommandTest, ALayoutComesWithABlockOfItsOwnWhichGoesWithIt) {
    runRecord(L"RECORD\n_New\nLAYOUT\nSheet\n");
    const KyDbObjectId sheet = find(&KyDbDatabase::layoutDictionaryId, L"Sheet");
    KyDbObjectId blockId;
    {
        const KyDbObjectPointer<KyDbLayout> layout(sheet, KyDb::kForRead);
        ASSERT_TRUE(layout);
        EXPECT_EQ(layout->tabOrder(), 2);
        blockId = layout->getBlockTableRecordId();
        const KyDbObjectPointer<KyDbBlockTableRecord> block(blockId, KyDb::kForRead);
        ASSERT_TRUE(block);
        EXPECT_EQ(block->name().utf8(), "*Paper_Space0");
        EXPECT_EQ(block->getLayoutId(), sheet);
    }
    DrawingContent content(db());
    const KyDbObjectId entity = content.addEntityTo<KyDbEntity>(blockId, [](KyDbEntity&) {});

    runRecord(L"RECORD\n_Erase\nLAYOUT\nSheet\n");
    EXPECT_TRUE(sheet.isErased());
    EXPECT_TRUE(blockId.isErased());
    EXPECT_TRUE(entity.isErased());
    run(L"U\n");
    EXPECT_FALSE(sheet.isErased());
    EXPECT_FALSE(blockId.isErased());
    EXPECT_FALSE(entity.isErased());
}

TEST_F(RecordCommandTest, BadInputAndWhatTheDrawingRefusesAreErrorLinesThatChangeNothing) {
    const KyDbObjectId walls = addLayer(L"Walls");
    addLayer(L"Doors");
    DrawingContent content(db());
    const KyDbObjectId mono =
        content.addRecord<KyDbTextStyleTableRecord>(db()->textStyleTableId(), L"Mono");
    const KyDbObjectId spare =
        content.addRecord<KyDbViewportTableRecord>(db()->viewportTableId(), L"*Spare");
    {
        KyAxDocLock lock(db());
        db()->undoController()->setRecording(false);
        ASSERT_EQ(db()->setClayer(walls), Kyro::eOk);
        ASSERT_EQ(db()->setTextstyle(mono), Kyro::eOk);
        db()->undoController()->setRecording(true);
    }
    spy.take();
    takeLog();
    const int undoCount = db()->undoController()->undoCount();

    expectRefused(L"RECORD\n_Frob\n", "Invalid option keyword \"_Frob\".");
    expectRefused(L"RECORD\n_New\nWIDGET\n", "Unknown kind of record \"WIDGET\".");
    expectRefused(L"RECORD\n_New\nLAYER\nwalls\n", "A layer named \"walls\" already exists.");
    expectRefused(L"RECORD\n_New\nLAYER\nA<B\n", "Invalid layer name \"A<B\".");
    expectRefused(L"RECORD\n_New\nMATERIAL\nX|Y\n", "Invalid material name \"X|Y\".");
    expectRefused(L"RECORD\n_New\nVIEWPORT\n*Active\n",
                  "Invalid viewport configuration name \"*Active\".");
    expectRefused(L"RECORD\n_Rename\nVIEWPORT\n*spare\n",
                  "Cannot rename viewport configuration \"*Spare\": it is the drawing's own.");
    expectRefused(L"RECORD\n_Erase\nVIEWPORT\n*Spare\n",
                  "Cannot erase viewport configuration \"*Spare\": it is the drawing's own.");
    expectRefused(L"RECORD\n_Rename\nLINETYPE\nDashed\n", "Cannot find linetype \"Dashed\".");
    expectRefused(L"RECORD\n_Rename\nLAYER\nWalls\nDoors\n",
                  "A layer named \"Doors\" already exists.");
    expectRefused(L"RECORD\n_Rename\nLAYER\n0\nZero\n", "Cannot rename layer \"0\".");
    expectRefused(L"RECORD\n_Rename\nTEXTSTYLE\nStandard\nPlain\n",
                  "Cannot rename text style \"Standard\".");
    expectRefused(L"RECORD\n_Rename\nMATERIAL\nGlobal\nWorld\n",
                  "Cannot rename material \"Global\".");
    expectRefused(L"RECORD\n_Rename\nLAYOUT\nModel\nSpace\n", "Cannot rename layout \"Model\".");
    expectRefused(L"RECORD\n_Erase\nLAYER\n0\n", "Cannot erase layer \"0\".");
    expectRefused(L"RECORD\n_Erase\nLAYER\nWALLS\n", "Cannot erase the current layer \"Walls\".");
    expectRefused(L"RECORD\n_Erase\nTEXTSTYLE\nStandard\n",
                  "Cannot erase text style \"Standard\": it is in use.");
    expectRefused(L"RECORD\n_Erase\nTEXTSTYLE\nMono\n",
                  "Cannot erase the current text style \"Mono\".");
    expectRefused(L"RECORD\n_Erase\nLINETYPE\nByLayer\n",
                  "Cannot erase the current linetype \"ByLayer\".");
    expectRefused(L"RECORD\n_Erase\nLINETYPE\nContinuous\n",
                  "Cannot erase linetype \"Continuous\": it is in use.");
    expectRefused(L"RECORD\n_Erase\nLINETYPE\nByBlock\n", "Cannot erase linetype \"ByBlock\".");
    expectRefused(L"RECORD\n_Erase\nMATERIAL\nGlobal\n", "Cannot erase material \"Global\".");
    expectRefused(L"RECORD\n_Erase\nTABLESTYLE\nStandard\n",
                  "Cannot erase the current table style \"Standard\".");
    expectRefused(L"RECORD\n_Erase\nVISUALSTYLE\nRealistic\n",
                  "Cannot erase visual style \"Realistic\".");
    expectRefused(L"RECORD\n_Erase\nLAYOUT\nModel\n", "Cannot erase layout \"Model\".");
    expectRefused(L"RECORD\n_Erase\nLAYOUT\nLayout1\n",
                  "Cannot erase layout \"Layout1\": it holds the paper space.");

    EXPECT_EQ(db()->undoController()->undoCount(), undoCount) << "nothing was recorded";
    EXPECT_FALSE(walls.isErased());
    EXPECT_FALSE(spare.isErased());
    EXPECT_EQ(getString(L"CLAYER"), "Walls");
}

TEST_F(RecordCommandTest, WhatTheDrawingRefersToStaysUntilNothingDoesAndTheSavedDrawingReadsBack) {
    DrawingContent content(db());
    const KyDbObjectId dashed =
        content.addRecord<KyDbLinetypeTableRecord>(db()->linetypeTableId(), L"Dashed");
    const KyDbObjectId walls = content.addRecord<KyDbLayerTableRecord>(
        db()->layerTableId(), L"Walls",
        [dashed](KyDbLayerTableRecord& layer) { layer.setLinetypeObjectId(dashed); });
    const KyDbObjectId mono =
        content.addRecord<KyDbTextStyleTableRecord>(db()->textStyleTableId(), L"Mono");
    content.addRecord<KyDbDimStyleTableRecord>(
        db()->dimStyleTableId(), L"Arch",
        [mono](KyDbDimStyleTableRecord& style) { style.setDimtxsty(mono); });
    const KyDbObjectId entity = addEntity(L"Walls");
    spy.take();

    expectRefused(L"RECORD\n_Erase\nLAYER\nWalls\n", "Cannot erase layer \"Walls\": it is in use.");
    expectRefused(L"RECORD\n_Erase\nLINETYPE\nDashed\n",
                  "Cannot erase linetype \"Dashed\": it is in use.");
    expectRefused(L"RECORD\n_Erase\nTEXTSTYLE\nMono\n",
                  "Cannot erase text style \"Mono\": it is in use.");

    run((L"ERASE\n" + handleOf(entity) + L"\n\n").c_str());
    ASSERT_TRUE(entity.isErased());
    spy.take();
    runRecord(L"RECORD\n_Erase\nLAYER\nWalls\n");
    // Its layer is erased: nothing refers to the linetype any more.
    runRecord(L"RECORD\n_Erase\nLINETYPE\nDashed\n");
    EXPECT_TRUE(walls.isErased());
    EXPECT_TRUE(dashed.isErased());
    runRecord(L"RECORD\n_New\nLAYOUT\nSheet\n");
    runRecord(L"RECORD\n_Rename\nDIMSTYLE\nArch\nPlan\n");

    const fs::path file =
        fs::temp_directory_path() / ("kydi-records-" + std::to_string(getpid()) + ".kyd");
    KyString error;
    ASSERT_TRUE(host->documents().saveDocument(host->documents().current(),
                                               KyString::fromUtf8(file.string()), error))
        << error.utf8();
    KyRefDocument* reopened =
        host->documents().openDocument(KyString::fromUtf8(file.string()), error);
    fs::remove(file);
    ASSERT_NE(reopened, nullptr) << error.utf8();
    EXPECT_FALSE(find(&KyDbDatabase::layoutDictionaryId, L"Sheet").isNull());
    EXPECT_FALSE(find(&KyDbDatabase::dimStyleTableId, L"Plan").isNull());
    EXPECT_TRUE(find(&KyDbDatabase::layerTableId, L"Walls").isNull());
}

TEST_F(RecordCommandTest, ARenamedCurrentUcsOrLayerIsToldAndTheHostKeepsItsCurrentOnes) {
    runRecord(L"RECORD\n_New\nUCS\nPlan\n");
    run(L"UCS\n_NAmed\n_Restore\nPlan\n");
    ASSERT_EQ(getString(L"UCSNAME"), "Plan");
    spy.take();
    expectRefused(L"RECORD\n_Erase\nUCS\nplan\n", "Cannot erase the current UCS \"Plan\".");
    run(L"RECORD\n_Rename\nUCS\nPlan\nSite\n");
    EXPECT_EQ(getString(L"UCSNAME"), "Site");
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart RECORD", "sysVarChanged UCSNAME true",
                                 "ucsChanged", "commandEnded RECORD", "refreshNeeded false"}));

    // A renamed current layer is a new value of CLAYER.
    run(L"RECORD\n_New\nLAYER\nWalls\nCLAYER\nWalls\nRECORD\n_Rename\nLAYER\nWalls\nOuter walls\n");
    EXPECT_EQ(getString(L"CLAYER"), "Outer walls");
    const Lines events = spy.take();
    ASSERT_GE(events.size(), 4u);
    EXPECT_EQ(Lines(events.end() - 4, events.end()),
              (Lines{"commandWillStart RECORD", "sysVarChanged CLAYER true", "commandEnded RECORD",
                     "refreshNeeded false"}));

    runRecord(L"RECORD\n_New\nVISUALSTYLE\nMine\n");
    run(L"VSCURRENT\n_Other\nMine\n");
    spy.take();
    expectRefused(L"RECORD\n_Rename\nVISUALSTYLE\nMine\nYours\n",
                  "Cannot rename the current visual style \"Mine\".");
    expectRefused(L"RECORD\n_Erase\nVISUALSTYLE\nMine\n",
                  "Cannot erase the current visual style \"Mine\".");
}

TEST_F(RecordCommandTest, TheSecondLanguageHasItsOwnCommandOptionsAndKindWords) {
    KyRxResourceInstance::setLanguage(L"de");
    runRecord(L"EINTRAG\nNeu\nLINIENTYP\nStrich\n");
    const KyDbObjectId dash = find(&KyDbDatabase::linetypeTableId, L"Strich");
    EXPECT_FALSE(dash.isNull());
    runRecord(L"_RECORD\n_Rename\n_LINETYPE\nStrich\nPunkt\n");
    EXPECT_EQ(find(&KyDbDatabase::linetypeTableId, L"Punkt"), dash);
    runRecord(L"EINTRAG\nL\nLINIENTYP\nPunkt\n");
    EXPECT_TRUE(dash.isErased());
    KyRxResourceInstance::setLanguage(L"");
}

}  // namespace
}  // namespace refhost
