// Ids and handles: ids that outlive their database stay safe to ask, ids
// compare by value, handles are unique and printed in hexadecimal, a reader
// puts objects in with the handles of a file, and duplicates are refused.
#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "DbTestSupport.h"
#include "db/KyDbHandle.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbStubArena.h"
#include "db/KyDbUnknownObject.h"

namespace dbtest {
namespace {

TEST(ObjectIdTest, TheNullIdAnswersEverythingSafely) {
    const KyDbObjectId id;
    EXPECT_TRUE(id.isNull());
    EXPECT_FALSE(id.isValid());
    EXPECT_FALSE(id.isErased());
    EXPECT_EQ(id.database(), nullptr);
    EXPECT_EQ(id.objectClass(), nullptr);
    EXPECT_EQ(id.handle(), 0u);
    EXPECT_EQ(KyRxValue(id).text(), KyString(L"0"));
}

TEST(ObjectIdTest, TheStubArenaHandsOutEachStubOnceZeroedAcrossItsGrowingBlocks) {
    // Blocks of 1024, 2048 ... 65536 stubs, then 65536 each: enough stubs to
    // cross every size and two blocks of the largest.
    const long long before = KyDbStubArena::stubCount();
    constexpr int kCount = 1024 * 127 + 65536 * 2 + 10;
    std::vector<KyDbStub*> stubs;
    for (int i = 0; i < kCount; ++i) {
        KyDbStub* stub = KyDbStubArena::newStub();
        ASSERT_EQ(stub->database, nullptr);
        ASSERT_EQ(stub->handle, 0u) << "stub " << i << " was handed out before";
        stub->handle = static_cast<std::uint64_t>(i) + 1;
        stubs.push_back(stub);
    }
    EXPECT_EQ(KyDbStubArena::stubCount() - before, kCount);
    for (int i = 0; i < kCount; ++i) {
        ASSERT_EQ(stubs[static_cast<std::size_t>(i)]->handle, static_cast<std::uint64_t>(i) + 1)
            << "stub " << i << " was handed out again later";
    }
}

TEST(ObjectIdTest, IdsOfADeletedDatabaseStaySafeToAsk) {
    auto* db = new KyDbDatabase();
    KyDbObjectId erased;
    KyDbObjectId kept;
    {
        KyDbObjectPointer<KyDbLayerTable> table(db->layerTableId(), KyDb::kForWrite);
        for (const wchar_t* name : {L"Gone", L"Kept"}) {
            auto* layer = new KyDbLayerTableRecord();
            layer->setName(name);
            table->add(name == KyString(L"Gone") ? erased : kept, layer);
            if (name == KyString(L"Gone")) {
                layer->erase();
            }
            layer->close();
        }
    }
    const std::uint64_t handle = kept.handle();
    delete db;

    for (const KyDbObjectId& id : {erased, kept}) {
        EXPECT_FALSE(id.isNull());
        EXPECT_FALSE(id.isValid());
        EXPECT_EQ(id.database(), nullptr);
        KyDbObject* object = reinterpret_cast<KyDbObject*>(0x1);
        EXPECT_EQ(kydbOpenObject(object, id, KyDb::kForRead, true), Kyro::eInvalidObjectId);
        EXPECT_EQ(object, nullptr);
    }
    EXPECT_TRUE(erased.isErased()) << "the last state of the object is kept";
    EXPECT_FALSE(kept.isErased());
    EXPECT_EQ(kept.handle(), handle);
    EXPECT_EQ(kept.objectClass(), KyDbLayerTableRecord::desc());
}

TEST(ObjectIdTest, IdsCompareAndSortByValue) {
    KyDbDatabase db;
    const KyDbObjectId layers = db.layerTableId();
    const KyDbObjectId copy = layers;
    EXPECT_EQ(copy, layers);
    EXPECT_NE(layers, db.blockTableId());
    const std::set<KyDbObjectId> ids{layers, db.blockTableId(), copy, db.linetypeTableId()};
    EXPECT_EQ(ids.size(), 3u);
    EXPECT_TRUE(layers < db.blockTableId() || db.blockTableId() < layers);
    EXPECT_EQ(sizeof(KyDbObjectId), sizeof(void*));
}

TEST(HandleTest, HandlesPrintInUpperCaseHexadecimalAndReadBack) {
    EXPECT_EQ(KyDbHandle(0x1F).text(), KyString(L"1F"));
    EXPECT_EQ(KyDbHandle(0).text(), KyString(L"0"));
    EXPECT_EQ(KyDbHandle(0xFFFFFFFFFFFFFFFFull).text(), KyString(L"FFFFFFFFFFFFFFFF"));
    KyDbHandle handle;
    ASSERT_TRUE(KyDbHandle::fromText(L"5a4", handle));
    EXPECT_EQ(handle, KyDbHandle(0x5A4));
    for (const wchar_t* bad : {L"", L"0x10", L"12G", L" 1", L"10000000000000000"}) {
        EXPECT_FALSE(KyDbHandle::fromText(bad, handle)) << KyString(bad).utf8();
    }
    EXPECT_EQ(handle, KyDbHandle(0x5A4)) << "a refused text leaves the handle alone";
    wchar_t small[2];
    EXPECT_FALSE(KyDbHandle(0x100).getIntoAsciiBuffer(small, 2));
}

class HandleDbTest : public DbTest {};

TEST_F(HandleDbTest, EachObjectGetsItsOwnHandleBelowTheHandseed) {
    std::set<std::uint64_t> handles;
    for (const wchar_t* name : {L"A", L"B", L"C"}) {
        const KyDbObjectId id = addLayer(name);
        EXPECT_TRUE(handles.insert(id.handle()).second);
        EXPECT_LT(id.handle(), db->handseed().value());
        KyDbObjectId found;
        ASSERT_EQ(db->getKyDbObjectId(found, id.handle()), Kyro::eOk);
        EXPECT_EQ(found, id);
        EXPECT_EQ(KyRxValue(id).text(), KyDbHandle(id.handle()).text());
    }
    KyDbObjectId none;
    EXPECT_EQ(db->getKyDbObjectId(none, db->handseed()), Kyro::eKeyNotFound);
}

TEST_F(HandleDbTest, AReaderGivesHandlesAndADuplicateIsRefusedWithoutATrace) {
    KyDbObjectPointer<KyDbLayerTable> table(db->layerTableId(), KyDb::kForWrite);
    auto* walls = new KyDbLayerTableRecord();
    walls->setName(L"Walls");
    KyDbObjectId id;
    ASSERT_EQ(table->add(id, walls, KyDbHandle(0x4000)), Kyro::eOk);
    walls->close();
    EXPECT_EQ(id.handle(), 0x4000u);
    EXPECT_EQ(db->handseed(), KyDbHandle(0x4001));

    auto* doors = new KyDbLayerTableRecord();
    doors->setName(L"Doors");
    KyDbObjectId refused;
    EXPECT_EQ(table->add(refused, doors, KyDbHandle(0x4000)), Kyro::eHandleInUse);
    EXPECT_TRUE(refused.isNull());
    EXPECT_FALSE(doors->isDatabaseResident());
    EXPECT_FALSE(table->has(L"Doors"));
    KyDbObjectId looseId;
    EXPECT_EQ(db->addKyDbObject(looseId, doors, KyDbHandle(0x4000)), Kyro::eHandleInUse);
    delete doors;
}

TEST(EmptyDatabaseTest, TheFilesHandlesWinOverTheDatabasesOwn) {
    KyDbDatabase db(false);
    const KyDbObjectId layers = db.layerTableId();
    const KyDbObjectId root = db.namedObjectsDictionaryId();
    const std::uint64_t tableHandle = layers.handle();

    // A record that a file gave the layer table's handle moves the table aside.
    KyDbObjectPointer<KyDbLayerTable> table(layers, KyDb::kForWrite);
    auto* zero = new KyDbLayerTableRecord();
    zero->setName(L"0");
    KyDbObjectId zeroId;
    ASSERT_EQ(table->add(zeroId, zero, KyDbHandle(tableHandle)), Kyro::eOk);
    zero->close();
    table.close();
    EXPECT_EQ(zeroId.handle(), tableHandle);
    EXPECT_NE(layers.handle(), tableHandle);
    KyDbObjectId found;
    ASSERT_EQ(db.getKyDbObjectId(found, KyDbHandle(layers.handle())), Kyro::eOk);
    EXPECT_EQ(found, layers);

    // The root dictionary takes the handle the file gave it.
    ASSERT_EQ(db.setObjectHandle(root, KyDbHandle(0xC)), Kyro::eOk);
    EXPECT_EQ(root.handle(), 0xCu);
    EXPECT_EQ(db.setObjectHandle(root, KyDbHandle(0xD)), Kyro::eNotApplicable)
        << "a handle once given is the object's for good";
    EXPECT_EQ(db.setObjectHandle(zeroId, KyDbHandle(0x77)), Kyro::eNotApplicable);
    EXPECT_EQ(db.setObjectHandle(db.blockTableId(), zeroId.handle()), Kyro::eHandleInUse);
    EXPECT_EQ(db.setObjectHandle(db.blockTableId(), KyDbHandle()), Kyro::eNullHandle);
}

TEST(EmptyDatabaseTest, AnObjectOwnedByNoContainerTakesItsHandle) {
    KyDbDatabase db(false);
    auto* object = new KyDbUnknownObject();
    object->setTypeName(L"XRECORD");
    object->setData(L"{\"values\": [1, 2]}");
    KyDbObjectId id;
    ASSERT_EQ(db.addKyDbObject(id, object, KyDbHandle(0x2A)), Kyro::eOk);
    object->close();
    EXPECT_EQ(id.handle(), 0x2Au);
    EXPECT_TRUE(id.stub()->object->ownerId().isNull());
    EXPECT_EQ(db.addKyDbObject(id, object), Kyro::eAlreadyInDb);
}

}  // namespace
}  // namespace dbtest
