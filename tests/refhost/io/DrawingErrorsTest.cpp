// Files that can't be read: each gives no database and an error that names
// the JSON path of the fault and what was expected there. A fault found late,
// after much of the drawing was built, leaves nothing open and nothing behind.
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "DrawingTestSupport.h"
#include "io/KyRefDrawingReader.h"

using namespace drawingio;

namespace {

std::string errorOf(const KyRefJson& document) {
    const Reading reading = read(document);
    EXPECT_EQ(reading.db, nullptr) << "the drawing was read";
    return reading.error;
}

TEST(DrawingErrors, AFileThatIsNoCompleteJsonOrNoDrawing) {
    const std::string text = smallDrawing().dump(1);
    const Reading truncated = read(text.substr(0, text.size() / 2));
    EXPECT_EQ(truncated.db, nullptr);
    EXPECT_EQ(truncated.error.rfind("the file is not complete, valid JSON: ", 0), 0u)
        << truncated.error;
    EXPECT_NE(truncated.error.find("unexpected end of input"), std::string::npos)
        << truncated.error;

    const Reading corrupted = read(std::string("{\"format\": \"kydrawing\", \"version\": 1,\xff}"));
    EXPECT_EQ(corrupted.db, nullptr);
    EXPECT_EQ(corrupted.error.rfind("the file is not complete, valid JSON: ", 0), 0u)
        << corrupted.error;

    const Reading tooLarge = read(std::string("{\"format\": \"kydrawing\", \"version\": 1e999}"));
    EXPECT_EQ(tooLarge.db, nullptr);
    EXPECT_EQ(tooLarge.error,
              "the file is not complete, valid JSON: number overflow parsing '1e999'");

    const std::string deep = std::string(129, '[') + std::string(129, ']');
    const Reading nested = read("{\"format\": \"kydrawing\", \"version\": 1, \"x\": " + deep + "}");
    EXPECT_EQ(nested.db, nullptr);
    EXPECT_EQ(
        nested.error,
        "the drawing nests arrays and objects more than 128 levels deep; expected at most 128");
    EXPECT_NE(
        read("{\"format\": \"kydrawing\", \"version\": 1, \"x\": " + deep.substr(2, 254) + "}").db,
        nullptr);

    EXPECT_EQ(errorOf(KyRefJson::array({1, 2})),
              "expected a drawing: a JSON object with \"format\": \"kydrawing\", found an array");

    KyString error;
    EXPECT_EQ(KyRefDrawingReader::readFile(L"/nonexistent/drawing.kyd", error), nullptr);
    EXPECT_EQ(error.utf8(), "The file \"/nonexistent/drawing.kyd\" can't be opened.");
}

TEST(DrawingErrors, AnotherFormatOrANewerVersionIsRefused) {
    KyRefJson document = smallDrawing();
    document["format"] = "cadjson";
    EXPECT_EQ(errorOf(document),
              "format: expected \"kydrawing\", found \"cadjson\": the file is not a kydrawing "
              "file");
    document = smallDrawing();
    document["version"] = 2;
    EXPECT_EQ(errorOf(document),
              "version: the file has version 2, newer than version 1 that this program reads");
    document.erase("version");
    EXPECT_EQ(errorOf(document), "version: missing; expected the version 1");
}

TEST(DrawingErrors, AMemberOfTheWrongTypeOrValue) {
    KyRefJson document = smallDrawing();
    document["layers"][1]["color"] = "red";
    EXPECT_EQ(errorOf(document),
              "layers[1].color: expected a layer colour: an integer 1 to 255 or {\"rgb\": [r, g, "
              "b]}, found a string");
    document["layers"][1]["color"] = 256;
    EXPECT_EQ(errorOf(document),
              "layers[1].color: expected a layer colour: an integer 1 to 255 or {\"rgb\": [r, g, "
              "b]}, found 256");
    document = smallDrawing();
    document["layers"][1]["lineweight"] = 27;
    EXPECT_EQ(errorOf(document),
              "layers[1].lineweight: expected a layer lineweight: -3 (Default) or a standard "
              "weight in hundredths of a millimetre, found 27");
    // A number that int would wrap around onto the weight 0.
    document["layers"][1]["lineweight"] = std::numeric_limits<std::int64_t>::min();
    EXPECT_EQ(errorOf(document),
              "layers[1].lineweight: expected a layer lineweight: -3 (Default) or a standard "
              "weight in hundredths of a millimetre, found -9223372036854775808");
    document = smallDrawing();
    document["blocks"][2]["entities"][0]["radius"] = -1;
    EXPECT_EQ(errorOf(document),
              "blocks[2].entities[0].radius: expected a positive radius; the drawing refused it "
              "as a value the drawing can't take");
    document = smallDrawing();
    document["blocks"][0]["entities"][0]["start"] = {1, 2, 3, 4};
    EXPECT_EQ(errorOf(document),
              "blocks[0].entities[0].start: expected a point [x, y] or [x, y, z], found an array "
              "of 4");
    document = smallDrawing();
    document["layers"] = {{"name", "0"}};
    EXPECT_EQ(errorOf(document), "layers: expected an array, found an object");
}

TEST(DrawingErrors, AMissingRequiredMember) {
    KyRefJson document = smallDrawing();
    document["blocks"][0]["entities"][0].erase("end");
    EXPECT_EQ(errorOf(document),
              "blocks[0].entities[0].end: missing; expected a point [x, y] or [x, y, z]");
    document = smallDrawing();
    document["linetypes"][3].erase("name");
    EXPECT_EQ(errorOf(document), "linetypes[3].name: missing; expected a name");
    document = smallDrawing();
    document["objects"]["entries"]["KYRO_LAYOUT"]["entries"]["Model"].erase("block");
    EXPECT_EQ(errorOf(document),
              "objects.entries.KYRO_LAYOUT.entries.Model.block: missing; expected the handle of "
              "the layout's block");
    // Members the format gives no default.
    document = smallDrawing();
    document["blocks"][2]["xref"] = {{"path", "door.kyd"}};
    EXPECT_EQ(errorOf(document),
              "blocks[2].xref.overlay: missing; expected true or false: whether it is an overlay");
    document = smallDrawing();
    document["objects"]["entries"]["KYRO_PLOTSTYLENAME"] = {
        {"type", "DICTIONARY"},
        {"handle", "41"},
        {"entries", {{"Normal", {{"type", "PLACEHOLDER"}, {"handle", "42"}}}}}};
    EXPECT_EQ(errorOf(document),
              "objects.entries.KYRO_PLOTSTYLENAME.entries.Normal.name: missing; expected the name "
              "of the plot style");
}

TEST(DrawingErrors, AHandleHasOneSpelling) {
    for (const char* handle : {"030", "3f", "3F ", ""}) {
        KyRefJson document = smallDrawing();
        document["blocks"][0]["entities"][0]["handle"] =
            KyRefJson::parse(std::string("\"") + handle + "\"");
        EXPECT_EQ(errorOf(document),
                  "blocks[0].entities[0].handle: expected a handle: hexadecimal text in capitals "
                  "without leading zeros, other than \"0\", found " +
                      document["blocks"][0]["entities"][0]["handle"].dump());
    }
}

TEST(DrawingErrors, ABlockAndItsLayoutNameEachOther) {
    KyRefJson document = smallDrawing();
    document["blocks"][0].erase("layout");
    EXPECT_EQ(errorOf(document),
              "blocks[0].layout: missing; expected the handle of its layout \"2A\", which names "
              "this block as its own");
    document = smallDrawing();
    document["blocks"][2]["layout"] = "2B";
    EXPECT_EQ(errorOf(document),
              "blocks[2].layout: expected the handle of the layout whose block this is, found "
              "\"2B\", the layout of the block \"1B\"");
    document = smallDrawing();
    document["objects"]["entries"]["KYRO_LAYOUT"]["entries"]["Layout1"]["block"] = "1A";
    EXPECT_EQ(errorOf(document),
              "blocks[1].layout: expected the handle of the layout whose block this is, found "
              "\"2B\", the layout of the block \"1A\"");
    document["blocks"][1].erase("layout");
    EXPECT_EQ(errorOf(document),
              "blocks[0].layout: expected the handle of its one layout, found \"2A\", while the "
              "layout \"2B\" also names this block as its own");
}

TEST(DrawingErrors, AListNamesEachItemOnceAndAnOverrideOverridesSomething) {
    KyRefJson document = smallDrawing();
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
    paper[1]["frozenLayers"] = {"Walls", "0", "WALLS"};
    EXPECT_EQ(errorOf(document),
              "blocks[1].entities[1].frozenLayers[2]: the layer \"WALLS\" is frozen here already; "
              "expected each layer once (in any case)");
    paper[1]["frozenLayers"] = {"Walls"};
    KyRefJson& overrides = document["layers"][1]["viewportOverrides"];
    overrides = {{{"viewport", "41"}, {"color", 1}}, {{"viewport", "41"}, {"lineweight", 50}}};
    EXPECT_EQ(errorOf(document),
              "layers[1].viewportOverrides[1].viewport: the viewport \"41\" has overrides of this "
              "layer already; expected each viewport once");
    overrides = {{{"viewport", "41"}}};
    EXPECT_EQ(errorOf(document),
              "layers[1].viewportOverrides[0]: expected an override of color, linetype, "
              "lineweight, transparency or plotStyle, found none");
    overrides = {{{"viewport", "41"}, {"plotStyle", "Thick"}}};
    EXPECT_EQ(read(document).error, "");
}

TEST(DrawingErrors, ADuplicateHandleOrName) {
    KyRefJson document = smallDrawing();
    document["blocks"][0]["entities"][1]["handle"] = "20";
    EXPECT_EQ(errorOf(document),
              "blocks[0].entities[1].handle: the handle \"20\" is taken by another object; "
              "expected a handle of its own");
    document = smallDrawing();
    document["objects"]["entries"]["KYRO_LAYOUT"]["handle"] = "1C";
    EXPECT_EQ(errorOf(document),
              "objects.entries.KYRO_LAYOUT.handle: the handle \"1C\" is taken by another object; "
              "expected a handle of its own");
    document = smallDrawing();
    document["layers"].push_back({{"handle", "21"}, {"name", "WALLS"}});
    EXPECT_EQ(errorOf(document),
              "layers[2].name: another layer has the name \"WALLS\"; expected a name of its own "
              "(in any case)");
}

TEST(DrawingErrors, AReferenceToANameOrHandleTheDrawingDoesNotHave) {
    KyRefJson document = smallDrawing();
    document["layers"][1]["linetype"] = "DASHDOT";
    EXPECT_EQ(errorOf(document),
              "layers[1].linetype: expected the name of a linetype, found \"DASHDOT\", which the "
              "drawing does not have");
    document = smallDrawing();
    document["blocks"][0]["entities"][1]["block"] = "Window";
    EXPECT_EQ(errorOf(document),
              "blocks[0].entities[1].block: expected the name of a block, found \"Window\", "
              "which the drawing does not have");
    document = smallDrawing();
    document["header"]["CLAYER"] = "Roof";
    EXPECT_EQ(errorOf(document),
              "header.CLAYER: expected the name of a layer, found \"Roof\", which the drawing "
              "does not have");
    document = smallDrawing();
    document["blocks"][0]["layout"] = "FFF";
    EXPECT_EQ(errorOf(document),
              "blocks[0].layout: expected the handle of a layout (LAYOUT object), found \"FFF\", "
              "which no object of the drawing has");
    document["blocks"][0]["layout"] = "20";
    EXPECT_EQ(errorOf(document),
              "blocks[0].layout: expected the handle of a layout (LAYOUT object), found \"20\", "
              "which is another kind of object");
    document = smallDrawing();
    document["objects"]["entries"]["KyDbVariableDictionary"] = {
        {"type", "DICTIONARY"},
        {"handle", "60"},
        {"entries",
         {{"CMLEADERSTYLE", {{"type", "DICTIONARYVAR"}, {"handle", "61"}, {"value", "Nope"}}}}}};
    EXPECT_EQ(errorOf(document),
              "objects.entries.KyDbVariableDictionary.entries.CMLEADERSTYLE.value: expected the "
              "name of a multileader style, found \"Nope\", which the drawing does not have");
    // The database always has a current style: a file that names none could
    // not be written back as it was.
    auto& style =
        document["objects"]["entries"]["KyDbVariableDictionary"]["entries"]["CMLEADERSTYLE"];
    style.erase("value");
    EXPECT_EQ(errorOf(document),
              "objects.entries.KyDbVariableDictionary.entries.CMLEADERSTYLE.value: missing; "
              "expected the name of a multileader style");
    style["value"] = "";
    EXPECT_EQ(errorOf(document),
              "objects.entries.KyDbVariableDictionary.entries.CMLEADERSTYLE.value: expected the "
              "name of a multileader style, found \"\"");
}

TEST(DrawingErrors, AStandardDictionaryWithEntriesOfAnotherType) {
    KyRefJson document = smallDrawing();
    document["objects"]["entries"]["KYRO_LAYOUT"]["entries"]["Model"]["type"] = "MATERIAL";
    EXPECT_EQ(errorOf(document),
              "objects.entries.KYRO_LAYOUT.entries.Model.type: expected \"LAYOUT\" in "
              "KYRO_LAYOUT, found \"MATERIAL\"");
    document = smallDrawing();
    document["objects"]["entries"]["KYRO_VISUALSTYLE"] = {
        {"type", "DICTIONARY"},
        {"handle", "70"},
        {"entries",
         {{"Shaded with edges",
           {{"type", "VISUALSTYLE"}, {"handle", "71"}, {"name", "Shaded"}, {"kind", "x"}}}}}};
    EXPECT_EQ(errorOf(document),
              "objects.entries.KYRO_VISUALSTYLE.entries[\"Shaded with edges\"].kind: expected an "
              "integer from 0 to 1000000, found a string");
}

}  // namespace
