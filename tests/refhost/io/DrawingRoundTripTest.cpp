// Drawings read and written back: members nobody models come back at every
// level, members a file left out stay out, changes are written, what a file
// left out comes from a new drawing, and header variables name their items.
#include <gtest/gtest.h>

#include "DrawingTestSupport.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbLine.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbSymbolTable.h"
#include "rx/KyRxValue.h"

using namespace drawingio;

namespace {

KyRefJson withUnknownMembers() {
    KyRefJson document = smallDrawing();
    document["generator"] = {{"name", "a test"}, {"build", 7}};
    document["header"]["LUNITS"] = 4;
    document["header"]["EXTMIN"] = {-1.5, 2};
    document["header"]["MYSETTINGS"] = {{"mode", "fast"}};
    document["layerFilters"] = {{"name", "All"},
                                {"filters", {{{"name", "Walls"}, {"expression", "NAME==\"W*\""}}}}};
    document["layerStates"] = {{{"name", "Plot"}, {"layers", KyRefJson::array()}}};
    KyRefJson& walls = document["layers"][1];
    walls["owner"] = "facilities";
    walls["color"] = {{"rgb", {10, 20, 30}}, {"gloss", 0.5}};
    document["linetypes"][3]["scaleToFit"] = true;
    document["dimStyles"][0]["values"] = {{"DIMASZ", 2.5}, {"DIMBLK", {{"arrow", "dot"}}}};
    KyRefJson& model = document["blocks"][0];
    model["units"] = "mm";
    KyRefJson& line = model["entities"][0];
    line["thickness"] = 2;
    line["color"] = {{"rgb", {1, 2, 3}}, {"name", "Teal"}, {"finish", "matt"}};
    model["entities"][1]["attributes"] = {{{"tag", "NO"}, {"text", "12"}, {"lock", true}}};
    model["entities"].push_back({{"type", "SPLINE"},
                                 {"handle", "33"},
                                 {"layer", "Walls"},
                                 {"degree", 3},
                                 {"controlPoints", {{0, 0}, {1, 2}, {3, 1}}}});
    KyRefJson& entries = document["objects"]["entries"];
    entries["KYRO_LAYOUT"]["note"] = "kept";
    entries["KYRO_LAYOUT"]["entries"]["Model"]["paper"] = "A3";
    entries["ACME_DATA"] = {{"type", "XRECORD"}, {"handle", "40"}, {"values", {1, "two", 3.5}}};
    entries["KYRO_PLOTSTYLENAME"] = {
        {"type", "DICTIONARY"},
        {"handle", "41"},
        {"entries",
         {{"Normal", {{"type", "PLACEHOLDER"}, {"handle", "42"}, {"name", "Normal"}}},
          {"Thick", {{"type", "PLACEHOLDER"}, {"handle", "43"}, {"name", "THICK"}}}}},
        {"default", "Normal"}};
    return document;
}

// Opens `id` for write and runs `change` on it.
template <typename T, typename Change>
void change(KyDbObjectId id, Change change) {
    KyDbObjectPointer<T> object(id, KyDb::kForWrite);
    ASSERT_EQ(object.openStatus(), Kyro::eOk);
    change(object.object());
}

TEST(DrawingRoundTrip, MembersNobodyModelsComeBackAtEveryLevel) {
    const KyRefJson original = withUnknownMembers();
    const Reading reading = read(original);
    ASSERT_NE(reading.db, nullptr) << reading.error;
    const KyRefJson saved = save(reading.db.get());
    EXPECT_TRUE(unordered(saved) == unordered(original))
        << nlohmann::json::diff(unordered(original), unordered(saved));
}

TEST(DrawingRoundTrip, ChangesAreWrittenAndDefaultsTheFileLeftOutStayOut) {
    const Reading reading = read(withUnknownMembers());
    ASSERT_NE(reading.db, nullptr) << reading.error;
    KyDbDatabase* db = reading.db.get();
    change<KyDbLayerTableRecord>(recordNamed(db->layerTableId(), L"Walls"),
                                 [](KyDbLayerTableRecord* layer) {
                                     KyCmColor red;
                                     red.setColorIndex(1);
                                     layer->setColor(red);
                                     layer->setIsLocked(true);
                                     layer->setLineWeight(KyDb::kLnWtByLwDefault);
                                 });
    KyDbObjectId lineId;
    db->getKyDbObjectId(lineId, KyDbHandle(0x30));
    change<KyDbLine>(lineId, [](KyDbLine* line) { line->setEndPoint(KyGePoint3d(4, 4, 1)); });

    const KyRefJson saved = save(db);
    const KyRefJson& walls = saved["layers"][1];
    EXPECT_EQ(walls["color"], 1);  // a colour index now: the kept "gloss" has no place
    EXPECT_EQ(walls["locked"], true);
    EXPECT_EQ(walls["lineweight"], -3);  // given in the file, so written though a default
    EXPECT_EQ(walls["owner"], "facilities");
    EXPECT_FALSE(walls.contains("off"));
    EXPECT_FALSE(walls.contains("plotStyle"));
    const KyRefJson& line = saved["blocks"][0]["entities"][0];
    EXPECT_EQ(line["end"], KyRefJson({4.0, 4.0, 1.0}));
    EXPECT_EQ(line["start"], KyRefJson({0, 0}));
    EXPECT_EQ(line["thickness"], 2);
    EXPECT_FALSE(line.contains("linetype"));
}

TEST(DrawingRoundTrip, AFileWithoutTablesGetsANewDrawingsContentAndSavesBackAsItWas) {
    const KyRefJson minimal = {{"format", "kydrawing"}, {"version", 1}};
    const Reading reading = read(minimal);
    ASSERT_NE(reading.db, nullptr) << reading.error;
    KyDbDatabase* db = reading.db.get();
    for (const wchar_t* name : {L"ByBlock", L"ByLayer", L"Continuous"}) {
        EXPECT_FALSE(recordNamed(db->linetypeTableId(), name).isNull());
    }
    EXPECT_FALSE(recordNamed(db->textStyleTableId(), L"Standard").isNull());
    EXPECT_FALSE(recordNamed(db->dimStyleTableId(), L"Standard").isNull());
    EXPECT_FALSE(recordNamed(db->blockTableId(), L"*Paper_Space").isNull());
    const KyDbObjectId model = recordNamed(db->blockTableId(), L"*Model_Space");
    {
        KyDbObjectPointer<KyDbBlockTableRecord> block(model, KyDb::kForRead);
        EXPECT_FALSE(block->getLayoutId().isNull());
    }
    EXPECT_EQ(recordName(db->clayer()), "0");
    EXPECT_TRUE(unordered(save(db)) == unordered(minimal)) << save(db).dump(1);

    // A new layer is written alone; layer "0" comes again from the reader.
    {
        KyDbObjectPointer<KyDbSymbolTable> layers(db->layerTableId(), KyDb::kForWrite);
        auto* layer = new KyDbLayerTableRecord();
        layer->setName(L"Doors");
        layers->add(layer);
        layer->close();
    }
    const KyRefJson withLayer = save(db);
    ASSERT_EQ(withLayer["layers"].size(), 1u);
    EXPECT_EQ(withLayer["layers"][0]["name"], "Doors");
    EXPECT_FALSE(withLayer.contains("linetypes"));

    // A change of what the reader added writes the whole drawing.
    change<KyDbLayerTableRecord>(recordNamed(db->layerTableId(), L"0"),
                                 [](KyDbLayerTableRecord* layer) { layer->setIsOff(true); });
    const KyRefJson whole = save(db);
    EXPECT_EQ(whole["layers"].size(), 2u);
    EXPECT_EQ(whole["linetypes"].size(), 3u);
    EXPECT_EQ(whole["blocks"].size(), 2u);
    const Reading again = read(whole);
    ASSERT_NE(again.db, nullptr) << again.error;
    KyDbObjectPointer<KyDbLayerTableRecord> zero(recordNamed(again.db->layerTableId(), L"0"),
                                                 KyDb::kForRead);
    EXPECT_TRUE(zero->isOff());
}

TEST(DrawingRoundTrip, HeaderCurrentItemsAreResolvedByNameInAnyCase) {
    KyRefJson document = smallDrawing();
    document["header"] = {{"CLAYER", "WALLS"},
                          {"CELTYPE", "dashed"},
                          {"TEXTSTYLE", "Standard"},
                          {"CMATERIAL", "Global"},
                          {"CECOLOR", {{"rgb", {1, 2, 3}}}},
                          {"CETRANSPARENCY", "ByBlock"},
                          {"CELWEIGHT", 25},
                          {"TILEMODE", 0},
                          {"LTSCALE", 2.5}};
    const Reading reading = read(document);
    ASSERT_NE(reading.db, nullptr) << reading.error;
    KyDbDatabase* db = reading.db.get();
    EXPECT_EQ(db->clayer(), recordNamed(db->layerTableId(), L"Walls"));
    EXPECT_EQ(db->celtype(), recordNamed(db->linetypeTableId(), L"DASHED"));
    KyDbObjectId global;
    {
        KyDbObjectPointer<KyDbDictionary> materials(db->materialDictionaryId(), KyDb::kForRead);
        materials->getAt(L"Global", global);
    }
    EXPECT_EQ(db->cmaterial(), global);
    EXPECT_TRUE(db->cecolor().isByColor());
    EXPECT_TRUE(db->cetransparency().isByBlock());
    EXPECT_EQ(db->celweight(), KyDb::kLnWt025);
    EXPECT_FALSE(db->tilemode());
    KyRxValue scale;
    ASSERT_EQ(db->getHeaderVar(L"LTSCALE", scale), Kyro::eOk);
    EXPECT_EQ(*valueCast<double>(&scale), 2.5);
    // Written back as the file spelled them.
    EXPECT_EQ(save(db)["header"], document["header"]);

    db->setCelweight(KyDb::kLnWt050);
    db->setClayer(recordNamed(db->layerTableId(), L"0"));
    const KyRefJson header = save(db)["header"];
    EXPECT_EQ(header["CELWEIGHT"], 50);
    EXPECT_EQ(header["CLAYER"], "0");
    EXPECT_FALSE(header.contains("DIMSTYLE"));  // filled by the reader, unchanged
}

TEST(DrawingRoundTrip, NamesInAnotherCaseThanTheirRecordsComeBackAsTheFileSpelledThem) {
    KyRefJson document = smallDrawing();
    document["layers"][1]["linetype"] = "dashed";
    KyRefJson& model = document["blocks"][0]["entities"];
    model[0]["layer"] = "WALLS";
    model[0]["linetype"] = "BYLAYER";
    model[1]["block"] = "door";
    KyRefJson& paper = document["blocks"][1]["entities"];
    for (const char* handle : {"40", "41"}) {
        paper.push_back({{"type", "VIEWPORT"},
                         {"handle", handle},
                         {"center", {5, 5}},
                         {"width", 10},
                         {"height", 10},
                         {"viewCenter", {0, 0}},
                         {"viewHeight", 10}});
    }
    paper[1]["frozenLayers"] = {"walls", "0"};
    document["layers"][1]["viewportOverrides"] = {{{"viewport", "41"}, {"linetype", "Dashed"}}};
    const Reading reading = read(document);
    ASSERT_NE(reading.db, nullptr) << reading.error;
    const KyRefJson saved = save(reading.db.get());
    EXPECT_TRUE(unordered(saved) == unordered(document))
        << nlohmann::json::diff(unordered(document), unordered(saved));

    // A name that changed since is written as it is now.
    change<KyDbLayerTableRecord>(recordNamed(reading.db->layerTableId(), L"Walls"),
                                 [](KyDbLayerTableRecord* layer) { layer->setName(L"Outer"); });
    const KyRefJson renamed = save(reading.db.get());
    EXPECT_EQ(renamed["blocks"][0]["entities"][0]["layer"], "Outer");
    EXPECT_EQ(renamed["blocks"][1]["entities"][1]["frozenLayers"], KyRefJson({"Outer", "0"}));
    EXPECT_EQ(renamed["layers"][1]["linetype"], "dashed");
}

TEST(DrawingRoundTrip, WhatTheFileLeftOutOrGaveOfItsOwnStaysSo) {
    KyRefJson document = smallDrawing();
    // "type" is no member of a record: it is kept as the file's own.
    document["layers"][1]["type"] = "structural";
    document["dimStyles"][0]["type"] = "LINE";
    // Nor is "handle" a member of a layer state.
    document["layerStates"] = {
        {{"name", "Plot"}, {"handle", "77"}, {"layers", KyRefJson::array()}}};
    // A plot style dictionary that leaves its default out gets "Normal".
    document["objects"]["entries"]["KYRO_PLOTSTYLENAME"] = {
        {"type", "DICTIONARY"},
        {"handle", "41"},
        {"entries",
         {{"Normal", {{"type", "PLACEHOLDER"}, {"handle", "42"}, {"name", "Normal"}}},
          {"Thick", {{"type", "PLACEHOLDER"}, {"handle", "43"}, {"name", "Thick"}}}}}};
    const Reading reading = read(document);
    ASSERT_NE(reading.db, nullptr) << reading.error;
    const KyRefJson saved = save(reading.db.get());
    EXPECT_TRUE(unordered(saved) == unordered(document))
        << nlohmann::json::diff(unordered(document), unordered(saved));

    // Given in the file, the default is written back, the standard one too.
    document["objects"]["entries"]["KYRO_PLOTSTYLENAME"]["default"] = "Normal";
    const Reading given = read(document);
    ASSERT_NE(given.db, nullptr) << given.error;
    EXPECT_EQ(save(given.db.get())["objects"]["entries"]["KYRO_PLOTSTYLENAME"]["default"],
              "Normal");
    // In another case than its entry's key, as the file spelled it.
    document["objects"]["entries"]["KYRO_PLOTSTYLENAME"]["default"] = "THICK";
    const Reading spelled = read(document);
    ASSERT_NE(spelled.db, nullptr) << spelled.error;
    EXPECT_EQ(save(spelled.db.get())["objects"]["entries"]["KYRO_PLOTSTYLENAME"]["default"],
              "THICK");
}

TEST(DrawingRoundTrip, PointsComeBackToTheBitAlsoWithinTheirTolerance) {
    // Points compare equal within 1e-10; a point member still keeps what
    // it was given, also next to its default.
    KyRefJson document = smallDrawing();
    KyRefJson& line = document["blocks"][0]["entities"][0];
    line["start"] = {1e-300, 0};
    line["end"] = {10, 5 + 1e-12};
    document["blocks"][2]["entities"][0]["center"] = {0, 0, 1e-11};
    document["blocks"][2]["base"] = {-1e-320, 0, 0};
    const Reading reading = read(document);
    ASSERT_NE(reading.db, nullptr) << reading.error;
    const KyRefJson saved = save(reading.db.get());
    EXPECT_TRUE(unordered(saved) == unordered(document))
        << nlohmann::json::diff(unordered(document), unordered(saved));
}

TEST(DrawingRoundTrip, CurrentStylesOfTheVariableDictionaryMoveToTheHeaderAndBack) {
    KyRefJson document = smallDrawing();
    KyRefJson& entries = document["objects"]["entries"];
    entries["KYRO_MLEADERSTYLE"] = {
        {"type", "DICTIONARY"},
        {"handle", "50"},
        {"entries",
         {{"Standard", {{"type", "MLEADERSTYLE"}, {"handle", "51"}, {"name", "Standard"}}},
          {"Fancy", {{"type", "MLEADERSTYLE"}, {"handle", "52"}, {"name", "Fancy"}}}}}};
    entries["KyDbVariableDictionary"] = {
        {"type", "DICTIONARY"},
        {"handle", "53"},
        {"entries",
         {{"CMLEADERSTYLE", {{"type", "DICTIONARYVAR"}, {"handle", "54"}, {"value", "Fancy"}}}}}};
    const Reading reading = read(document);
    ASSERT_NE(reading.db, nullptr) << reading.error;
    KyDbDatabase* db = reading.db.get();
    EXPECT_EQ(db->mleaderstyle().handle(), 0x52u);

    KyDbObjectId standard;
    db->getKyDbObjectId(standard, KyDbHandle(0x51));
    ASSERT_EQ(db->setMLeaderstyle(standard), Kyro::eOk);
    const KyRefJson saved = save(db);
    EXPECT_EQ(
        saved["objects"]["entries"]["KyDbVariableDictionary"]["entries"]["CMLEADERSTYLE"]["value"],
        "Standard");
    EXPECT_FALSE(saved["header"].contains("CMLEADERSTYLE"));
}

TEST(DrawingRoundTrip, ANewDrawingIsWrittenWholeAndReadsBackTheSame) {
    KyDbDatabase db(true);
    {
        KyDbObjectPointer<KyDbBlockTableRecord> model(
            recordNamed(db.blockTableId(), L"*Model_Space"), KyDb::kForWrite);
        auto* line = new KyDbLine(KyGePoint3d(0, 0, 0), KyGePoint3d(3, 4, 0));
        model->appendKyDbEntity(line);
        line->close();
    }
    const KyRefJson saved = save(&db);
    for (const char* member : {"header", "linetypes", "layers", "textStyles", "dimStyles", "views",
                               "ucs", "viewports", "blocks", "objects"}) {
        EXPECT_TRUE(saved.contains(member)) << member;
    }
    EXPECT_EQ(saved["header"]["CLAYER"], "0");
    const Reading again = read(saved);
    ASSERT_NE(again.db, nullptr) << again.error;
    EXPECT_TRUE(unordered(save(again.db.get())) == unordered(saved));
}

}  // namespace
