// SELECT and ERASE by handle, the selection they leave, sub-entities
// selected beside objects, and the objects a change of properties must leave
// alone.
#include <algorithm>

#include "RefHostTestSupport.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbEntity.h"
#include "db/KyDbFullSubentPath.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbUndoController.h"

namespace refhost {
namespace {

class SelectionCommandTest : public RefHostTest {
protected:
    SelectionCommandTest()
        : first(addEntity()),
          second(addEntity()),
          lockedLayer(addLayer(L"Locked", true)),
          onLockedLayer(addEntity(L"Locked")) {}

    std::vector<KyDbObjectId> selection() const { return host->selectionService()->selection(); }
    std::vector<KyDbFullSubentPath> paths() const {
        return host->selectionService()->subentPaths();
    }
    static KyDbFullSubentPath edgeOf(KyDbObjectId id, int index) {
        return KyDbFullSubentPath(id, KyDbSubentId(KyDb::kEdgeSubentType, index));
    }

    KyDbObjectId first;
    KyDbObjectId second;
    KyDbObjectId lockedLayer;
    KyDbObjectId onLockedLayer;
};

TEST_F(SelectionCommandTest, SelectTakesObjectsByHandleAndTellsTheHostState) {
    run((L"SELECT\n" + handleOf(first) + L"\n#" + handleOf(second) + L"\n\n").c_str());
    EXPECT_EQ(selection(), (std::vector<KyDbObjectId>{first, second}));
    EXPECT_TRUE(host->selectionService()->hasSelection());
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart SELECT", "hostStateChanged",
                                 "commandEnded SELECT", "refreshNeeded false"}));
}

TEST_F(SelectionCommandTest, AHandleOfNoEntityIsAnInvalidSelection) {
    run((L"SELECT\nFFFF\n" + handleOf(lockedLayer) + L"\n" + handleOf(first) + L"\n" +
         handleOf(first) + L"\n\n")
            .c_str());
    EXPECT_EQ(selection(), (std::vector<KyDbObjectId>{first}));
    EXPECT_EQ(takeLog(),
              (Lines{"Command: SELECT", "Select objects: FFFF", "*Invalid selection*",
                     "Select objects: " + utf8(handleOf(lockedLayer).c_str()),
                     "*Invalid selection*", "Select objects: " + utf8(handleOf(first).c_str()),
                     "1 found, 1 total", "Select objects: " + utf8(handleOf(first).c_str()),
                     "1 found (1 duplicate), 1 total", "Select objects: "}));
}

TEST_F(SelectionCommandTest, EraseByHandleErasesAndLeavesLockedLayersAlone) {
    run((L"ERASE\n" + handleOf(first) + L"\n" + handleOf(onLockedLayer) + L"\n\n").c_str());
    EXPECT_TRUE(isErased(first));
    EXPECT_FALSE(isErased(second));
    EXPECT_FALSE(isErased(onLockedLayer));
    EXPECT_EQ(takeLog().back(), "1 was on a locked layer.");
}

TEST_F(SelectionCommandTest, EraseTakesTheSelectionFirstAndEmptiesIt) {
    host->selectionService()->setSelection({first, second});
    spy.take();
    run(L"ERASE\n");
    EXPECT_TRUE(isErased(first));
    EXPECT_TRUE(isErased(second));
    EXPECT_FALSE(host->selectionService()->hasSelection());
    EXPECT_EQ(takeLog(), (Lines{"Command: ERASE", "2 found"}));
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart ERASE", "hostStateChanged", "commandEnded ERASE",
                                 "refreshNeeded false"}));
}

TEST_F(SelectionCommandTest, WithPickfirstOffEraseAsksForObjects) {
    run(L"PICKFIRST\n0\n");
    host->selectionService()->setSelection({first});
    run((L"ERASE\n" + handleOf(second) + L"\n\n").c_str());
    EXPECT_FALSE(isErased(first));
    EXPECT_TRUE(isErased(second));
}

TEST_F(SelectionCommandTest, ErasedObjectsDropOutOfTheSelection) {
    host->selectionService()->setSelection({first, second});
    {
        KyAxDocLock lock(db());
        KyDbObjectPointer<KyDbEntity> entity(first, KyDb::kForWrite);
        ASSERT_EQ(entity->erase(), Kyro::eOk);
    }
    EXPECT_EQ(selection(), (std::vector<KyDbObjectId>{second}));
}

TEST_F(SelectionCommandTest, AChangeOfPropertiesLeavesObjectsOnLockedLayersAlone) {
    host->selectionService()->setSelection({first, onLockedLayer, lockedLayer});
    int total = 0;
    int locked = 0;
    int other = 0;
    KyArray<KyDbObjectId> lockedIds;
    KyArray<KyDbObjectId> otherIds;
    EXPECT_EQ(host->selectionService()->filterForWrite(1, total, locked, other, nullptr, &lockedIds,
                                                       &otherIds, KyString()),
              Kyro::eOk);
    EXPECT_EQ(total, 3);
    EXPECT_EQ(locked, 1);
    EXPECT_EQ(other, 1);
    EXPECT_EQ(lockedIds[0], onLockedLayer);
    EXPECT_EQ(otherIds[0], lockedLayer);
    // Counting only entities: the layer record is not counted at all.
    EXPECT_EQ(host->selectionService()->filterForWrite(1, total, locked, other, KyDbEntity::desc(),
                                                       nullptr, nullptr, KyString()),
              Kyro::eOk);
    EXPECT_EQ(total, 2);
    EXPECT_EQ(other, 0);
}

// The figures a change of properties is checked against before it is sent:
// what the host counts as left alone must be what CHPROP then leaves alone.
TEST_F(SelectionCommandTest, SelectionCountsAgreeWithWhatAChangeOfPropertiesLeavesAlone) {
    const KyDbObjectId alsoOnLockedLayer = addEntity(L"Locked");
    host->selectionService()->setSelection({first, onLockedLayer, lockedLayer, alsoOnLockedLayer});
    int total = 0;
    int excluded = 0;
    int onLocked = 0;
    KyArray<KyDbObjectId> excludedIds;
    KyArray<KyDbObjectId> lockedIds;
    KyString text;
    ASSERT_EQ(host->selectionService()->getSelectionCounts(KyDiSelectionService::kChangeProperties,
                                                           total, excluded, onLocked, nullptr,
                                                           &excludedIds, &lockedIds, text),
              Kyro::eOk);
    EXPECT_EQ(total, 4);
    EXPECT_EQ(excluded, 3) << "the two on the locked layer and the layer record";
    EXPECT_EQ(onLocked, 2);
    ASSERT_EQ(excludedIds.length(), 3);
    EXPECT_EQ(excludedIds[0], onLockedLayer);
    EXPECT_EQ(excludedIds[1], alsoOnLockedLayer);
    EXPECT_EQ(excludedIds[2], lockedLayer);
    ASSERT_EQ(lockedIds.length(), 2);
    EXPECT_EQ(utf8(text.kwszPtr()), "2 were on a locked layer.");

    takeLog();
    run(L"_chprop\n_color\n3\n\n");
    const Lines log = takeLog();
    EXPECT_NE(std::find(log.begin(), log.end(), utf8(text.kwszPtr())), log.end())
        << "the command tells the same";
    EXPECT_EQ(KyDbObjectPointer<KyDbEntity>(first, KyDb::kForRead)->color().colorIndex(), 3);
    EXPECT_TRUE(KyDbObjectPointer<KyDbEntity>(onLockedLayer, KyDb::kForRead)->color().isByLayer());
}

TEST_F(SelectionCommandTest, SelectionCountsKeepToTheClassAskedForAndToAChangeOfProperties) {
    host->selectionService()->setSelection({first, second, lockedLayer});
    int total = 0;
    int excluded = 0;
    int onLocked = 0;
    KyString text(L"stale");
    ASSERT_EQ(host->selectionService()->getSelectionCounts(
                  KyDiSelectionService::kChangeProperties, total, excluded, onLocked,
                  KyDbEntity::desc(), nullptr, nullptr, text),
              Kyro::eOk);
    EXPECT_EQ(total, 2);
    EXPECT_EQ(excluded, 0);
    EXPECT_EQ(onLocked, 0);
    EXPECT_TRUE(text.isEmpty());

    host->selectionService()->setSelection({onLockedLayer});
    ASSERT_EQ(host->selectionService()->getSelectionCounts(KyDiSelectionService::kChangeProperties,
                                                           total, excluded, onLocked, nullptr,
                                                           nullptr, nullptr, text),
              Kyro::eOk);
    EXPECT_EQ(excluded, total) << "nothing is left to change";
    EXPECT_EQ(utf8(text.kwszPtr()), "1 was on a locked layer.");

    total = -1;
    EXPECT_EQ(host->selectionService()->getSelectionCounts(2, total, excluded, onLocked, nullptr,
                                                           nullptr, nullptr, text),
              Kyro::eInvalidInput)
        << "only a change of properties is known";
    EXPECT_EQ(host->selectionService()->filterForWrite(0, total, excluded, onLocked, nullptr,
                                                       nullptr, nullptr, KyString()),
              Kyro::eInvalidInput);
    EXPECT_EQ(total, -1);
}

TEST_F(SelectionCommandTest, EachDocumentKeepsItsOwnSelection) {
    host->selectionService()->setSelection({first}, {edgeOf(second, 0)});
    KyRefDocument* drawing = host->documents().current();
    host->documents().newDocument();
    EXPECT_FALSE(host->selectionService()->hasSelection());
    EXPECT_TRUE(paths().empty());
    host->documents().makeCurrent(drawing);
    EXPECT_EQ(selection(), (std::vector<KyDbObjectId>{first}));
    EXPECT_EQ(paths(), (std::vector<KyDbFullSubentPath>{edgeOf(second, 0)}));
}

TEST_F(SelectionCommandTest, SubEntitiesAreSelectedBesideObjectsAndAChangeIsTold) {
    spy.take();
    host->selectionService()->setSelection({first}, {edgeOf(second, 0), edgeOf(first, 1)});
    EXPECT_EQ(spy.take(), (Lines{"hostStateChanged"}));
    host->selectionService()->setSelection({first}, {edgeOf(second, 0), edgeOf(first, 1)});
    EXPECT_EQ(spy.take(), Lines{}) << "the same selection is no change";

    KyArray<KyDbObjectId> ids;
    KyDiSelectionService::SubentPathArray subents;
    ASSERT_EQ(host->selectionService()->getSelection(ids, subents), Kyro::eOk);
    ASSERT_EQ(ids.length(), 1) << "a sub-entity does not select its entity";
    EXPECT_EQ(ids[0], first);
    ASSERT_EQ(subents.length(), 2);
    EXPECT_EQ(subents[0], edgeOf(second, 0));
    EXPECT_EQ(subents[1], edgeOf(first, 1));

    host->selectionService()->setSelection({}, {edgeOf(second, 0)});
    EXPECT_TRUE(selection().empty());
    EXPECT_TRUE(host->selectionService()->hasSelection()) << "a sub-entity alone is a selection";
    EXPECT_EQ(spy.take(), (Lines{"hostStateChanged"}));
    host->selectionService()->setSelection({second});
    EXPECT_TRUE(paths().empty()) << "a selection of objects alone selects no sub-entity";
    EXPECT_EQ(spy.take(), (Lines{"hostStateChanged"}));
}

TEST_F(SelectionCommandTest, SubEntitiesOfAnErasedEntityDropOutAndComeBackWithTheUndo) {
    host->selectionService()->setSelection({second}, {edgeOf(first, 0), edgeOf(second, 0)});
    spy.take();
    KyAxDocLock lock(db());
    {
        KyDbObjectPointer<KyDbEntity> entity(first, KyDb::kForWrite);
        ASSERT_EQ(entity->erase(), Kyro::eOk);
    }
    EXPECT_EQ(paths(), (std::vector<KyDbFullSubentPath>{edgeOf(second, 0)}));
    KyArray<KyDbObjectId> ids;
    KyDiSelectionService::SubentPathArray subents;
    host->selectionService()->getSelection(ids, subents);
    EXPECT_EQ(subents.length(), 1);
    EXPECT_EQ(ids.length(), 1);

    ASSERT_EQ(db()->undoController()->undo(), Kyro::eOk);
    ASSERT_FALSE(isErased(first));
    EXPECT_EQ(paths(), (std::vector<KyDbFullSubentPath>{edgeOf(first, 0), edgeOf(second, 0)}))
        << "the selection holds what it was given, as it does for objects";
}

}  // namespace
}  // namespace refhost
