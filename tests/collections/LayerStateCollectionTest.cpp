// The saved layer states as a live collection, and the current state: a
// drawing without states until the first is saved, hidden states, the
// commands after which the current state is looked for again, a state
// restored by hand and by the tracker, current until a layer drifts.
#include <gtest/gtest.h>

#include "KyRefDocument.h"
#include "collections/CollectionFixture.h"
#include "collections/KyDiImpDataLayerStateCollection.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLayerStateManager.h"
#include "db/KyDbUndoController.h"
#include "kydi/KyDiCurrencyTracker.h"

namespace {

using kytest::CollectionSpy;
using kytest::ContractChecker;
using Lines = std::vector<std::string>;

class LayerStates : public kytest::CollectionFixture {
protected:
    using CollectionFixture::CollectionFixture;

    KyDbLayerStateManager& manager() { return *db()->getLayerStateManager(); }
};

TEST_F(LayerStates, TheFirstStateSavedResetsAnEmptyListAndHiddenStatesAreLeftOut) {
    KyDiObservableCollection* states = known(L"KYRO_LAYERSTATES");
    ASSERT_NE(states, nullptr);
    EXPECT_EQ(names(states), Lines{});
    EXPECT_TRUE(states->isActive());
    pass();
    ContractChecker checker(states, "KYRO_LAYERSTATES");
    CollectionSpy spy(states);

    type(L"-LAYER\nSTate\nSave\nFirst\n\n");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"collectionReset", "currentItemChanged null"}))
        << "the dictionary came with the first state";
    EXPECT_EQ(names(states), Lines{"First"});

    // A hidden state is in the dictionary, has no item, and its changes go
    // unreported.
    {
        const KyAxDocLock lock(db());
        ASSERT_EQ(
            manager().saveLayerState(L"Secret", KyDbLayerStateManager::kHidden, KyDbObjectId()),
            Kyro::eOk);
    }
    pass();
    EXPECT_EQ(names(states), Lines{"First"});
    {
        const KyAxDocLock lock(db());
        ASSERT_EQ(manager().setLayerStateMask(
                      L"Secret", KyDbLayerStateManager::kHidden | KyDbLayerStateManager::kOff),
                  Kyro::eOk);
    }
    pass();
    EXPECT_EQ(spy.take(), Lines{});

    type(L"-LAYER\nSTate\nSave\nSecond\n\n");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"itemsChanged added=[Second] removed=[]"}));
    // A state saved under the hidden one's name is a new state, and listed.
    type(L"-LAYER\nSTate\nSave\nSecret\n\n");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"itemsChanged added=[Secret] removed=[]"}));
    // An erased state rebuilds the list.
    type(L"-LAYER\nSTate\nDelete\nFirst\n\n");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"collectionReset", "currentItemChanged null"}));
    EXPECT_EQ(names(states), (Lines{"Secret", "Second"})) << "in the order of the dictionary";
    checker.expectInStep();
}

TEST_F(LayerStates, AStateRestoredByHandIsCurrentUntilALayerDriftsAndAHiddenOneNever) {
    type(L"-LAYER\n_New\nWalls\n\n");
    type(L"-LAYER\nSTate\nSave\nPlain\n\n");
    KyDiObservableCollection* states = known(L"KYRO_LAYERSTATES");
    pass();
    ContractChecker checker(states, "KYRO_LAYERSTATES");
    CollectionSpy spy(states);

    type(L"-LAYER\n_Color\n1\nWalls\n\n");
    pass();
    spy.take();
    type(L"-LAYER\nSTate\nRestore\nPlain\n\n");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"itemsModified [Plain]", "currentItemChanged Plain"}))
        << "the restore touches the state, which is now current";

    // A new layer the state does not list leaves it current.
    type(L"-LAYER\n_New\nFences\n\n");
    pass();
    EXPECT_EQ(spy.take(), Lines{});
    // A layer it lists drifts: it is no longer current.
    type(L"-LAYER\n_Color\n3\nWalls\n\n");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"currentItemChanged null"}));

    // A hidden state restored is never current.
    {
        const KyAxDocLock lock(db());
        ASSERT_EQ(
            manager().saveLayerState(L"Secret", KyDbLayerStateManager::kHidden, KyDbObjectId()),
            Kyro::eOk);
    }
    type(L"-LAYER\nSTate\nRestore\nSecret\n\n");
    pass();
    EXPECT_EQ(states->getCurrentItem(), nullptr);
    checker.expectInStep();
}

TEST_F(LayerStates, TheTrackerRestoresAStateInOneUndoStepAndRedrawsTheLayersItChanged) {
    type(L"-LAYER\n_New\nWalls,Doors\n\n");
    type(L"-LAYER\nSTate\nSave\nPlain\n\n");
    type(L"-LAYER\n_Color\n1\nWalls\n_Off\nDoors\n\n");
    KyDiObservableCollection* states = known(L"KYRO_LAYERSTATES");
    KyDiObservableCollection* layers = known(L"LAYER");
    pass();
    ContractChecker checker(states, "KYRO_LAYERSTATES");
    ContractChecker layerChecker(layers, "LAYER");
    CollectionSpy spy(states);
    CollectionSpy layerSpy(layers);
    host.regenerationService()->setRegenMode(3);
    host.regenerationService()->clearRequests();
    const int undoSteps = db()->undoController()->undoCount();

    states->setCurrentItem(item(states, "Plain"));
    EXPECT_EQ(sentTexts(), std::vector<std::wstring>{}) << "no command: restored directly";
    ASSERT_EQ(host.regenerationService()->requests().size(), 1u);
    EXPECT_EQ(host.regenerationService()->requests()[0].layerIds.size(), 2u)
        << "Walls and Doors, the layers the restore changed";
    EXPECT_EQ(host.regenerationService()->requests()[0].mode, 3);
    EXPECT_EQ(db()->undoController()->undoCount(), undoSteps + 1);
    pass();
    EXPECT_EQ(spy.take(), (Lines{"itemsModified [Plain]", "currentItemChanged Plain"}));
    EXPECT_EQ(layerSpy.take().size(), 1u) << "the layers' one itemsModified";

    type(L"_U\n");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"itemsModified [Plain]", "currentItemChanged null"}))
        << "one step takes it back";
    checker.expectInStep();
    layerChecker.expectInStep();
}

TEST(LayerStateCommands, LayerCommandsInAnyCaseMakeTheTrackerLookAgain) {
    using Collection = KyDiImpDataLayerStateCollection;
    for (const wchar_t* command : {L"LAYER", L"layon", L"LayIso", L"-LAYER", L"-laymrg", L"+LAYER",
                                   L"U", L"undo", L"REDO"}) {
        EXPECT_TRUE(Collection::isLayerStateCommand(command)) << KyString(command).utf8();
    }
    for (const wchar_t* command : {L"LAYMRG", L"LINE", L"", L"-LAYERS"}) {
        EXPECT_FALSE(Collection::isLayerStateCommand(command)) << KyString(command).utf8();
    }
    EXPECT_FALSE(Collection::isLayerStateCommand(nullptr));
}

}  // namespace
