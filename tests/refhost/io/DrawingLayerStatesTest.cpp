// Layer states in drawing files: read into the database's layer states and
// written back as the file had them (hidden masks, members left out, members
// nobody models), changes written, and the faults of the "layerStates"
// member.
#include <gtest/gtest.h>

#include "DrawingTestSupport.h"
#include "db/KyDbLayerState.h"
#include "db/KyDbLayerStateManager.h"
#include "db/KyDbObjectPointer.h"

using namespace drawingio;

namespace {

KyRefJson row(const char* name, bool off, KyRefJson color) {
    return {{"name", name},     {"off", off},          {"frozen", false},
            {"locked", false},  {"color", color},      {"linetype", "DASHED"},
            {"lineweight", -3}, {"transparency", 255}, {"plotStyle", "Normal"},
            {"plottable", true}};
}

KyRefJson withStates() {
    KyRefJson document = smallDrawing();
    KyRefJson walls = row("Walls", false, 5);
    walls["lineweight"] = 25;
    walls["note"] = "kept";
    document["layerStates"] = {
        {{"name", "Ground floor"},
         {"description", "Walls alone"},
         {"mask", 0x10},
         {"author", "a test"},
         {"layers", {walls, row("Gone", true, {{"rgb", {10, 20, 30}}})}}},
        {{"name", "Hidden"}, {"mask", 0x8004}, {"layers", {row("0", true, 7)}}},
    };
    return document;
}

std::string errorOf(const KyRefJson& document) {
    const Reading reading = read(document);
    EXPECT_EQ(reading.db, nullptr) << "the drawing was read";
    return reading.error;
}

TEST(DrawingLayerStates, StatesAreReadIntoTheDatabaseAndWrittenBackAsTheFileHadThem) {
    const KyRefJson original = withStates();
    const Reading reading = read(original);
    ASSERT_NE(reading.db, nullptr) << reading.error;
    KyDbLayerStateManager* manager = reading.db->getLayerStateManager();
    int mask = 0;
    ASSERT_EQ(manager->getLayerStateMask(L"hidden", mask), Kyro::eOk);
    EXPECT_LT(mask, 0) << "the sign bit comes with the hidden bit";
    EXPECT_EQ(mask & 0xFFFF, 0x8004);
    {
        KyDbObjectPointer<KyDbLayerState> state(manager->layerStateId(L"Ground floor"),
                                                KyDb::kForRead);
        ASSERT_TRUE(state);
        EXPECT_EQ(state->description(), KyString(L"Walls alone"));
        ASSERT_EQ(state->layers().size(), 2u);
        EXPECT_EQ(state->layers()[0].color.colorIndex(), 5);
        EXPECT_EQ(state->layers()[1].name, KyString(L"Gone")) << "a layer the drawing lacks";
        EXPECT_TRUE(state->layers()[1].color.isByColor());
    }
    EXPECT_TRUE(manager->compareLayerStateToDb(L"Ground floor", KyDbObjectId()));

    const KyRefJson saved = save(reading.db.get());
    EXPECT_TRUE(unordered(saved) == unordered(original))
        << nlohmann::json::diff(unordered(original), unordered(saved));
    EXPECT_FALSE(saved["objects"]["entries"].contains("KYRO_LAYERSTATES"))
        << "the states stand in layerStates alone";
}

TEST(DrawingLayerStates, ChangedStatesAreWrittenAndADrawingWithoutStatesGetsNone) {
    const Reading reading = read(withStates());
    ASSERT_NE(reading.db, nullptr) << reading.error;
    KyDbLayerStateManager* manager = reading.db->getLayerStateManager();
    ASSERT_EQ(manager->deleteLayerState(L"Ground floor"), Kyro::eOk);
    ASSERT_EQ(manager->setLayerStateMask(L"Hidden", 0x4), Kyro::eOk);
    ASSERT_EQ(manager->saveLayerState(L"New", 0, KyDbObjectId()), Kyro::eOk);
    const KyRefJson states = save(reading.db.get())["layerStates"];
    ASSERT_EQ(states.size(), 2u);
    EXPECT_EQ(states[0]["name"], "Hidden");
    EXPECT_EQ(states[0]["mask"], 4);
    KyRefJson zero = row("0", false, 7);
    zero["linetype"] = "Continuous";
    KyRefJson walls = row("Walls", false, 5);
    walls["lineweight"] = 25;
    EXPECT_EQ(states[1], KyRefJson({{"name", "New"}, {"layers", {zero, walls}}}))
        << "a new state leaves its defaults out; its rows are whole";

    const Reading plain = read(smallDrawing());
    ASSERT_NE(plain.db, nullptr) << plain.error;
    EXPECT_FALSE(save(plain.db.get()).contains("layerStates"));
    KyRefJson empty = smallDrawing();
    empty["layerStates"] = KyRefJson::array();
    const Reading emptied = read(empty);
    ASSERT_NE(emptied.db, nullptr) << emptied.error;
    EXPECT_EQ(save(emptied.db.get())["layerStates"], KyRefJson::array());
    EXPECT_TRUE(emptied.db->getLayerStateManager()->layerStatesDictionaryId(false).isNull());
}

TEST(DrawingLayerStates, FaultsNameTheirPath) {
    KyRefJson document = withStates();
    document["layerStates"] = {{"name", "Plan"}};
    EXPECT_EQ(errorOf(document), "layerStates: expected an array, found an object");

    document = withStates();
    document["layerStates"][1]["name"] = "GROUND FLOOR";
    EXPECT_EQ(errorOf(document),
              "layerStates[1].name: another layer state has the name \"GROUND FLOOR\"; expected "
              "a name of its own (in any case)");

    document = withStates();
    document["layerStates"][0]["mask"] = -1;
    EXPECT_EQ(errorOf(document),
              "layerStates[0].mask: expected an integer from 0 to 2147483647, found -1");

    document = withStates();
    document["layerStates"][0]["layers"][1]["name"] = "walls";
    EXPECT_EQ(errorOf(document),
              "layerStates[0].layers[1].name: the layer \"walls\" has a row already; expected "
              "each layer once (in any case)");

    document = withStates();
    document["layerStates"][0]["layers"][0]["color"] = 256;
    EXPECT_EQ(errorOf(document).rfind("layerStates[0].layers[0].color: expected a layer colour", 0),
              0u);

    document = withStates();
    document["layerStates"][0]["layers"][0]["transparency"] = "ByLayer";
    EXPECT_EQ(errorOf(document),
              "layerStates[0].layers[0].transparency: expected an alpha 0 to 255: a layer's "
              "transparency can't be ByLayer");

    document = withStates();
    document["layerStates"][1]["layers"][0].erase("plottable");
    EXPECT_EQ(errorOf(document),
              "layerStates[1].layers[0].plottable: missing; expected true or false");

    document = withStates();
    document["objects"]["entries"]["KYRO_LAYERSTATES"] = {
        {"type", "DICTIONARY"}, {"handle", "60"}, {"entries", KyRefJson::object()}};
    EXPECT_EQ(errorOf(document),
              "objects.entries.KYRO_LAYERSTATES: expected the layer states in the top-level "
              "member \"layerStates\", found an entry under KYRO_LAYERSTATES, the key they take "
              "in the drawing");
}

}  // namespace
