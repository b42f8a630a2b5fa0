// A saved drawing names only what it holds: a table, which the reader keeps
// whole, names its table style by the name the style has at the save, and
// keeps it in use; a layer's linetype in a viewport is in use; the overrides
// of a viewport that was erased are not saved. Each drawing reads back.
#include <fstream>
#include <sstream>

#include "KyRefDocument.h"
#include "LayerTestSupport.h"
#include "io/KyRefJson.h"

namespace refhost {
namespace {

class SavedReferencesTest : public LayerFixture {
protected:
    // kLayerDrawing with `change` made to its JSON, opened.
    template <typename Change>
    void open(Change change) {
        KyRefJson drawing = KyRefJson::parse(kLayerDrawing);
        change(drawing);
        openDrawing(drawing.dump());
    }
    // Saves the current drawing, reads the file back as a document and
    // answers the file's JSON.
    KyRefJson saveAndReadBack() {
        const std::string path = (folder / "saved.kyd").string();
        KyString error;
        EXPECT_TRUE(host->documents().saveDocument(host->documents().current(),
                                                   KyString::fromUtf8(path), error))
            << error.utf8();
        KyRefDocument* current = host->documents().current();
        EXPECT_NE(host->documents().openDocument(KyString::fromUtf8(path), error), nullptr)
            << error.utf8();
        host->documents().makeCurrent(current);
        std::stringstream text;
        text << std::ifstream(path).rdbuf();
        return KyRefJson::parse(text.str());
    }
    void expectRefused(const wchar_t* text, const std::string& error) {
        run(text);
        EXPECT_EQ(takeLog().back(), error);
    }
};

TEST_F(SavedReferencesTest, ATableNamesItsStyleAsItIsNamedAtTheSaveAndKeepsItInUse) {
    open([](KyRefJson& drawing) {
        drawing["objects"]["entries"]["KYRO_TABLESTYLE"] = {
            {"type", "DICTIONARY"},
            {"handle", "60"},
            {"entries",
             {{"Standard", {{"type", "TABLESTYLE"}, {"handle", "61"}, {"name", "Standard"}}},
              {"Schedule", {{"type", "TABLESTYLE"}, {"handle", "62"}, {"name", "Schedule"}}}}}};
        drawing["blocks"][0]["entities"].push_back({{"type", "TABLE"},
                                                    {"handle", "70"},
                                                    {"style", "SCHEDULE"},
                                                    {"position", {0, 0}},
                                                    {"rows", 2},
                                                    {"columns", 2}});
    });
    expectRefused(L"RECORD\n_Erase\nTABLESTYLE\nSchedule\n",
                  "Cannot erase table style \"Schedule\": it is in use.");
    EXPECT_EQ(saveAndReadBack()["blocks"][0]["entities"][0]["style"], "SCHEDULE")
        << "a name is written as the file spelled it while it names the same";

    run(L"RECORD\n_Rename\nTABLESTYLE\nSchedule\nRooms\n");
    KyRefJson saved = saveAndReadBack();
    EXPECT_EQ(saved["blocks"][0]["entities"][0]["style"], "Rooms");
    EXPECT_EQ(saved["blocks"][0]["entities"][0]["rows"], 2) << "the rest as it was read";
    run(L"U\n");
    saved = saveAndReadBack();
    EXPECT_EQ(saved["blocks"][0]["entities"][0]["style"], "SCHEDULE");

    // Without the table, nothing names the style.
    run(L"ERASE\n70\n\n");
    run(L"RECORD\n_Erase\nTABLESTYLE\nSchedule\n");
    saved = saveAndReadBack();
    EXPECT_FALSE(saved["objects"]["entries"]["KYRO_TABLESTYLE"]["entries"].contains("Schedule"));
}

TEST_F(SavedReferencesTest, ALinetypeOfALayerInAViewportIsInUseUntilTheViewportGoes) {
    open([](KyRefJson& drawing) {
        drawing["layers"][1]["viewportOverrides"] = {
            {{"viewport", "41"}, {"linetype", "DASHED"}, {"color", 1}},
            {{"viewport", "42"}, {"color", 2}}};
    });
    expectRefused(L"RECORD\n_Erase\nLINETYPE\nDASHED\n",
                  "Cannot erase linetype \"DASHED\": it is in use.");

    // The layer keeps the overrides of an erased viewport, for an undo, but
    // the file has no viewport for them.
    run(L"ERASE\n41\n\n");
    run(L"RECORD\n_Erase\nLINETYPE\nDASHED\n");
    KyRefJson saved = saveAndReadBack();
    EXPECT_EQ(saved["layers"][1]["viewportOverrides"],
              KyRefJson::parse(R"([{"viewport": "42", "color": 2}])"));
    run(L"U\nU\n");
    EXPECT_EQ(overrides(L"Walls", L"41"), "color=1 linetype=DASHED");
    saved = saveAndReadBack();
    EXPECT_EQ(saved["layers"][1]["viewportOverrides"].size(), 2U);
}

}  // namespace
}  // namespace refhost
