// Erase and unerase, and undo and redo of changes, erases, appends and
// header values, with the notifications each one gives.
#include <gtest/gtest.h>

#include "DbTestSupport.h"
#include "db/KyDbBlockTable.h"
#include "db/KyDbLinetypeTable.h"
#include "db/KyDbStandardContent.h"

namespace dbtest {
namespace {

class EraseUndoTest : public DbTest {
protected:
    EraseUndoTest() : walls(addLayer(L"Walls")), doors(addLayer(L"Doors")) {}

    // Logs the notifications of the object `id` and of the database from now.
    void spyOn(KyDbObjectId id) {
        KyDbObjectPointer<KyDbObject> object(id, KyDb::kForNotify, true);
        object->addReactor(&objectSpy);
        db->addReactor(&databaseSpy);
        spied = id;
    }
    ~EraseUndoTest() override {
        db->removeReactor(&databaseSpy);
        if (!spied.isNull()) {
            KyDbObjectPointer<KyDbObject> object(spied, KyDb::kForNotify, true);
            object->removeReactor(&objectSpy);
        }
    }

    bool isOff(KyDbObjectId id) const {
        KyDbObjectPointer<KyDbLayerTableRecord> layer(id, KyDb::kForRead, true);
        return layer->isOff();
    }
    std::string nameOf(KyDbObjectId id) const { return labelOf(id); }

    KyDbObjectId walls;
    KyDbObjectId doors;
    KyDbObjectId spied;
    ObjectSpy objectSpy{log};
    DatabaseSpy databaseSpy{log};
};

TEST_F(EraseUndoTest, AnErasedRecordKeepsItsPlaceAndComesBackThere) {
    ASSERT_EQ(setErased(walls, true), Kyro::eOk);
    EXPECT_TRUE(walls.isErased());
    EXPECT_EQ(layerNames(), (Lines{"0", "Doors"}));
    EXPECT_EQ(layerNames(false), (Lines{"0", "Walls", "Doors"}));
    KyDbObjectPointer<KyDbLayerTable> table(db->layerTableId(), KyDb::kForRead);
    KyDbObjectId found;
    EXPECT_EQ(table->getAt(L"Walls", found), Kyro::eKeyNotFound);
    EXPECT_EQ(table->getAt(L"walls", found, true), Kyro::eOk);
    EXPECT_EQ(found, walls);
    table.close();

    EXPECT_EQ(setErased(walls, true), Kyro::eWasErased);
    ASSERT_EQ(setErased(walls, false), Kyro::eOk);
    EXPECT_EQ(setErased(walls, false), Kyro::eWasNotErased);
    EXPECT_FALSE(walls.isErased());
    EXPECT_EQ(layerNames(), (Lines{"0", "Walls", "Doors"}));
}

TEST_F(EraseUndoTest, StandardAndCurrentRecordsCantBeErasedOrRenamed) {
    EXPECT_EQ(setErased(layerId(L"0"), true), Kyro::eCannotBeErasedByCaller);
    EXPECT_EQ(renameLayer(layerId(L"0"), L"Zero"), Kyro::eCannotBeRenamed);
    ASSERT_EQ(db->setClayer(walls), Kyro::eOk);
    EXPECT_EQ(setErased(walls, true), Kyro::eCannotBeErasedByCaller);
    KyDbObjectId continuous;
    KyDbObjectId modelSpace;
    {
        KyDbObjectPointer<KyDbLinetypeTable> linetypes(db->linetypeTableId(), KyDb::kForRead);
        linetypes->getAt(KyDbStandardContent::kContinuous, continuous);
        KyDbObjectPointer<KyDbBlockTable> blocks(db->blockTableId(), KyDb::kForRead);
        blocks->getAt(KyDbStandardContent::kModelSpaceName, modelSpace);
    }
    EXPECT_EQ(setErased(continuous, true), Kyro::eCannotBeErasedByCaller);
    EXPECT_EQ(setErased(modelSpace, true), Kyro::eCannotBeErasedByCaller);
    EXPECT_EQ(setErased(db->layerTableId(), true), Kyro::eCannotBeErasedByCaller);
    EXPECT_EQ(setErased(db->namedObjectsDictionaryId(), true), Kyro::eCannotBeErasedByCaller);
    EXPECT_EQ(layerNames(), (Lines{"0", "Walls", "Doors"}));
}

TEST_F(EraseUndoTest, UneraseRefusesANameTakenMeanwhile) {
    ASSERT_EQ(setErased(walls, true), Kyro::eOk);
    const KyDbObjectId newWalls = addLayer(L"WALLS");
    ASSERT_FALSE(newWalls.isNull()) << "an erased record's name is free";
    EXPECT_EQ(setErased(walls, false), Kyro::eDuplicateRecordName);
    EXPECT_TRUE(walls.isErased());
    EXPECT_EQ(layerId(L"walls"), newWalls);
}

TEST_F(EraseUndoTest, UndoRestoresAChangeWithTheNotificationsOfAChange) {
    undo()->beginUndoGroup(KyDbUndoController::kBeginGroupCode, L"-LAYER");
    {
        KyDbObjectPointer<KyDbLayerTableRecord> layer(walls, KyDb::kForWrite);
        layer->setName(L"Outer walls");
        layer->setIsOff(true);
    }
    undo()->endUndoGroup();
    EXPECT_STREQ(undo()->undoLabel(), L"-LAYER");
    spyOn(walls);

    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_EQ(nameOf(walls), "Walls");
    EXPECT_FALSE(isOff(walls));
    EXPECT_EQ(layerId(L"Walls"), walls);
    EXPECT_EQ(log.lines(), (Lines{"modifyUndone Walls", "modified Walls", "db.objectModified Walls",
                                  "objectClosed Walls"}));
    log.clear();

    ASSERT_EQ(undo()->redo(), Kyro::eOk);
    EXPECT_EQ(nameOf(walls), "Outer walls");
    EXPECT_TRUE(isOff(walls));
    EXPECT_EQ(layerId(L"outer WALLS"), walls);
    EXPECT_EQ(log.lines(), (Lines{"modifyUndone Outer walls", "modified Outer walls",
                                  "db.objectModified Outer walls", "objectClosed Outer walls"}));
}

TEST_F(EraseUndoTest, AnUndoneEraseIsAnUnerase) {
    undo()->beginUndoGroup();
    setErased(walls, true);
    undo()->endUndoGroup();
    spyOn(walls);

    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_FALSE(walls.isErased());
    EXPECT_EQ(log.lines(),
              (Lines{"erased(false) Walls", "db.objectErased(false) Walls", "modified Walls",
                     "db.objectModified Walls", "objectClosed Walls"}));
    log.clear();
    ASSERT_EQ(undo()->redo(), Kyro::eOk);
    EXPECT_TRUE(walls.isErased());
    EXPECT_EQ(log.lines(),
              (Lines{"erased(true) Walls", "db.objectErased(true) Walls", "modified Walls",
                     "db.objectModified Walls", "objectClosed Walls"}));
}

TEST_F(EraseUndoTest, AnUndoneAppendErasesTheObjectAndItsRedoBringsItBack) {
    undo()->beginUndoGroup();
    const KyDbObjectId windows = addLayer(L"Windows");
    undo()->endUndoGroup();
    spyOn(windows);

    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_TRUE(windows.isErased());
    EXPECT_TRUE(windows.isValid()) << "an unappended object stays readable";
    EXPECT_EQ(layerNames(), (Lines{"0", "Walls", "Doors"}));
    EXPECT_EQ(log.lines(),
              (Lines{"erased(true) Windows", "db.objectErased(true) Windows", "unappended Windows",
                     "db.objectUnAppended Windows", "modified Windows", "db.objectModified Windows",
                     "objectClosed Windows", "db.objectModified KyDbLayerTable"}))
        << "the table, whose add is taken back, changes too";
    log.clear();
    ASSERT_EQ(undo()->redo(), Kyro::eOk);
    EXPECT_FALSE(windows.isErased());
    EXPECT_EQ(layerNames(), (Lines{"0", "Walls", "Doors", "Windows"}));
    EXPECT_EQ(log.lines(), (Lines{"erased(false) Windows", "db.objectErased(false) Windows",
                                  "reappended Windows", "db.objectReAppended Windows",
                                  "db.objectModified KyDbLayerTable", "modified Windows",
                                  "db.objectModified Windows", "objectClosed Windows"}));
}

TEST_F(EraseUndoTest, ChangesOutsideAGroupEndWithTheirLastWriteOpen) {
    {
        KyDbObjectPointer<KyDbLayerTable> table(db->layerTableId(), KyDb::kForWrite);
        for (const wchar_t* name : {L"A", L"B"}) {
            auto* layer = new KyDbLayerTableRecord();
            layer->setName(name);
            table->add(layer);
            layer->close();
        }
    }
    setErased(doors, true);
    EXPECT_EQ(undo()->undoCount(), 4) << "the fixture's two layers, the session, the erase";
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_EQ(layerNames(), (Lines{"0", "Walls", "Doors", "A", "B"}));
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_EQ(layerNames(), (Lines{"0", "Walls", "Doors"})) << "both adds were one group";
}

TEST_F(EraseUndoTest, NestedGroupsCountAsOneAndEmptyGroupsAreDropped) {
    const int before = undo()->undoCount();
    undo()->beginUndoGroup();
    undo()->beginUndoGroup();
    setErased(walls, true);
    undo()->endUndoGroup();
    EXPECT_EQ(undo()->undoCount(), before) << "the inner end does not finish the group";
    setErased(doors, true);
    undo()->endUndoGroup();
    EXPECT_EQ(undo()->undoCount(), before + 1);
    EXPECT_EQ(undo()->endUndoGroup(), Kyro::eNotApplicable);

    undo()->beginUndoGroup();
    undo()->endUndoGroup();
    EXPECT_EQ(undo()->undoCount(), before + 1);
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_FALSE(walls.isErased());
    EXPECT_FALSE(doors.isErased());
}

TEST_F(EraseUndoTest, HeaderValuesAreUndoneWithTheirNotifications) {
    const KyDbObjectId zero = layerId(L"0");
    undo()->beginUndoGroup();
    db->setClayer(walls);
    db->setCelweight(KyDb::kLnWt050);
    undo()->endUndoGroup();
    db->addReactor(&databaseSpy);
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_EQ(db->clayer(), zero);
    EXPECT_EQ(db->celweight(), KyDb::kLnWtByLayer);
    EXPECT_EQ(log.lines(),
              (Lines{"db.headerSysVarWillChange CELWEIGHT", "db.headerSysVarChanged CELWEIGHT ok",
                     "db.headerSysVarWillChange CLAYER", "db.headerSysVarChanged CLAYER ok"}));
    ASSERT_EQ(undo()->redo(), Kyro::eOk);
    EXPECT_EQ(db->clayer(), walls);
}

TEST_F(EraseUndoTest, NamesThatCrossInOneGroupComeBackRight) {
    undo()->beginUndoGroup();
    renameLayer(walls, L"Temp");
    renameLayer(doors, L"Walls");
    renameLayer(walls, L"Doors");
    undo()->endUndoGroup();
    ASSERT_EQ(layerId(L"Doors"), walls);
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_EQ(layerId(L"Walls"), walls);
    EXPECT_EQ(layerId(L"Doors"), doors);
    EXPECT_TRUE(layerId(L"Temp").isNull());
}

TEST_F(EraseUndoTest, UndoRefusesWhileAnObjectOfTheGroupIsOpen) {
    undo()->beginUndoGroup();
    renameLayer(walls, L"Outer");
    undo()->endUndoGroup();
    {
        KyDbObjectPointer<KyDbLayerTableRecord> reader(walls, KyDb::kForRead);
        EXPECT_EQ(undo()->undo(), Kyro::eWasOpenedForRead);
        EXPECT_EQ(nameOf(walls), "Outer");
    }
    EXPECT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_EQ(nameOf(walls), "Walls");
}

TEST_F(EraseUndoTest, ANewChangeThrowsTheRedoListAway) {
    renameLayer(walls, L"Outer");
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_TRUE(undo()->hasRedo());
    renameLayer(doors, L"Gates");
    EXPECT_FALSE(undo()->hasRedo());
    EXPECT_EQ(undo()->redo(), Kyro::eNotApplicable);
}

TEST_F(EraseUndoTest, NothingIsRecordedWhileRecordingIsOff) {
    undo()->clear();
    undo()->setRecording(false);
    renameLayer(walls, L"Outer");
    addLayer(L"Roof");
    EXPECT_FALSE(undo()->hasUndo());
    EXPECT_EQ(undo()->undo(), Kyro::eNotApplicable);
    undo()->setRecording(true);
}

TEST_F(EraseUndoTest, AGroupKeepsTheStateFromBeforeItsFirstChange) {
    undo()->beginUndoGroup();
    renameLayer(walls, L"One");
    renameLayer(walls, L"Two");
    renameLayer(walls, L"Three");
    undo()->endUndoGroup();
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_EQ(nameOf(walls), "Walls");
    ASSERT_EQ(undo()->redo(), Kyro::eOk);
    EXPECT_EQ(nameOf(walls), "Three");
}

}  // namespace
}  // namespace dbtest
