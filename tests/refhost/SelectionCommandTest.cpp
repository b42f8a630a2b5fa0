// SELECT and ERASE by handle, the selection they leave, and the objects a
// change of properties must leave alone.
#include "RefHostTestSupport.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbEntity.h"
#include "db/KyDbObjectPointer.h"

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

TEST_F(SelectionCommandTest, EachDocumentKeepsItsOwnSelection) {
    host->selectionService()->setSelection({first});
    KyRefDocument* drawing = host->documents().current();
    host->documents().newDocument();
    EXPECT_FALSE(host->selectionService()->hasSelection());
    host->documents().makeCurrent(drawing);
    EXPECT_EQ(selection(), (std::vector<KyDbObjectId>{first}));
}

}  // namespace
}  // namespace refhost
