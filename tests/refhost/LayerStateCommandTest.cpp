// -LAYER STate: saving (over a hidden state too), restoring and deleting
// layer states by name, unknown names (an error line, nothing changed), the
// layer service's restore flags, the viewport the host shows, undo of a
// restore, the second language, and the states a save writes to the file.
#include <fstream>

#include "KyRefDocument.h"
#include "LayerTestSupport.h"
#include "base/KyRxResourceInstance.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLayerStateManager.h"
#include "db/KyDbObjectPointer.h"
#include "io/KyRefJson.h"

namespace refhost {
namespace {

const std::string kStatePrompt = "Enter a layer state option [Save/Restore/Delete]: ";
const Lines kEnded = {"commandWillStart -LAYER", "commandEnded -LAYER", "refreshNeeded false"};
const Lines kFailed = {"commandWillStart -LAYER", "refreshNeeded false"};

class LayerStateCommandTest : public LayerFixture {
protected:
    LayerStateCommandTest() { openDrawing(kLayerDrawing); }

    KyDbLayerStateManager& states() const { return *db()->getLayerStateManager(); }
    void runToEnd(const wchar_t* text) {
        run(text);
        EXPECT_TRUE(host->commandNames().isEmpty()) << utf8(text);
    }
    std::string colorOf(const wchar_t* name) const {
        const std::string text = state(name);
        return text.substr(0, text.find(' '));
    }
};

TEST_F(LayerStateCommandTest, SaveRestoreAndDeleteAStateByName) {
    runToEnd(L"-LAYER\nSTate\nSave\nPlan\n\n");
    ASSERT_TRUE(states().hasLayerState(L"Plan"));
    const Lines log = takeLog();
    ASSERT_GE(log.size(), 5u);
    EXPECT_EQ(log[3], kStatePrompt + "Save");
    EXPECT_EQ(log[4], "Enter name of the layer state to save: Plan");
    EXPECT_EQ(spy.take(), kEnded);

    runToEnd(L"-LAYER\nColor\n1\nWalls\n\n");
    takeLog();
    EXPECT_FALSE(states().compareLayerStateToDb(L"Plan", KyDbObjectId()));
    runToEnd(L"'_.-LAYER\n_STATE\n_RESTORE\n=plan\n\n");
    EXPECT_EQ(colorOf(L"Walls"), "color=7");
    EXPECT_EQ(takeLog()[4], "Enter name of the layer state to restore: =plan");
    KyString name;
    KyDbObjectId id;
    ASSERT_EQ(states().getLastRestoredLayerState(name, id), Kyro::eOk);
    EXPECT_EQ(name, KyString(L"Plan"));

    runToEnd(L"-LAYER\nST\nD\n\"Plan\"\n\n");
    EXPECT_FALSE(states().hasLayerState(L"Plan"));
    EXPECT_EQ(takeLog()[4], "Enter name of the layer state to delete: \"Plan\"");
}

TEST_F(LayerStateCommandTest, ASaveUnderTheNameOfAHiddenStateReplacesItAndUndoBringsItBack) {
    {
        const KyAxDocLock lock(db());
        ASSERT_EQ(states().saveLayerState(L"Plan", KyDbLayerStateManager::kHidden, KyDbObjectId()),
                  Kyro::eOk);
    }
    const KyDbObjectId hidden = states().layerStateId(L"Plan");
    runToEnd(L"-LAYER\nSTate\nSave\nPlan\n\n");
    const KyDbObjectId saved = states().layerStateId(L"Plan");
    EXPECT_NE(saved, hidden) << "a new state";
    EXPECT_TRUE(hidden.isErased());
    int mask = -1;
    ASSERT_EQ(states().getLayerStateMask(L"Plan", mask), Kyro::eOk);
    EXPECT_EQ(mask, 0);

    run(L"U\n");
    EXPECT_EQ(states().layerStateId(L"Plan"), hidden);
    ASSERT_EQ(states().getLayerStateMask(L"Plan", mask), Kyro::eOk);
    EXPECT_LT(mask, 0);
    run(L"REDO\n");
    EXPECT_EQ(states().layerStateId(L"Plan"), saved);
    // A shown state saved again stays the same state.
    runToEnd(L"-LAYER\nSTate\nSave\nPlan\n\n");
    EXPECT_EQ(states().layerStateId(L"Plan"), saved);
}

TEST_F(LayerStateCommandTest, AnUnknownNameIsAnErrorLineAndChangesNothing) {
    runToEnd(L"-LAYER\nSTate\nSave\nPlan\n\n");
    spy.take();
    takeLog();
    run(L"-LAYER\nColor\n1\nWalls\nSTate\nRestore\nNowhere\n\n");
    EXPECT_TRUE(host->commandNames().isEmpty()) << "no prompt is left waiting";
    EXPECT_EQ(takeLog().back(), "Cannot find layer state \"Nowhere\".");
    EXPECT_EQ(colorOf(L"Walls"), "color=7") << "the option before the error is taken back";
    EXPECT_EQ(spy.take(), kFailed);

    run(L"-LAYER\nSTate\nDelete\nNowhere\n\n");
    EXPECT_EQ(takeLog().back(), "Cannot find layer state \"Nowhere\".");
    EXPECT_EQ(spy.take(), kFailed);
    EXPECT_TRUE(states().hasLayerState(L"Plan"));
    KyString name;
    KyDbObjectId id;
    EXPECT_EQ(states().getLastRestoredLayerState(name, id), Kyro::eKeyNotFound);

    // An empty name leaves the option without a change.
    runToEnd(L"-LAYER\nSTate\nRestore\n\n\n");
    EXPECT_EQ(spy.take(), kEnded);
}

TEST_F(LayerStateCommandTest, AStateThatCantBeWrittenFailsTheOption) {
    runToEnd(L"-LAYER\nSTate\nSave\nPlan\n\n");
    runToEnd(L"-LAYER\nColor\n1\nWalls\n\n");
    spy.take();
    // Open for read elsewhere, the state can't be opened for write.
    KyDbObjectPointer<KyDbObject> reader(states().layerStateId(L"Plan"), KyDb::kForRead);
    ASSERT_TRUE(reader);
    run(L"-LAYER\nSTate\nSave\nPlan\n\n");
    EXPECT_EQ(takeLog().back(), "Cannot save layer state \"Plan\".");
    run(L"-LAYER\nSTate\nRestore\nPlan\n\n");
    EXPECT_EQ(takeLog().back(), "Cannot restore layer state \"Plan\".");
    run(L"-LAYER\nSTate\nDelete\nPlan\n\n");
    EXPECT_EQ(takeLog().back(), "Cannot delete layer state \"Plan\".");
    EXPECT_EQ(spy.take(),
              (Lines{kFailed[0], kFailed[1], kFailed[0], kFailed[1], kFailed[0], kFailed[1]}));
    reader.close();
    EXPECT_EQ(colorOf(L"Walls"), "color=1");
    EXPECT_TRUE(states().hasLayerState(L"Plan"));
}

TEST_F(LayerStateCommandTest, ARestoreTakesTheLayerServicesFlagsAndTheViewportShown) {
    ASSERT_EQ(host->enterViewport(object(L"41")), Kyro::eOk);
    runToEnd(L"-LAYER\nSTate\nSave\nPlan\n\n");
    addLayer(L"Extra");
    run(L"VPLAYER\nFreeze\nDoors\nCurrent\n\n");
    ASSERT_EQ(overrides(L"Doors", L"41"), "frozen=1");

    runToEnd(L"-LAYER\nSTate\nRestore\nPlan\n\n");
    EXPECT_EQ(overrides(L"Doors", L"41"), "") << "the state shows Doors in viewport 41";
    EXPECT_NE(state(L"Extra").find("off=0"), std::string::npos) << "no flags: others stay";
    EXPECT_NE(state(L"Frozen").find("frozen=1"), std::string::npos);

    host->layerService()->setRestoreFlags(KyDbLayerStateManager::kTurnOffOthers);
    runToEnd(L"-LAYER\nSTate\nRestore\nPlan\n\n");
    EXPECT_NE(state(L"Extra").find("off=1"), std::string::npos);
    EXPECT_EQ(spy.take().back(), "refreshNeeded false");
}

TEST_F(LayerStateCommandTest, UndoTakesARestoreBack) {
    runToEnd(L"-LAYER\nSTate\nSave\nPlan\n\n");
    runToEnd(L"-LAYER\nColor\n1\nWalls\nOFF\nDoors\n\n");
    runToEnd(L"-LAYER\nSTate\nRestore\nPlan\n\n");
    EXPECT_EQ(colorOf(L"Walls"), "color=7");
    EXPECT_TRUE(states().compareLayerStateToDb(L"Plan", KyDbObjectId()));
    runToEnd(L"U\n");
    EXPECT_EQ(takeLog().back(), "Undone: -LAYER");
    EXPECT_EQ(colorOf(L"Walls"), "color=1");
    EXPECT_NE(state(L"Doors").find("off=1"), std::string::npos);
    EXPECT_FALSE(states().compareLayerStateToDb(L"Plan", KyDbObjectId()));
    runToEnd(L"U\nU\n");
    EXPECT_FALSE(states().hasLayerState(L"Plan")) << "the save is taken back too";
}

TEST_F(LayerStateCommandTest, TheSecondLanguageHasItsOwnKeywordsAndAStateGoesToTheFile) {
    KyRxResourceInstance::setLanguage(L"de");
    runToEnd(L"-EBENE\nZUstand\nSpeichern\nPlan\n\n");
    runToEnd(L"-EBENE\nZU\nL\nPlan\n\n");
    runToEnd(L"-EBENE\nZU\nS\nAbends\n\n");
    KyRxResourceInstance::setLanguage(L"");
    EXPECT_FALSE(states().hasLayerState(L"Plan"));
    EXPECT_TRUE(states().hasLayerState(L"Abends"));

    const std::filesystem::path saved = folder / "saved.kyd";
    KyString error;
    ASSERT_TRUE(
        host->documents().saveDocument(host->documents().current(), saved.wstring().c_str(), error))
        << error.utf8();
    std::ifstream file(saved);
    const KyRefJson json = KyRefJson::parse(file);
    ASSERT_EQ(json["layerStates"].size(), 1u);
    EXPECT_EQ(json["layerStates"][0]["name"], "Abends");
    EXPECT_EQ(json["layerStates"][0]["layers"].size(), 4u);
}

}  // namespace
}  // namespace refhost
