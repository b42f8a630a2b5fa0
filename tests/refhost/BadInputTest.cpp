// What the fuzzers fed the host, by kind, answered clearly: a drawing the
// reader refuses is one error line that names where in the file and what was
// expected, opens no document and leaves the open ones as they were; command
// text the host can't take is an error line on the command line and changes
// nothing in the drawing.
#include <string>

#include "KyRefDocument.h"
#include "LayerTestSupport.h"
#include "io/KyRefDrawingWriter.h"
#include "io/KyRefJson.h"

namespace refhost {
namespace {

class BadInputTest : public LayerFixture {
protected:
    BadInputTest() {
        openDrawing(kLayerDrawing);
        spy.take();
        takeLog();
    }

    // The current drawing as the writer gives it.
    std::string drawingText() const { return KyRefDrawingWriter::toText(db()); }

    // Opens the file `text`, which the reader must refuse, and answers the
    // error after the file's name. Checks that nothing happened to the
    // documents: none opened, the current one unchanged, no host event.
    std::string refused(const std::string& text) {
        const std::string before = drawingText();
        KyRefDocument* current = host->documents().current();
        const int count = host->documents().documentCount();
        const std::string path = writeFile("bad.kyd", text).string();
        KyString error;
        EXPECT_EQ(host->documents().openDocument(KyString::fromUtf8(path), error), nullptr);
        EXPECT_EQ(host->documents().documentCount(), count);
        EXPECT_EQ(host->documents().current(), current);
        EXPECT_EQ(spy.take(), Lines());
        EXPECT_EQ(drawingText(), before);
        const std::string message = error.utf8();
        const std::string head = "Cannot open \"" + path + "\": ";
        EXPECT_EQ(message.rfind(head, 0), 0U) << message;
        EXPECT_EQ(message.find('\n'), std::string::npos) << "one line: " << message;
        return message.substr(std::min(head.size(), message.size()));
    }

    // Runs `text`, which the host must refuse; the command line it showed.
    // Checks that the drawing is as it was and that the host is left at no
    // prompt, ready for the next command.
    Lines refusedCommand(const wchar_t* text) {
        const std::string before = drawingText();
        run(text);
        EXPECT_EQ(drawingText(), before) << utf8(text);
        const Lines log = takeLog();
        run(L"LUPREC\n7\n");
        EXPECT_EQ(getShort(L"LUPREC"), 7) << "the next command after " << utf8(text);
        run(L"U\n");
        takeLog();
        spy.take();
        return log;
    }

    // kLayerDrawing with `change` made to its JSON, as text.
    template <typename Change>
    static std::string changed(Change change) {
        KyRefJson drawing = KyRefJson::parse(kLayerDrawing);
        change(drawing);
        return drawing.dump();
    }
};

TEST_F(BadInputTest, BytesThatAreNoDrawingSayWhereTheyStopBeingOne) {
    const std::string notJson = "the file is not complete, valid JSON: parse error at ";
    EXPECT_EQ(refused(""), notJson +
                               "line 1, column 1: syntax error while parsing value - unexpected "
                               "end of input; expected '[', '{', or a literal");
    EXPECT_EQ(refused(std::string(kLayerDrawing).substr(0, 200)).rfind(notJson, 0), 0U);
    EXPECT_EQ(refused("\xff\xfe{}").rfind(notJson, 0), 0U);
    EXPECT_EQ(refused("[]"),
              "expected a drawing: a JSON object with \"format\": \"kydrawing\", found an array");
    // Nesting deeper than the reader follows is refused, not a stack overflow.
    EXPECT_EQ(refused(std::string(100000, '[')).rfind(notJson, 0), 0U);
}

TEST_F(BadInputTest, AValueOutOfItsRangeOrOfAnotherKindNamesItsPathAndWhatWasExpected) {
    EXPECT_EQ(refused(changed([](KyRefJson& d) { d["layers"][1]["color"] = 1e300; })),
              "layers[1].color: expected a layer colour: an integer 1 to 255 or "
              "{\"rgb\": [r, g, b]}, found a number");
    EXPECT_EQ(refused(changed([](KyRefJson& d) { d["layers"][1]["name"] = 5; })),
              "layers[1].name: expected a string, found an integer");
    // A NUL would cut the handle short in wide text: "2" is another handle.
    EXPECT_EQ(refused(changed([](KyRefJson& d) {
                  d["layers"][1]["handle"] = std::string(
                      "2\0"
                      "0",
                      3);
              })),
              "layers[1].handle: expected a string without a NUL character, found \"2\\u00000\"");
    EXPECT_EQ(refused(changed([](KyRefJson& d) {
                  d["blocks"][0]["entities"].push_back(
                      {{"type", std::string("a\0b", 3)}, {"handle", "70"}});
              })),
              "blocks[0].entities[0].type: expected a string without a NUL character, found "
              "\"a\\u0000b\"");
}

TEST_F(BadInputTest, AReferenceTheDrawingCantResolveNamesItsPath) {
    EXPECT_EQ(refused(changed([](KyRefJson& d) { d["layers"][1]["linetype"] = "NOSUCH"; })),
              "layers[1].linetype: expected the name of a linetype, found \"NOSUCH\", which the "
              "drawing does not have");
    EXPECT_EQ(refused(changed([](KyRefJson& d) { d["blocks"][0].erase("layout"); })),
              "blocks[0].layout: missing; expected the handle of its layout \"2A\", which names "
              "this block as its own");
}

TEST_F(BadInputTest, CommandTextTheHostCantTakeIsAnErrorLineAndChangesNothing) {
    EXPECT_EQ(refusedCommand(L"FROBNICATE\n"),
              Lines({"Command: FROBNICATE", "Unknown command \"FROBNICATE\"."}));
    EXPECT_EQ(refusedCommand(L"CLAYER\nNowhere\n"),
              Lines({"Command: CLAYER", "Enter new value for CLAYER <\"0\">: Nowhere",
                     "Cannot find layer \"Nowhere\"."}));
    EXPECT_EQ(refusedCommand(L"XATTACH\nsite\u00e4.kyd\n"),
              Lines({"Command: XATTACH", "Enter name of file to attach: site\u00e4.kyd",
                     "Cannot open \"site\u00e4.kyd\": The file \"site\u00e4.kyd\" can't be "
                     "opened."}));
    // A refused answer ends the command; what follows is read at the prompt.
    EXPECT_EQ(refusedCommand(L"-LAYER\nColor\n1e999\nWalls\n"),
              Lines({"Command: -LAYER", "Current layer: \"0\"",
                     "Enter an option [?/Make/Set/New/ON/OFF/Color/Ltype/LWeight/TRansparency/"
                     "Plot/PStyle/Freeze/Thaw/LOck/Unlock/Description/Filter/STate]: Color",
                     "Enter color name or number (1-255) or [Truecolor/COlorbook]: 1e999",
                     "Invalid color \"1e999\": requires a color number from 1 to 255 or a color "
                     "name.",
                     "Command: Walls", "Unknown command \"Walls\"."}));
    // At a prompt that asks again, an empty answer leaves the command.
    const std::string options =
        "Enter an option [?/Make/Set/New/ON/OFF/Color/Ltype/LWeight/TRansparency/Plot/PStyle/"
        "Freeze/Thaw/LOck/Unlock/Description/Filter/STate]: ";
    EXPECT_EQ(refusedCommand(L"-LAYER\nRename\n\n"),
              Lines({"Command: -LAYER", "Current layer: \"0\"", options + "Rename",
                     "Invalid option keyword.", options}));
    EXPECT_EQ(refusedCommand(L"LUPREC\n\x01\x7f\n\n"),
              Lines({"Command: LUPREC", "Enter new value for LUPREC <4>: \x01\x7f",
                     "Requires an integer between 0 and 8.", "Enter new value for LUPREC <4>: "}));
}

}  // namespace
}  // namespace refhost
