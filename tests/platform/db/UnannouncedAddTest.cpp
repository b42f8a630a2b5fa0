// A record added without notice: nobody is told of it, neither the table's
// reactors nor the database's, yet it is a record like any other: found by
// name, in table order, and taken back and made again by undo and redo,
// which tell of the record as usual.
#include <gtest/gtest.h>

#include "DbTestSupport.h"

namespace dbtest {
namespace {

class UnannouncedAddTest : public DbTest {
protected:
    UnannouncedAddTest() : table(log, "table.") {
        db->addReactor(&database);
        watch(db->layerTableId(), &table);
    }
    ~UnannouncedAddTest() override { db->removeReactor(&database); }

    Kyro::ErrorStatus addQuietly(const wchar_t* name) {
        KyDbObjectPointer<KyDbLayerTable> layers(db->layerTableId(), KyDb::kForWrite);
        auto* layer = new KyDbLayerTableRecord();
        layer->setName(name);
        KyDbObjectId id;
        const Kyro::ErrorStatus status = layers->addWithoutNotice(id, layer);
        if (status == Kyro::eOk) {
            layer->close();
        } else {
            delete layer;
        }
        return status;
    }

    DatabaseSpy database{log};
    ObjectSpy table;
};

TEST_F(UnannouncedAddTest, NobodyIsToldAndTheRecordIsLikeAnyOther) {
    addLayer(L"Walls");
    log.clear();
    ASSERT_EQ(addQuietly(L"Site|Walls"), Kyro::eOk);
    EXPECT_TRUE(log.lines().empty());
    EXPECT_EQ(layerNames(), (Lines{"0", "Walls", "Site|Walls"}));
    EXPECT_FALSE(layerId(L"site|walls").isNull());
    EXPECT_EQ(addQuietly(L"SITE|WALLS"), Kyro::eDuplicateRecordName);
    EXPECT_EQ(addQuietly(L"A<B"), Kyro::eInvalidName);
}

TEST_F(UnannouncedAddTest, UndoAndRedoTakeItBackAndMakeItAgainAsUsual) {
    undo()->beginUndoGroup();
    ASSERT_EQ(addQuietly(L"Site|Walls"), Kyro::eOk);
    undo()->endUndoGroup();
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_EQ(layerNames(), (Lines{"0"}));
    EXPECT_EQ(log.lines(),
              (Lines{"db.objectErased(true) Site|Walls", "db.objectUnAppended Site|Walls",
                     "db.objectModified Site|Walls"}))
        << "the table, which took no change, is told nothing";
    log.clear();
    ASSERT_EQ(undo()->redo(), Kyro::eOk);
    EXPECT_EQ(layerNames(), (Lines{"0", "Site|Walls"}));
    EXPECT_EQ(log.lines(),
              (Lines{"db.objectErased(false) Site|Walls", "db.objectReAppended Site|Walls",
                     "db.objectModified Site|Walls"}));
}

}  // namespace
}  // namespace dbtest
