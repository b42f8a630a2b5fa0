// Opening objects: the rules of read, write and notify opens and the status of
// each refusal, upgrade and downgrade, open-or-reuse access, the document lock
// on writes, and the count of opens that every test is checked against.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "DbTestSupport.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbEntity.h"
#include "db/KyDbHostApplicationServices.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "support/OpenObjectCheck.h"

namespace dbtest {
namespace {

using OpenModeTest = DbTest;

TEST_F(OpenModeTest, ReadersShareAnObjectAndKeepWritersOut) {
    const KyDbObjectId id = addLayer(L"Walls");
    KyDbObject* first = nullptr;
    KyDbObject* second = nullptr;
    KyDbObject* writer = nullptr;
    ASSERT_EQ(kydbOpenObject(first, id, KyDb::kForRead), Kyro::eOk);
    ASSERT_EQ(kydbOpenObject(second, id, KyDb::kForRead), Kyro::eOk);
    EXPECT_EQ(first, second);
    EXPECT_EQ(kydbOpenObject(writer, id, KyDb::kForWrite), Kyro::eWasOpenedForRead);
    EXPECT_EQ(writer, nullptr);
    first->close();
    EXPECT_EQ(kydbOpenObject(writer, id, KyDb::kForWrite), Kyro::eWasOpenedForRead);
    second->close();
    EXPECT_EQ(kydbOpenObject(writer, id, KyDb::kForWrite), Kyro::eOk);
    writer->close();
}

TEST_F(OpenModeTest, OneWriterAtATimeWithNotifyOpensAlongside) {
    const KyDbObjectId id = addLayer(L"Walls");
    KyDbObject* writer = nullptr;
    ASSERT_EQ(kydbOpenObject(writer, id, KyDb::kForWrite), Kyro::eOk);
    KyDbObject* other = reinterpret_cast<KyDbObject*>(0x1);
    EXPECT_EQ(kydbOpenObject(other, id, KyDb::kForWrite), Kyro::eWasOpenedForWrite);
    EXPECT_EQ(other, nullptr) << "a failed open leaves the pointer null";
    EXPECT_EQ(kydbOpenObject(other, id, KyDb::kForRead), Kyro::eWasOpenedForWrite);
    KyDbObject* notifier = nullptr;
    ASSERT_EQ(kydbOpenObject(notifier, id, KyDb::kForNotify), Kyro::eOk);
    EXPECT_TRUE(notifier->isNotifyEnabled());
    notifier->close();
    writer->close();
}

TEST_F(OpenModeTest, CloseEndsTheMostRecentOpen) {
    const KyDbObjectId id = addLayer(L"Walls");
    KyDbObject* notifier = nullptr;
    KyDbObject* writer = nullptr;
    ASSERT_EQ(kydbOpenObject(notifier, id, KyDb::kForNotify), Kyro::eOk);
    ASSERT_EQ(kydbOpenObject(writer, id, KyDb::kForWrite), Kyro::eOk);
    KyDbObject* inner = nullptr;
    ASSERT_EQ(kydbOpenObject(inner, id, KyDb::kForNotify), Kyro::eOk);
    inner->close();
    EXPECT_TRUE(writer->isWriteEnabled()) << "closing the later notify open keeps the write-open";
    writer->close();
    EXPECT_FALSE(notifier->isWriteEnabled());
    EXPECT_TRUE(notifier->isNotifyEnabled());
    notifier->close();
    EXPECT_FALSE(notifier->isNotifyEnabled());
    EXPECT_EQ(notifier->close(), Kyro::eInvalidOpenState);
}

TEST_F(OpenModeTest, OpenRefusalsAnswerTheirStatus) {
    const KyDbObjectId id = addLayer(L"Walls");
    KyDbObject* object = nullptr;
    EXPECT_EQ(kydbOpenObject(object, KyDbObjectId(), KyDb::kForRead), Kyro::eNullObjectId);
    EXPECT_EQ(kydbOpenObject(object, id, static_cast<KyDb::OpenMode>(7)), Kyro::eInvalidInput);

    ASSERT_EQ(setErased(id, true), Kyro::eOk);
    EXPECT_EQ(kydbOpenObject(object, id, KyDb::kForRead), Kyro::eWasErased);
    EXPECT_EQ(kydbOpenObject(object, id, KyDb::kForWrite), Kyro::eWasErased);
    ASSERT_EQ(kydbOpenObject(object, id, KyDb::kForWrite, true), Kyro::eOk);
    EXPECT_TRUE(object->isErased());
    object->close();
}

TEST_F(OpenModeTest, AClassRestrictsTheOpenInEveryForm) {
    const KyDbObjectId id = addLayer(L"Walls");
    KyDbObject* object = nullptr;
    EXPECT_EQ(kydbOpenObject(object, id, KyDb::kForRead, false, KyDbDictionary::desc()),
              Kyro::eNotThatKindOfClass);
    EXPECT_EQ(kydbOpenObject(object, id, &KyDbLinetypeTableRecord::desc, KyDb::kForRead),
              Kyro::eNotThatKindOfClass);
    KyDbEntity* entity = nullptr;
    EXPECT_EQ(kydbOpenObject(entity, id, KyDb::kForRead), Kyro::eNotThatKindOfClass);
    KyDbSymbolTableRecord* record = nullptr;
    ASSERT_EQ(kydbOpenObject(record, id, KyDb::kForRead), Kyro::eOk);
    EXPECT_EQ(record->name(), KyString(L"Walls"));
    record->close();
    ASSERT_EQ(kydbOpenObject(object, id, &KyDbLayerTableRecord::desc, KyDb::kForRead), Kyro::eOk);
    object->close();
}

TEST_F(OpenModeTest, UpgradeNeedsTheOnlyReaderAndDowngradeEndsTheWrite) {
    const KyDbObjectId id = addLayer(L"Walls");
    KyDbLayerTableRecord* layer = nullptr;
    KyDbObject* other = nullptr;
    ASSERT_EQ(kydbOpenObject(layer, id, KyDb::kForRead), Kyro::eOk);
    ASSERT_EQ(kydbOpenObject(other, id, KyDb::kForRead), Kyro::eOk);
    EXPECT_EQ(layer->upgradeOpen(), Kyro::eWasOpenedForRead);
    EXPECT_EQ(layer->downgradeOpen(), Kyro::eWasNotOpenForWrite);
    other->close();
    ASSERT_EQ(layer->upgradeOpen(), Kyro::eOk);
    EXPECT_TRUE(layer->isWriteEnabled());

    ObjectSpy spy(log);
    layer->addReactor(&spy);
    layer->setIsOff(true);
    ASSERT_EQ(layer->downgradeOpen(), Kyro::eOk);
    EXPECT_EQ(log.lines(),
              (Lines{"openedForModify Walls", "modified Walls", "objectClosed Walls"}));
    EXPECT_TRUE(layer->isReadEnabled());
    EXPECT_FALSE(layer->isWriteEnabled());
    EXPECT_EQ(layer->setIsOff(false), Kyro::eWasNotOpenForWrite);
    layer->removeReactor(&spy);
    layer->close();
    EXPECT_EQ(layer->upgradeOpen(), Kyro::eInvalidOpenState) << "not open for read any more";
}

TEST_F(OpenModeTest, AccessForReadReusesAnObjectOpenAlready) {
    const KyDbObjectId id = addLayer(L"Walls");
    KyDbObject* writer = nullptr;
    ASSERT_EQ(kydbOpenObject(writer, id, KyDb::kForWrite), Kyro::eOk);
    const long long opens = kydbOpenObjectCount();
    KyDbObject* reader = nullptr;
    bool openedHere = true;
    ASSERT_EQ(accessKyDbObjectForRead(reader, id, &KyDbLayerTableRecord::desc, openedHere),
              Kyro::eOk);
    EXPECT_EQ(reader, writer);
    EXPECT_FALSE(openedHere);
    EXPECT_EQ(kydbOpenObjectCount(), opens);
    EXPECT_EQ(accessKyDbObjectForRead(reader, id, &KyDbDictionary::desc, openedHere),
              Kyro::eNotThatKindOfClass);
    writer->close();

    ASSERT_EQ(accessKyDbObjectForRead(reader, id, nullptr, openedHere), Kyro::eOk);
    EXPECT_TRUE(openedHere);
    EXPECT_TRUE(reader->isReadEnabled());
    reader->close();
}

TEST_F(OpenModeTest, AccessForWriteAndItsRevertPutTheObjectBackAsItWas) {
    const KyDbObjectId id = addLayer(L"Walls");
    KyDbObject* object = nullptr;
    KyDbWriteAccess access;

    // Closed: opened here, closed by the revert.
    Kyro::ErrorStatus status = accessKyDbObjectForWrite(object, id, nullptr, access);
    ASSERT_EQ(status, Kyro::eOk);
    EXPECT_TRUE(access.openedHere);
    EXPECT_EQ(revertKyDbObjectFromWrite(object, status, access), Kyro::eOk);
    EXPECT_FALSE(object->isReadEnabled());

    // Open for read once: upgraded, then downgraded to read again.
    KyDbObject* reader = nullptr;
    ASSERT_EQ(kydbOpenObject(reader, id, KyDb::kForRead), Kyro::eOk);
    status = accessKyDbObjectForWrite(object, id, nullptr, access);
    ASSERT_EQ(status, Kyro::eOk);
    EXPECT_TRUE(access.upgraded);
    EXPECT_TRUE(object->isWriteEnabled());
    EXPECT_EQ(revertKyDbObjectFromWrite(object, status, access), Kyro::eOk);
    EXPECT_TRUE(reader->isReadEnabled());
    EXPECT_FALSE(reader->isWriteEnabled());

    // Open for read twice: the access fails, and reverting it does nothing.
    KyDbObject* second = nullptr;
    ASSERT_EQ(kydbOpenObject(second, id, KyDb::kForRead), Kyro::eOk);
    status = accessKyDbObjectForWrite(object, id, nullptr, access);
    EXPECT_EQ(status, Kyro::eWasOpenedForRead);
    EXPECT_EQ(revertKyDbObjectFromWrite(object, status, access), Kyro::eOk);
    second->close();
    reader->close();
}

TEST_F(OpenModeTest, ReactorsGoOnOpenObjectsOnly) {
    const KyDbObjectId id = addLayer(L"Walls");
    ObjectSpy spy(log);
    KyDbObject* object = nullptr;
    ASSERT_EQ(kydbOpenObject(object, id, KyDb::kForNotify), Kyro::eOk);
    object->close();
    EXPECT_EQ(object->addReactor(&spy), Kyro::eInvalidOpenState);
    EXPECT_EQ(object->removeReactor(&spy), Kyro::eInvalidOpenState);
    ASSERT_EQ(kydbOpenObject(object, id, KyDb::kForNotify), Kyro::eOk);
    EXPECT_EQ(object->addReactor(&spy), Kyro::eOk);
    EXPECT_EQ(object->addReactor(&spy), Kyro::eOk);
    EXPECT_EQ(object->reactors()->length(), 1) << "a reactor stands once on an object";
    EXPECT_EQ(object->removeReactor(&spy), Kyro::eOk);
    EXPECT_EQ(object->removeReactor(&spy), Kyro::eInvalidInput);
    object->close();
}

TEST_F(OpenModeTest, ANewObjectIsWritableWithoutAnOpen) {
    KyDbLayerTableRecord layer;
    EXPECT_TRUE(layer.isWriteEnabled());
    EXPECT_EQ(layer.setName(L"Draft"), Kyro::eOk);
    EXPECT_EQ(layer.setIsLocked(true), Kyro::eOk);
    EXPECT_EQ(layer.close(), Kyro::eOk);
    EXPECT_TRUE(layer.objectId().isNull());
    EXPECT_EQ(layer.erase(), Kyro::eNotInDatabase);
}

TEST_F(OpenModeTest, TheOpenCountFollowsOpensAndCloses) {
    const KyDbObjectId id = addLayer(L"Walls");
    const long long before = kydbOpenObjectCount();
    KyDbObject* reader = nullptr;
    KyDbObject* notifier = nullptr;
    kydbOpenObject(reader, id, KyDb::kForRead);
    kydbOpenObject(notifier, id, KyDb::kForNotify);
    EXPECT_EQ(kydbOpenObjectCount(), before + 2);
    notifier->close();
    reader->close();
    EXPECT_EQ(kydbOpenObjectCount(), before);
}

TEST_F(OpenModeTest, TheCheckFailsATestThatLeavesAnObjectOpen) {
    KyTestOpenObjectCheck check;
    check.start();
    KyDbObject* object = nullptr;
    ASSERT_EQ(kydbOpenObject(object, addLayer(L"Walls"), KyDb::kForRead), Kyro::eOk);
    EXPECT_NONFATAL_FAILURE(check.finish("Forgetful"), "Forgetful left 1 database object open");
    object->close();
    check.finish("Careful");
}

// ---- The document lock

class DocumentLockTest : public DbTest {
protected:
    DocumentLockTest() { db->setLockRequired(true); }
};

TEST_F(DocumentLockTest, WritesOutsideALockAreRefused) {
    const KyDbObjectId zero = layerId(L"0");
    KyDbObject* object = nullptr;
    EXPECT_EQ(kydbOpenObject(object, zero, KyDb::kForWrite), Kyro::eLockViolation);
    ASSERT_EQ(kydbOpenObject(object, zero, KyDb::kForRead), Kyro::eOk);
    EXPECT_EQ(object->upgradeOpen(), Kyro::eLockViolation);
    object->close();
    EXPECT_EQ(db->setCelweight(KyDb::kLnWt025), Kyro::eLockViolation);
    KyDbObjectId id;
    auto* loose = new KyDbDictionary();
    EXPECT_EQ(db->addKyDbObject(id, loose), Kyro::eLockViolation);
    delete loose;
}

TEST_F(DocumentLockTest, ALockScopeLetsWritesThroughUntilItEnds) {
    const KyDbObjectId zero = layerId(L"0");
    {
        KyAxDocLock lock(db);
        ASSERT_EQ(lock.lockStatus(), Kyro::eOk);
        EXPECT_TRUE(db->isWriteLocked());
        KyDbObjectPointer<KyDbLayerTableRecord> layer(zero, KyDb::kForWrite);
        EXPECT_EQ(layer.openStatus(), Kyro::eOk);
        EXPECT_EQ(db->setCelweight(KyDb::kLnWt025), Kyro::eOk);
    }
    EXPECT_FALSE(db->isWriteLocked());
    KyDbObjectPointer<KyDbLayerTableRecord> layer(zero, KyDb::kForWrite);
    EXPECT_EQ(layer.openStatus(), Kyro::eLockViolation);
    EXPECT_EQ(undo()->undo(), Kyro::eLockViolation);
}

TEST_F(DocumentLockTest, TheWorkingDatabaseIsLockedByDefault) {
    KyDbHostApplicationServices* services = kydbHostApplicationServices();
    {
        KyAxDocLock lock;
        EXPECT_EQ(lock.lockStatus(), Kyro::eNoCurrentDocument);
    }
    services->setWorkingDatabase(db);
    KyAxDocLock lock;
    EXPECT_EQ(lock.lockStatus(), Kyro::eOk);
    EXPECT_EQ(lock.database(), db);
    services->setWorkingDatabase(nullptr);
}

class RefusingHost : public KyDbHostApplicationServices {
public:
    Kyro::ErrorStatus lockDocument(KyDbDatabase*) override { return Kyro::eLockViolation; }
};

TEST_F(DocumentLockTest, AHostCanRefuseTheLock) {
    RefusingHost host;
    kydbSetHostApplicationServices(&host);
    {
        KyAxDocLock lock(db);
        EXPECT_EQ(lock.lockStatus(), Kyro::eLockViolation);
        EXPECT_FALSE(db->isWriteLocked());
    }
    kydbSetHostApplicationServices(nullptr);
}

TEST(DocumentLockLifetimeTest, ALockThatOutlivesItsDatabaseEndsSafely) {
    auto* db = new KyDbDatabase();
    auto* lock = new KyAxDocLock(db);
    EXPECT_EQ(lock->lockStatus(), Kyro::eOk);
    delete db;
    delete lock;
}

TEST(DatabaseWithoutLockTest, ADatabaseMadeInATestNeedsNoLock) {
    KyDbDatabase db;
    EXPECT_FALSE(db.isLockRequired());
    EXPECT_EQ(db.setCelweight(KyDb::kLnWt050), Kyro::eOk);
}

}  // namespace
}  // namespace dbtest
