// Layer states: the dictionary that comes with the first save, masks with the
// hidden bit and the sign bit, the comparison that holds until a layer
// drifts, restores that write only what differs and tell the state, restore
// flags, the freezes of a viewport, the last restored state, undo, and the
// document lock.
#include <gtest/gtest.h>

#include "DbTestSupport.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbLayerState.h"
#include "db/KyDbLayerStateManager.h"
#include "db/KyDbViewport.h"
#include "rx/KyRxClass.h"

namespace dbtest {
namespace {

using Manager = KyDbLayerStateManager;

// Notes, when a plain dictionary is appended, whether the manager finds the
// layer states dictionary at that moment: what a list of states waiting for
// the dictionary relies on.
class DictionaryWatcher : public KyDbDatabaseReactor {
public:
    void objectAppended(const KyDbDatabase* database, const KyDbObject* object) override {
        if (object->isA() == KyDbDictionary::desc()) {
            found.push_back(database->getLayerStateManager()->layerStatesDictionaryId(false) ==
                            object->objectId());
        }
    }
    std::vector<bool> found;
};

class LayerStateTest : public DbTest {
protected:
    LayerStateTest()
        : manager(db->getLayerStateManager()),
          walls(addLayer(L"Walls")),
          doors(addLayer(L"Doors")) {}

    template <typename Change>
    void changeLayer(KyDbObjectId id, Change change) {
        KyDbObjectPointer<KyDbLayerTableRecord> layer(id, KyDb::kForWrite);
        ASSERT_TRUE(layer);
        ASSERT_EQ(change(*layer.object()), Kyro::eOk);
    }
    static KyCmColor colorIndex(unsigned short index) {
        KyCmColor color;
        color.setColorIndex(index);
        return color;
    }
    // "off frozen color" of a layer, e.g. "1 0 7".
    static std::string look(KyDbObjectId id) {
        KyDbObjectPointer<KyDbLayerTableRecord> layer(id, KyDb::kForRead);
        return std::to_string(layer->isOff()) + " " + std::to_string(layer->isFrozen()) + " " +
               std::to_string(layer->color().colorIndex());
    }

    Manager* manager;
    KyDbObjectId walls;
    KyDbObjectId doors;
};

TEST_F(LayerStateTest, TheDictionaryComesWithTheFirstSaveAndDatabaseReactorsHearIt) {
    ASSERT_NE(manager, nullptr);
    EXPECT_EQ(manager->database(), db);
    EXPECT_TRUE(manager->layerStatesDictionaryId(false).isNull());
    DictionaryWatcher watcher;
    DatabaseSpy spy(log);
    db->addReactor(&watcher);
    db->addReactor(&spy);

    EXPECT_EQ(manager->saveLayerState(L"Plan", 0, KyDbObjectId()), Kyro::eOk);
    const KyDbObjectId dictionary = manager->layerStatesDictionaryId(false);
    ASSERT_FALSE(dictionary.isNull());
    EXPECT_EQ(dictionary.objectClass(), KyDbDictionary::desc());
    EXPECT_EQ(dictionary, db->namedObjectsEntryId(Manager::kDictionaryKey));
    EXPECT_EQ(watcher.found, std::vector<bool>{true});
    const Lines appended = {"db.objectAppended KyDbDictionary", "db.objectAppended KyDbLayerState"};
    Lines seen;
    for (const std::string& line : log.lines()) {
        if (line.rfind("db.objectAppended", 0) == 0) {
            seen.push_back(line);
        }
    }
    EXPECT_EQ(seen, appended);

    log.clear();
    EXPECT_EQ(manager->layerStatesDictionaryId(true), dictionary);
    EXPECT_EQ(manager->saveLayerState(L"Second", 0, KyDbObjectId()), Kyro::eOk);
    EXPECT_EQ(watcher.found.size(), 1u) << "the dictionary is made once";
    EXPECT_TRUE(manager->hasLayerState(L"second")) << "names match without regard to case";
    EXPECT_EQ(manager->saveLayerState(L"", 0, KyDbObjectId()), Kyro::eInvalidInput);
    db->removeReactor(&spy);
    db->removeReactor(&watcher);
}

TEST_F(LayerStateTest, AHiddenStatesMaskHasTheHiddenBitAndTheSignBit) {
    ASSERT_EQ(manager->saveLayerState(L"Hidden", Manager::kHidden | Manager::kColor, {}),
              Kyro::eOk);
    int mask = 0;
    ASSERT_EQ(manager->getLayerStateMask(L"Hidden", mask), Kyro::eOk);
    EXPECT_LT(mask, 0);
    EXPECT_EQ(mask & 0xFFFF, 0x8010);

    ASSERT_EQ(manager->setLayerStateMask(L"Hidden", Manager::kColor), Kyro::eOk);
    ASSERT_EQ(manager->getLayerStateMask(L"Hidden", mask), Kyro::eOk);
    EXPECT_EQ(mask, 0x10) << "without the hidden bit the sign bit goes too";
    EXPECT_EQ(KyDbLayerState::normalizedMask(static_cast<int>(0x80000001u)), 1);

    EXPECT_EQ(manager->getLayerStateMask(L"Nowhere", mask), Kyro::eKeyNotFound);
    EXPECT_EQ(manager->setLayerStateMask(L"Nowhere", 0), Kyro::eKeyNotFound);
    EXPECT_EQ(mask, 0x10) << "an unknown name leaves the mask alone";
}

TEST_F(LayerStateTest, TheComparisonHoldsUntilALayerTheMaskCoversDrifts) {
    ASSERT_EQ(manager->saveLayerState(L"All", 0, {}), Kyro::eOk);
    ASSERT_EQ(manager->saveLayerState(L"Colours free", Manager::kColor, {}), Kyro::eOk);
    EXPECT_TRUE(manager->compareLayerStateToDb(L"All", {}));
    EXPECT_FALSE(manager->compareLayerStateToDb(L"Nowhere", {}));

    addLayer(L"Later");
    EXPECT_TRUE(manager->compareLayerStateToDb(L"All", {}))
        << "a layer the state lacks is no drift";
    changeLayer(doors, [](KyDbLayerTableRecord& layer) { return layer.setColor(colorIndex(3)); });
    EXPECT_FALSE(manager->compareLayerStateToDb(L"All", {}));
    EXPECT_TRUE(manager->compareLayerStateToDb(L"Colours free", {}));
    changeLayer(doors, [](KyDbLayerTableRecord& layer) { return layer.setIsLocked(true); });
    EXPECT_FALSE(manager->compareLayerStateToDb(L"Colours free", {}));
    changeLayer(doors, [](KyDbLayerTableRecord& layer) { return layer.setIsLocked(false); });
    changeLayer(doors, [](KyDbLayerTableRecord& layer) { return layer.setColor(colorIndex(7)); });
    EXPECT_TRUE(manager->compareLayerStateToDb(L"All", {}));

    ASSERT_EQ(setErased(doors, true), Kyro::eOk);
    EXPECT_TRUE(manager->compareLayerStateToDb(L"All", {})) << "a layer gone is passed by";
}

TEST_F(LayerStateTest, ARestoreWritesOnlyTheLayersThatDifferAndTellsTheState) {
    KyString name;
    KyDbObjectId id;
    EXPECT_EQ(manager->getLastRestoredLayerState(name, id), Kyro::eKeyNotFound);
    ASSERT_EQ(manager->saveLayerState(L"Plan", 0, {}), Kyro::eOk);
    const KyDbObjectId plan = manager->layerStateId(L"plan");
    changeLayer(walls, [](KyDbLayerTableRecord& layer) {
        layer.setIsOff(true);
        return layer.setColor(colorIndex(1));
    });
    ObjectSpy layerSpy(log);
    ObjectSpy stateSpy(log, "state ");
    watch(walls, &layerSpy);
    watch(doors, &layerSpy);
    watch(plan, &stateSpy);

    EXPECT_EQ(manager->restoreLayerState(L"PLAN", {}, 0, nullptr), Kyro::eOk);
    EXPECT_EQ(look(walls), "0 0 7");
    EXPECT_EQ(log.lines(),
              (Lines{"openedForModify Walls", "modified Walls", "objectClosed Walls",
                     "state openedForModify KyDbLayerState", "state modified KyDbLayerState",
                     "state objectClosed KyDbLayerState"}))
        << "Doors, which matches, is not written";
    ASSERT_EQ(manager->getLastRestoredLayerState(name, id), Kyro::eOk);
    EXPECT_EQ(name, KyString(L"Plan")) << "the name as the state has it";
    EXPECT_EQ(id, plan);
    EXPECT_TRUE(manager->compareLayerStateToDb(L"Plan", {}));

    // A mask given to the restore stands for the state's own.
    changeLayer(walls, [](KyDbLayerTableRecord& layer) {
        layer.setIsOff(true);
        return layer.setColor(colorIndex(1));
    });
    const int colorOnly = ~Manager::kColor & 0x3FF;
    EXPECT_EQ(manager->restoreLayerState(L"Plan", {}, 0, &colorOnly), Kyro::eOk);
    EXPECT_EQ(look(walls), "1 0 7");

    EXPECT_EQ(manager->restoreLayerState(L"Nowhere", {}, 0, nullptr), Kyro::eKeyNotFound);
    ASSERT_EQ(manager->getLastRestoredLayerState(name, id), Kyro::eOk);
    EXPECT_EQ(id, plan) << "a failed restore leaves the last one";

    // Renamed since: the last restored state answers its name as it is now.
    {
        KyDbObjectPointer<KyDbDictionary> states(manager->layerStatesDictionaryId(false),
                                                 KyDb::kForWrite);
        ASSERT_EQ(states->setName(L"Plan", L"Ground floor"), Kyro::eOk);
    }
    ASSERT_EQ(manager->getLastRestoredLayerState(name, id), Kyro::eOk);
    EXPECT_EQ(name, KyString(L"Ground floor"));
}

TEST_F(LayerStateTest, RestoreFlagsTurnOffAndFreezeOtherLayersButNeverFreezeTheCurrentOne) {
    changeLayer(doors, [](KyDbLayerTableRecord& layer) { return layer.setIsFrozen(true); });
    ASSERT_EQ(manager->saveLayerState(L"Plan", 0, {}), Kyro::eOk);
    const KyDbObjectId extra = addLayer(L"Extra");
    const KyDbObjectId current = addLayer(L"Current");
    ASSERT_EQ(db->setClayer(current), Kyro::eOk);

    ASSERT_EQ(manager->restoreLayerState(L"Plan", {}, 0, nullptr), Kyro::eOk);
    EXPECT_EQ(look(extra), "0 0 7") << "without flags other layers stay";
    ASSERT_EQ(manager->restoreLayerState(L"Plan", {},
                                         Manager::kTurnOffOthers | Manager::kFreezeOthers, nullptr),
              Kyro::eOk);
    EXPECT_EQ(look(extra), "1 1 7");
    EXPECT_EQ(look(current), "1 0 7");
    EXPECT_EQ(look(walls), "0 0 7");

    // A state that freezes the current layer leaves it thawed, and matches.
    ASSERT_EQ(db->setClayer(doors), Kyro::eOk);
    changeLayer(doors, [](KyDbLayerTableRecord& layer) { return layer.setIsFrozen(false); });
    EXPECT_TRUE(manager->compareLayerStateToDb(L"Plan", {}));
    ASSERT_EQ(manager->restoreLayerState(L"Plan", {}, 0, nullptr), Kyro::eOk);
    EXPECT_EQ(look(doors), "0 0 7");
}

TEST_F(LayerStateTest, InAViewportFrozenMeansHiddenThereAndTheViewportTakesTheFreezes) {
    addEntity(new KyDbViewport(), L"*Paper_Space");
    const KyDbObjectId window = addEntity(new KyDbViewport(), L"*Paper_Space");
    const auto setFrozenInWindow = [&](KyDbObjectId layer, bool frozen) {
        KyDbObjectPointer<KyDbViewport> viewport(window, KyDb::kForWrite);
        KyArray<KyDbObjectId> ids;
        ids.append(layer);
        return frozen ? viewport->freezeLayersInViewport(ids) : viewport->thawLayersInViewport(ids);
    };
    const auto frozenInWindow = [&](KyDbObjectId layer) {
        KyDbObjectPointer<KyDbViewport> viewport(window, KyDb::kForRead);
        return viewport->isLayerFrozenInViewport(layer);
    };
    ASSERT_EQ(setFrozenInWindow(doors, true), Kyro::eOk);
    ASSERT_EQ(manager->saveLayerState(L"Window", 0, window), Kyro::eOk);
    ASSERT_EQ(manager->saveLayerState(L"Own freezes", Manager::kViewportFrozen, window), Kyro::eOk);
    EXPECT_TRUE(manager->compareLayerStateToDb(L"Window", window));
    EXPECT_FALSE(manager->compareLayerStateToDb(L"Window", KyDbObjectId()))
        << "outside the viewport the state wants Doors frozen";
    EXPECT_TRUE(manager->compareLayerStateToDb(L"Own freezes", KyDbObjectId()));

    ASSERT_EQ(setFrozenInWindow(doors, false), Kyro::eOk);
    EXPECT_FALSE(manager->compareLayerStateToDb(L"Window", window));
    EXPECT_TRUE(manager->compareLayerStateToDb(L"Own freezes", window));
    ASSERT_EQ(manager->restoreLayerState(L"Window", window, 0, nullptr), Kyro::eOk);
    EXPECT_TRUE(frozenInWindow(doors));
    EXPECT_EQ(look(doors), "0 0 7") << "frozen in the viewport alone";

    // A layer the state shows is thawed in the viewport and everywhere.
    ASSERT_EQ(setFrozenInWindow(walls, true), Kyro::eOk);
    changeLayer(walls, [](KyDbLayerTableRecord& layer) { return layer.setIsFrozen(true); });
    ASSERT_EQ(manager->restoreLayerState(L"Window", window, 0, nullptr), Kyro::eOk);
    EXPECT_FALSE(frozenInWindow(walls));
    EXPECT_EQ(look(walls), "0 0 7");
    EXPECT_TRUE(manager->compareLayerStateToDb(L"Window", window));
}

TEST_F(LayerStateTest, UndoTakesARestoreASaveOverAndADeleteBack) {
    ASSERT_EQ(manager->saveLayerState(L"Plan", 0, {}), Kyro::eOk);
    changeLayer(walls, [](KyDbLayerTableRecord& layer) { return layer.setColor(colorIndex(1)); });
    ASSERT_EQ(manager->restoreLayerState(L"Plan", {}, 0, nullptr), Kyro::eOk);
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_EQ(look(walls), "0 0 1");
    EXPECT_FALSE(manager->compareLayerStateToDb(L"Plan", {}));
    ASSERT_EQ(undo()->redo(), Kyro::eOk);
    EXPECT_EQ(look(walls), "0 0 7");

    // Saved over, the state takes the drawing as it is now; undo gives the
    // rows it had back.
    changeLayer(walls, [](KyDbLayerTableRecord& layer) { return layer.setColor(colorIndex(2)); });
    {
        KyDbObjectPointer<KyDbLayerState> state(manager->layerStateId(L"Plan"), KyDb::kForWrite);
        ASSERT_EQ(state->setDescription(L"Ground floor"), Kyro::eOk);
    }
    ASSERT_EQ(manager->saveLayerState(L"Plan", Manager::kLocked, {}), Kyro::eOk);
    {
        KyDbObjectPointer<KyDbLayerState> state(manager->layerStateId(L"Plan"), KyDb::kForRead);
        EXPECT_EQ(state->findLayer(L"walls")->color.colorIndex(), 2);
        EXPECT_EQ(state->description(), KyString(L"Ground floor"));
        EXPECT_EQ(state->mask(), Manager::kLocked);
    }
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    {
        KyDbObjectPointer<KyDbLayerState> state(manager->layerStateId(L"Plan"), KyDb::kForRead);
        EXPECT_EQ(state->findLayer(L"Walls")->color.colorIndex(), 7);
        EXPECT_EQ(state->mask(), 0);
    }

    KyString name;
    KyDbObjectId id;
    ASSERT_EQ(manager->deleteLayerState(L"plan"), Kyro::eOk);
    EXPECT_FALSE(manager->hasLayerState(L"Plan"));
    EXPECT_EQ(manager->getLastRestoredLayerState(name, id), Kyro::eKeyNotFound)
        << "the last restored state was deleted";
    EXPECT_EQ(manager->deleteLayerState(L"Plan"), Kyro::eKeyNotFound);
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_TRUE(manager->hasLayerState(L"Plan"));
    EXPECT_EQ(manager->getLastRestoredLayerState(name, id), Kyro::eOk);
}

TEST_F(LayerStateTest, StatesRefuseRowsALayerCantTake) {
    KyDbLayerState state;
    KyDbLayerState::Layer row;
    row.name = L"Walls";
    EXPECT_EQ(state.setLayers({row}), Kyro::eOk);
    EXPECT_EQ(state.setLayers({row, row}), Kyro::eDuplicateKey);
    KyDbLayerState::Layer bad = row;
    bad.color.setColorIndex(KyCmColor::kACIbyLayer);
    EXPECT_EQ(state.setLayers({bad}), Kyro::eInvalidInput);
    bad = row;
    bad.lineWeight = KyDb::kLnWtByLayer;
    EXPECT_EQ(state.setLayers({bad}), Kyro::eInvalidInput);
    bad = row;
    bad.name = L"";
    EXPECT_EQ(state.setLayers({bad}), Kyro::eInvalidInput);
    EXPECT_EQ(state.layers().size(), 1u);
}

TEST_F(LayerStateTest, WritesNeedTheDocumentLockAndChangeNothingWithoutIt) {
    ASSERT_EQ(manager->saveLayerState(L"Plan", 0, {}), Kyro::eOk);
    changeLayer(walls, [](KyDbLayerTableRecord& layer) { return layer.setColor(colorIndex(1)); });
    db->setLockRequired(true);
    EXPECT_EQ(manager->restoreLayerState(L"Plan", {}, 0, nullptr), Kyro::eLockViolation);
    EXPECT_EQ(manager->saveLayerState(L"Other", 0, {}), Kyro::eLockViolation);
    EXPECT_EQ(manager->deleteLayerState(L"Plan"), Kyro::eLockViolation);
    EXPECT_EQ(look(walls), "0 0 1");
    EXPECT_FALSE(manager->hasLayerState(L"Other"));
    KyString name;
    KyDbObjectId id;
    EXPECT_EQ(manager->getLastRestoredLayerState(name, id), Kyro::eKeyNotFound);
    {
        KyAxDocLock lock(db);
        EXPECT_EQ(manager->restoreLayerState(L"Plan", {}, 0, nullptr), Kyro::eOk);
    }
    EXPECT_EQ(look(walls), "0 0 7");
    db->setLockRequired(false);
}

}  // namespace
}  // namespace dbtest
