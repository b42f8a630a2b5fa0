// The kydi program as a user runs it: scripts of scripts/ print what their
// .expected files hold, failing statements print "error: " lines and make the
// exit status 1, dump shows the drawing in text and as JSON, and the bundled
// sample is what its generator writes.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "io/KyRefJson.h"

namespace {

namespace fs = std::filesystem;

struct Outcome {
    std::string out;
    int status = -1;
};

std::string readFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

KyRefJson readJson(const std::string& text) {
    return KyRefJson::parse(text, nullptr, false);
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

// Each test runs the program in a folder of its own, where the files a
// script saves land.
class Program : public ::testing::Test {
protected:
    void SetUp() override {
        folder = fs::temp_directory_path() /
                 ("kydi-apps-" + std::to_string(getpid()) + "-" +
                  ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::create_directories(folder);
    }
    void TearDown() override { fs::remove_all(folder); }

    // Runs `command` in the test's folder; what it prints on standard output
    // and its exit status. Standard error goes to the test's own.
    Outcome run(const std::string& command) const {
        const std::string line = "cd '" + folder.string() + "' && " + command;
        Outcome outcome;
        FILE* pipe = popen(line.c_str(), "r");
        if (pipe == nullptr) {
            ADD_FAILURE() << "can't run " << line;
            return outcome;
        }
        char buffer[4096];
        for (std::size_t n; (n = std::fread(buffer, 1, sizeof(buffer), pipe)) > 0;) {
            outcome.out.append(buffer, n);
        }
        const int status = pclose(pipe);
        outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        return outcome;
    }
    Outcome kydi(const std::string& arguments) const {
        return run(std::string("'") + KYDI_TEST_PROGRAM + "' " + arguments);
    }
    // Runs the script `name`.kys on the sample; its output must be what
    // `name`.expected holds.
    void expectScript(const std::string& name, int status) const {
        const fs::path scripts(KYDI_TEST_SCRIPTS);
        const Outcome outcome = kydi("run '" + (scripts / (name + ".kys")).string() + "'");
        EXPECT_EQ(linesOf(outcome.out), linesOf(readFile(scripts / (name + ".expected"))));
        EXPECT_EQ(outcome.status, status);
    }

    fs::path folder;
};

}  // namespace

TEST_F(Program, ALayerCommandAsTheLayerSendsItChangesTheLayerWhenTheHostIsIdle) {
    expectScript("layer_color", 0);
    auto wallsColor = [this](const char* file) {
        const KyRefJson saved = readJson(readFile(folder / file));
        int color = -1;
        if (saved.is_object()) {
            for (const KyRefJson& layer : saved["layers"]) {
                if (layer["name"] == "Walls") {
                    color = layer["color"].get<int>();
                }
            }
        }
        return color;
    };
    EXPECT_EQ(wallsColor("walls.kyd"), 1);
    EXPECT_EQ(wallsColor("undone.kyd"), 5) << "U puts the sample's colour back";
}

TEST_F(Program, ALayersColourSetThroughItsItemLeavesAsTheTrueColourCommandAndReadsBack) {
    expectScript("layer_item", 0);
}

TEST_F(Program, ALinetypeMadeCurrentThroughItsCollectionComesBackAndASwitchResetsTheList) {
    expectScript("linetype_current", 0);
}

TEST_F(Program, ALineweightLeavesAsACommandAColourIsWrittenAndShadowsAreAFixedList) {
    expectScript("lineweight_color", 1);
}

TEST_F(Program, MembersOfALayerShowTheirLocalNamesInEitherLanguage) {
    expectScript("members", 0);
}

TEST_F(Program, AWatchedObjectHearsChangesSwitchesAndItsErasureAtTheRefresh) {
    expectScript("watch_object", 1);
}

TEST_F(Program, ACurrentLayerSetByCommandIsReportedOnceAfterTheHostRanIt) {
    expectScript("current_layer", 0);
}

TEST_F(Program, ALayerRenamedErasedAndBroughtBackIsAChangeARemovalAndAnAddition) {
    expectScript("layer_rename_erase", 0);
}

TEST_F(Program, ADrawingOpenedReadOnlyRefusesTheCommandsThatWouldChangeIt) {
    expectScript("read_only", 1);
}

TEST_F(Program, AnOffLayerMadeCurrentIsTurnedOnWhenTheUserSaysYesAndOnlyWhenAsked) {
    expectScript("current_off_layer", 0);
}

TEST_F(Program, EnteringAViewportReportsItsFrozenAndOverriddenLayersAndLeavingItAgain) {
    expectScript("viewport_layers", 0);
}

TEST_F(Program, ContextsAreListedReadWrittenAndWatched) {
    expectScript("contexts", 1);
}

TEST_F(Program, ARefusedValueChangesNothingAndTheHostIsLeftAtNoPrompt) {
    expectScript("refused_value", 0);
}

TEST_F(Program, TheDrawingContextShowsTheSpaceInFrontAndEffectiveChangesAreReportedOnce) {
    expectScript("drawing_context", 1);
}

TEST_F(Program, FailingStatementsPrintErrorsTheScriptGoesOnAndTheStatusIsOne) {
    expectScript("errors", 1);
}

TEST_F(Program, AViewportOfTheLayoutShownIsEnteredAndLeftAndTheDrawingKeepsIt) {
    expectScript("viewport", 1);
    const KyRefJson saved = readJson(readFile(folder / "details.kyd"));
    ASSERT_TRUE(saved.is_object());
    EXPECT_EQ(saved["header"]["TILEMODE"], 0);
    EXPECT_EQ(saved["header"]["CVPORT"], 2);
    std::string detailsBlock;
    for (const KyRefJson& block : saved["blocks"]) {
        if (block.value("layout", "") == "70") {
            detailsBlock = block["name"].get<std::string>();
        }
    }
    EXPECT_EQ(detailsBlock, "*Paper_Space") << "the block of the layout shown";
}

TEST_F(Program, SubEntitiesAreSelectedBesideObjectsAndBadFormsAreErrors) {
    expectScript("select_subentities", 1);
}

TEST_F(Program, TheSelectionShowsCommonValuesWritesToAllAndSortsIntoGroups) {
    expectScript("selection_context", 1);
}

TEST_F(Program, TheEffectiveValuesFollowTheSelectionAndALayerSetBecomesOneCommandForAll) {
    expectScript("effective_selection", 1);
}

TEST_F(Program, DocumentsOpenSwitchAndCloseWithTheHostsEvents) {
    expectScript("documents", 0);
    EXPECT_TRUE(fs::exists(folder / "drawing1.kyd"));
}

TEST_F(Program, ABatchRunsBetweenBusyAndQuietAndTheSystemReportsWhenTheDocumentIsQuiet) {
    fs::copy_file(fs::path(KYDI_TEST_SCRIPTS) / "layers.batch", folder / "layers.batch");
    expectScript("batch", 0);
}

TEST_F(Program, TheManualClockHoldsRefreshesBackUntilItMovesPastTheThrottle) {
    expectScript("clock", 0);
}

TEST_F(Program, TheHostsViewStyleModuleLoadsAndUnloadsByNameAndUnknownNamesAreRefused) {
    expectScript("modules", 1);
}

TEST_F(Program, AScriptReadsFromStandardInput) {
    const Outcome outcome = kydi("run - <<'EOF'\nsysvar CLAYER\necho \"two  blanks\"\nEOF");
    EXPECT_EQ(outcome.out, "CLAYER Walls\n\"two  blanks\"\n");
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(Program, TheShellRunsTypedStatementsOnTheRealClock) {
    const Outcome outcome =
        kydi("shell <<'EOF'\nsysvar LUPREC 2\nidle\nsysvar LUPREC\nclock +300\nEOF");
    EXPECT_EQ(
        linesOf(outcome.out),
        (std::vector<std::string>{
            "LUPREC 2", "error: the clock is the real one here; only a script run moves it"}));
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(Program, DumpAsJsonHasTheDocumentCollectionsContextsAndSystemVariables) {
    const Outcome outcome = kydi("dump --json");
    ASSERT_EQ(outcome.status, 0);
    const KyRefJson dump = readJson(outcome.out);
    ASSERT_TRUE(dump.is_object()) << outcome.out.substr(0, 200);
    for (const char* key :
         {"document", "collections", "contexts", "sysvars", "tables", "objects", "header"}) {
        EXPECT_TRUE(dump.contains(key)) << key;
    }
    EXPECT_EQ(dump["document"]["name"], "sample.kyd");
    EXPECT_EQ(dump["document"]["number"], 1);
    EXPECT_TRUE(dump["collections"].is_array());
    EXPECT_TRUE(dump["contexts"].is_array());
    ASSERT_TRUE(dump["sysvars"].is_array());
    for (const KyRefJson& sysVar : dump["sysvars"]) {
        for (const char* key : {"name", "value", "minimum", "maximum", "active"}) {
            EXPECT_TRUE(sysVar.contains(key)) << sysVar.dump();
        }
    }
    EXPECT_EQ(dump["header"]["CLAYER"], "Walls");
    // The drawing's context lists its values of model space, the sample's
    // space in front.
    const KyRefJson* drawing = nullptr;
    for (const KyRefJson& context : dump["contexts"]) {
        if (context["name"] == "DRAWING") {
            drawing = &context;
        }
    }
    ASSERT_NE(drawing, nullptr);
    EXPECT_EQ((*drawing)["active"], true);
    EXPECT_EQ((*drawing)["priority"], 0);
    EXPECT_EQ((*drawing)["properties"]["Layer"], "Walls");
    EXPECT_EQ((*drawing)["properties"]["VSFaceStyle"], "0");
    EXPECT_FALSE((*drawing)["properties"].contains("Layout"));
}

TEST_F(Program, DumpShowsTheSamplesLayersInEveryStateAndItsLayouts) {
    const Outcome outcome = kydi("dump");
    ASSERT_EQ(outcome.status, 0);
    std::map<std::string, std::string> layers;
    bool inLayers = false;
    for (const std::string& line : linesOf(outcome.out)) {
        if (line.rfind("table ", 0) == 0) {
            inLayers = line.rfind("table layers ", 0) == 0;
        } else if (inLayers) {
            layers[line.substr(2, line.find(" #") - 2)] = line;
        }
    }
    const auto has = [&layers](const std::string& layer, const std::string& text) {
        EXPECT_NE(layers[layer].find(text), std::string::npos) << layers[layer];
    };
    has("Walls", "color=aci:5");
    has("Walls", "description=\"Exterior and interior walls\"");
    has("Windows", "color=rgb:0,128,255");
    has("Windows", "transparency=alpha:204");
    has("Furniture", "color=book:\"RAL CLASSIC$RAL 3020\"");
    has("Furniture", "linetype=PHANTOM lineweight=13 transparency=alpha:127 plotStyle=Thin");
    has("Grid", "off=true frozen=true locked=true");
    has("\"Hidden Lines\"", "linetype=HIDDEN");
    has("Construction", "plottable=false");
    has("Plumbing", "frozenInNewViewports=true");
    has("Ébauche", "description=\"Esquisse à main levée\"");
    EXPECT_NE(outcome.out.find("    Plan #"), std::string::npos);
    EXPECT_NE(outcome.out.find("    Details #"), std::string::npos);
    EXPECT_NE(outcome.out.find("  CLAYER Walls\n"), std::string::npos);
}

TEST_F(Program, DumpShowsEveryRealDrawingAsItsManifestCountsIt) {
    const char* drawings = std::getenv("KYDI_DRAWINGS_DIR");
    if (drawings == nullptr || !fs::exists(fs::path(drawings) / "MANIFEST.tsv")) {
        GTEST_SKIP() << "the real drawings are not beside the checkout";
    }
    const std::vector<std::string> manifest =
        linesOf(readFile(fs::path(drawings) / "MANIFEST.tsv"));
    for (std::size_t i = 1; i < manifest.size(); ++i) {
        std::istringstream row(manifest[i]);
        std::string file;
        int layers = 0, linetypes = 0, textStyles = 0, dimStyles = 0, blocks = 0, entities = 0;
        row >> file >> layers >> linetypes >> textStyles >> dimStyles >> blocks >> entities;
        const Outcome outcome = kydi("dump --json '" + (fs::path(drawings) / file).string() + "'");
        ASSERT_EQ(outcome.status, 0) << file;
        const KyRefJson tables = readJson(outcome.out)["tables"];
        int entityCount = 0;
        for (const KyRefJson& block : tables["blocks"]) {
            entityCount += block["entityCount"].get<int>();
        }
        EXPECT_EQ(tables["layers"].size(), static_cast<std::size_t>(layers)) << file;
        EXPECT_EQ(tables["linetypes"].size(), static_cast<std::size_t>(linetypes)) << file;
        EXPECT_EQ(tables["textStyles"].size(), static_cast<std::size_t>(textStyles)) << file;
        EXPECT_EQ(tables["dimStyles"].size(), static_cast<std::size_t>(dimStyles)) << file;
        EXPECT_EQ(tables["blocks"].size(), static_cast<std::size_t>(blocks)) << file;
        EXPECT_EQ(entityCount, entities) << file;
    }
}

// The records a collection keeps of a table of the dump, in table order:
// linetypes leave out those of external references (named "reference|name").
std::vector<std::string> keptRecords(const KyRefJson& records, bool leaveOutDependent) {
    std::vector<std::string> names;
    for (const KyRefJson& record : records) {
        const std::string name = record["name"].get<std::string>();
        if (!name.empty() && !(leaveOutDependent && name.find('|') != std::string::npos)) {
            names.push_back(name);
        }
    }
    return names;
}

TEST_F(Program, TheTableCollectionsOfEveryRealDrawingKeepItsRecordsStatesAndCurrentOnes) {
    const char* drawings = std::getenv("KYDI_DRAWINGS_DIR");
    if (drawings == nullptr || !fs::exists(fs::path(drawings) / "MANIFEST.tsv")) {
        GTEST_SKIP() << "the real drawings are not beside the checkout";
    }
    const struct {
        const char* collection;
        const char* table;
        const char* variable;
        bool leaveOutDependent;
    } kTables[] = {{"LAYER", "layers", "CLAYER", false},
                   {"LINETYPE", "linetypes", "CELTYPE", true},
                   {"TEXTSTYLE", "textStyles", "TEXTSTYLE", false},
                   {"DIMSTYLE", "dimStyles", "DIMSTYLE", false}};
    int drawingsSeen = 0;
    for (const auto& entry : fs::directory_iterator(drawings)) {
        if (entry.path().extension() != ".kyd") {
            continue;
        }
        ++drawingsSeen;
        const std::string file = entry.path().filename().string();
        const Outcome outcome = kydi("dump --json '" + entry.path().string() + "'");
        ASSERT_EQ(outcome.status, 0) << file;
        const KyRefJson dump = readJson(outcome.out);
        for (const auto& table : kTables) {
            const KyRefJson* collection = nullptr;
            for (const KyRefJson& each : dump["collections"]) {
                if (each["name"] == table.collection) {
                    collection = &each;
                }
            }
            ASSERT_NE(collection, nullptr) << file << " " << table.collection;
            std::vector<std::string> items;
            for (const KyRefJson& item : (*collection)["items"]) {
                items.push_back(item["name"].get<std::string>());
            }
            EXPECT_EQ(items, keptRecords(dump["tables"][table.table], table.leaveOutDependent))
                << file << " " << table.collection;
            EXPECT_EQ((*collection)["current"], dump["header"][table.variable])
                << file << " " << table.collection;
            EXPECT_TRUE((*collection)["active"].get<bool>()) << file;
        }
        // Each layer shows the states of its record.
        const KyRefJson& records = dump["tables"]["layers"];
        for (const KyRefJson& collection : dump["collections"]) {
            if (collection["name"] != "LAYER") {
                continue;
            }
            ASSERT_EQ(collection["items"].size(), records.size()) << file;
            for (std::size_t i = 0; i < records.size(); ++i) {
                const KyRefJson& shown = collection["items"][i]["properties"];
                for (const char* state : {"off", "frozen", "locked"}) {
                    EXPECT_EQ(shown[state], records[i].value(state, false) ? "true" : "false")
                        << file << " " << records[i]["name"] << " " << state;
                }
                EXPECT_EQ(shown["plottable"],
                          records[i].value("plottable", true) ? "true" : "false")
                    << file << " " << records[i]["name"];
            }
        }
    }
    EXPECT_GT(drawingsSeen, 5);
}

TEST_F(Program, ADrawingThatCantBeOpenedIsAnErrorAndStatusOne) {
    const Outcome outcome = kydi("dump missing.kyd");
    EXPECT_EQ(outcome.out,
              "error: Cannot open \"missing.kyd\": The file \"missing.kyd\" can't be opened.\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(kydi("run missing.kys").status, 1);
    EXPECT_EQ(kydi("frobnicate 2>/dev/null").status, 2);
    EXPECT_EQ(kydi("2>/dev/null").status, 2);
}

TEST_F(Program, TheBundledSampleIsWhatItsGeneratorWrites) {
    const Outcome outcome = run(std::string("'") + KYDI_TEST_SAMPLE_TOOL + "' generated.kyd");
    ASSERT_EQ(outcome.status, 0);
    EXPECT_TRUE(readFile(folder / "generated.kyd") == readFile(KYDI_TEST_SAMPLE))
        << "samples/sample.kyd is stale: run kydi-sample samples/sample.kyd";
}
