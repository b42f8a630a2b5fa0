// Notifications at the real moments, in order, to object and database
// reactors; reactors that add or remove reactors while they are called;
// persistent reactors; a changed attribute told to its block reference;
// goodbye when the database is deleted.
#include <gtest/gtest.h>

#include "DbTestSupport.h"
#include "db/KyDbAttribute.h"
#include "db/KyDbBlockReference.h"
#include "db/KyDbSubEntityProvider.h"
#include "db/KyDbUnknownObject.h"

namespace dbtest {
namespace {

class NotificationTest : public DbTest {
protected:
    NotificationTest() : walls(addLayer(L"Walls")), objectSpy(log), databaseSpy(log) {
        db->addReactor(&databaseSpy);
        watch(walls, &objectSpy);
    }
    // The spies go before the database: they come off what they watch.
    ~NotificationTest() override {
        db->removeReactor(&databaseSpy);
        unwatch(walls, &objectSpy);
    }

    // Puts `reactor` on the object of `id` through a notify open.
    static void watch(KyDbObjectId id, KyDbObjectReactor* reactor) {
        KyDbObjectPointer<KyDbObject> object(id, KyDb::kForNotify, true);
        object->addReactor(reactor);
    }
    static void unwatch(KyDbObjectId id, KyDbObjectReactor* reactor) {
        KyDbObjectPointer<KyDbObject> object(id, KyDb::kForNotify, true);
        object->removeReactor(reactor);
    }

    KyDbObjectId walls;
    ObjectSpy objectSpy;
    DatabaseSpy databaseSpy;
};

TEST_F(NotificationTest, AChangeIsAnnouncedAtOnceAndReportedAtTheClose) {
    KyDbLayerTableRecord* layer = nullptr;
    ASSERT_EQ(kydbOpenObject(layer, walls, KyDb::kForWrite), Kyro::eOk);
    EXPECT_TRUE(log.lines().empty()) << "opening for write is no change";
    layer->setIsOff(true);
    layer->setIsLocked(true);
    EXPECT_EQ(log.lines(), (Lines{"openedForModify Walls", "db.objectOpenedForModify Walls"}))
        << "only the first change of an open is announced";
    layer->close();
    EXPECT_EQ(log.lines(),
              (Lines{"openedForModify Walls", "db.objectOpenedForModify Walls", "modified Walls",
                     "db.objectModified Walls", "objectClosed Walls"}));
}

TEST_F(NotificationTest, AnEqualWriteOrAReadTellsNothing) {
    {
        KyDbObjectPointer<KyDbLayerTableRecord> layer(walls, KyDb::kForWrite);
        EXPECT_EQ(layer->setIsOff(false), Kyro::eOk);
        EXPECT_EQ(layer->setName(L"Walls"), Kyro::eOk);
        EXPECT_FALSE(layer->isModified());
    }
    { KyDbObjectPointer<KyDbLayerTableRecord> layer(walls, KyDb::kForRead); }
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(NotificationTest, AnAppendIsToldToTheDatabaseAndTheTableHearsOfItAtItsClose) {
    ObjectSpy tableSpy(log);
    watch(db->layerTableId(), &tableSpy);
    KyDbObjectPointer<KyDbLayerTable> table(db->layerTableId(), KyDb::kForWrite);
    auto* doors = new KyDbLayerTableRecord();
    doors->setName(L"Doors");
    ASSERT_EQ(table->add(doors), Kyro::eOk);
    EXPECT_TRUE(doors->isWriteEnabled()) << "a new record is open for write after the add";
    doors->close();
    EXPECT_EQ(log.lines(),
              (Lines{"openedForModify KyDbLayerTable", "db.objectOpenedForModify KyDbLayerTable",
                     "db.objectAppended Doors"}))
        << "the first close of a new record tells nothing more";
    log.clear();
    table.close();
    EXPECT_EQ(log.lines(), (Lines{"modified KyDbLayerTable", "db.objectModified KyDbLayerTable",
                                  "objectClosed KyDbLayerTable"}));
    unwatch(db->layerTableId(), &tableSpy);
}

TEST_F(NotificationTest, AnEraseIsToldAtOnceAndCountsAsAChange) {
    KyDbObjectPointer<KyDbLayerTableRecord> layer(walls, KyDb::kForWrite);
    ASSERT_EQ(layer->erase(), Kyro::eOk);
    EXPECT_EQ(log.lines(), (Lines{"openedForModify Walls", "db.objectOpenedForModify Walls",
                                  "erased(true) Walls", "db.objectErased(true) Walls"}));
    log.clear();
    ASSERT_EQ(layer->erase(false), Kyro::eOk);
    EXPECT_EQ(log.lines(), (Lines{"erased(false) Walls", "db.objectErased(false) Walls"}));
    log.clear();
    layer.close();
    EXPECT_EQ(log.lines(),
              (Lines{"modified Walls", "db.objectModified Walls", "objectClosed Walls"}));
}

TEST_F(NotificationTest, HeaderWritesAreToldBeforeAndAfter) {
    const KyDbObjectId zero = layerId(L"0");
    ASSERT_EQ(db->setClayer(walls), Kyro::eOk);
    EXPECT_EQ(db->setClayer(walls), Kyro::eOk);
    EXPECT_EQ(db->setClayer(db->layerTableId()), Kyro::eNotThatKindOfClass);
    EXPECT_EQ(log.lines(),
              (Lines{"db.headerSysVarWillChange CLAYER", "db.headerSysVarChanged CLAYER ok"}))
        << "an equal value and a refused value tell nothing";
    EXPECT_EQ(db->clayer(), walls);
    db->setClayer(zero);
}

// Takes itself off the object the first time it hears `modified`.
class SelfRemover : public KyDbObjectReactor {
public:
    explicit SelfRemover(Log& log) : m_log(log) {}
    void modified(const KyDbObject* object) override {
        m_log.add("remover modified");
        const_cast<KyDbObject*>(object)->removeReactor(this);
    }
    void objectClosed(KyDbObjectId) override { m_log.add("remover objectClosed"); }

private:
    Log& m_log;
};

// On `modified`, takes `victim` off the object and puts `newcomer` on it.
class Meddler : public KyDbObjectReactor {
public:
    Meddler(Log& log, KyDbObjectReactor* victim, KyDbObjectReactor* newcomer)
        : m_log(log), m_victim(victim), m_newcomer(newcomer) {}
    void modified(const KyDbObject* object) override {
        m_log.add("meddler modified");
        auto* changing = const_cast<KyDbObject*>(object);
        changing->removeReactor(m_victim);
        changing->addReactor(m_newcomer);
    }

private:
    Log& m_log;
    KyDbObjectReactor* m_victim;
    KyDbObjectReactor* m_newcomer;
};

TEST_F(NotificationTest, AReactorMayTakeItselfOffWhileCalled) {
    unwatch(walls, &objectSpy);
    SelfRemover remover(log);
    watch(walls, &remover);
    watch(walls, &objectSpy);
    db->removeReactor(&databaseSpy);
    for (int round = 0; round < 2; ++round) {
        KyDbObjectPointer<KyDbLayerTableRecord> layer(walls, KyDb::kForWrite);
        layer->setIsOff(round == 0);
    }
    EXPECT_EQ(log.lines(), (Lines{"openedForModify Walls", "remover modified", "modified Walls",
                                  "objectClosed Walls", "openedForModify Walls", "modified Walls",
                                  "objectClosed Walls"}));
}

TEST_F(NotificationTest, AReactorTakenOffOrPutOnDuringAWalkIsNotCalledInIt) {
    unwatch(walls, &objectSpy);
    ObjectSpy victim(log, "victim ");
    ObjectSpy newcomer(log, "newcomer ");
    Meddler meddler(log, &victim, &newcomer);
    watch(walls, &meddler);
    watch(walls, &victim);
    db->removeReactor(&databaseSpy);
    {
        KyDbObjectPointer<KyDbLayerTableRecord> layer(walls, KyDb::kForWrite);
        layer->setIsOff(true);
        log.clear();
    }
    EXPECT_EQ(log.lines(), (Lines{"meddler modified", "newcomer objectClosed Walls"}));
    unwatch(walls, &meddler);
    unwatch(walls, &newcomer);
}

// A database reactor that takes another database reactor off, and itself.
class DatabaseMeddler : public KyDbDatabaseReactor {
public:
    DatabaseMeddler(Log& log, KyDbDatabaseReactor* victim) : m_log(log), m_victim(victim) {}
    void objectModified(const KyDbDatabase* database, const KyDbObject*) override {
        m_log.add("database meddler objectModified");
        auto* changing = const_cast<KyDbDatabase*>(database);
        changing->removeReactor(m_victim);
        changing->removeReactor(this);
    }

private:
    Log& m_log;
    KyDbDatabaseReactor* m_victim;
};

TEST_F(NotificationTest, DatabaseReactorsMayTakeReactorsOffWhileCalled) {
    unwatch(walls, &objectSpy);
    db->removeReactor(&databaseSpy);
    DatabaseMeddler meddler(log, &databaseSpy);
    db->addReactor(&meddler);
    db->addReactor(&databaseSpy);
    {
        KyDbObjectPointer<KyDbLayerTableRecord> layer(walls, KyDb::kForWrite);
        layer->setIsOff(true);
    }
    EXPECT_EQ(log.lines(),
              (Lines{"db.objectOpenedForModify Walls", "database meddler objectModified"}));
    EXPECT_EQ(db->removeReactor(&meddler), Kyro::eInvalidInput);
}

// An object of the database that watches other objects as a persistent reactor.
class Watcher : public KyDbUnknownObject {
public:
    static Log* log;
    void modified(const KyDbObject* object) override {
        log->add("watcher modified " + labelOf(object));
    }
    void objectClosed(KyDbObjectId id) override { log->add("watcher objectClosed " + labelOf(id)); }
    void erased(const KyDbObject* object, bool erasing) override {
        log->add(std::string("watcher erased ") + (erasing ? "true " : "false ") + labelOf(object));
    }
};
Log* Watcher::log = nullptr;

TEST_F(NotificationTest, PersistentReactorsAreObjectsOpenedForTheCall) {
    Watcher::log = &log;
    KyDbObjectId watcherId;
    auto* watcher = new Watcher();
    ASSERT_EQ(db->addKyDbObject(watcherId, watcher), Kyro::eOk);
    watcher->close();
    {
        KyDbObjectPointer<KyDbLayerTableRecord> layer(walls, KyDb::kForWrite);
        ASSERT_EQ(layer->addPersistentReactor(watcherId), Kyro::eOk);
        EXPECT_TRUE(layer->hasPersistentReactor(watcherId));
        const KyDbReactorList* entries = layer->reactors();
        ASSERT_EQ(entries->length(), 2);
        EXPECT_TRUE(kydbPersistentReactorObjectId((*entries)[0]).isNull()) << "the spy";
        EXPECT_EQ(kydbPersistentReactorObjectId((*entries)[1]), watcherId);
    }
    db->removeReactor(&databaseSpy);
    log.clear();
    const long long opens = kydbOpenObjectCount();
    setErased(walls, true);
    EXPECT_EQ(log.lines(),
              (Lines{"openedForModify Walls", "erased(true) Walls", "watcher erased true Walls",
                     "modified Walls", "watcher modified Walls", "objectClosed Walls",
                     "watcher objectClosed Walls"}));
    EXPECT_EQ(kydbOpenObjectCount(), opens) << "the watcher was closed after each call";
}

TEST_F(NotificationTest, AnErasedPersistentReactorHearsNothing) {
    Watcher::log = &log;
    KyDbObjectId watcherId;
    auto* watcher = new Watcher();
    db->addKyDbObject(watcherId, watcher);
    watcher->close();
    {
        KyDbObjectPointer<KyDbLayerTableRecord> layer(walls, KyDb::kForWrite);
        layer->addPersistentReactor(watcherId);
    }
    setErased(watcherId, true);
    unwatch(walls, &objectSpy);
    db->removeReactor(&databaseSpy);
    log.clear();
    KyDbObjectPointer<KyDbLayerTableRecord> layer(walls, KyDb::kForWrite);
    layer->setIsOff(true);
    layer.close();
    EXPECT_TRUE(log.lines().empty());
}

// A block reference with an attribute, both watched by one spy, and the
// database watched too: the reference hears of its attribute's changes.
class AttributeNotificationTest : public DbTest {
protected:
    AttributeNotificationTest() : objectSpy(log), databaseSpy(log) {
        reference = addEntity(new KyDbBlockReference());
        {
            KyDbObjectPointer<KyDbBlockReference> ref(reference, KyDb::kForWrite);
            auto* tag = new KyDbAttribute(L"NUMBER", L"D01");
            ref->appendAttribute(attribute, tag);
            tag->close();
        }
        watch(reference, &objectSpy);
        watch(attribute, &objectSpy);
        db->addReactor(&databaseSpy);
    }
    ~AttributeNotificationTest() override { db->removeReactor(&databaseSpy); }

    // What the attribute's own close tells, after a first change.
    static Lines attributeChanged() {
        return {"openedForModify KyDbAttribute", "db.objectOpenedForModify KyDbAttribute",
                "modified KyDbAttribute", "db.objectModified KyDbAttribute",
                "objectClosed KyDbAttribute"};
    }
    static Lines referenceClosed() {
        return {"modified KyDbBlockReference", "db.objectModified KyDbBlockReference",
                "objectClosed KyDbBlockReference"};
    }
    static Lines joined(Lines first, const Lines& second) {
        first.insert(first.end(), second.begin(), second.end());
        return first;
    }

    KyDbObjectId reference;
    KyDbObjectId attribute;
    ObjectSpy objectSpy;
    DatabaseSpy databaseSpy;
};

TEST_F(AttributeNotificationTest, AnAttributeEditedAsAPartTellsItsReferenceRightAfterItsClose) {
    KyDbObjectPointer<KyDbBlockReference> ref(reference, KyDb::kForRead);
    KyRxObject* part = nullptr;
    ASSERT_EQ(KyDbSubEntityProvider::open(
                  ref.object(), part, KyDbSubentId(KyDb::kAttributeSubentType, 0), KyDb::kForWrite),
              Kyro::eOk);
    kyrxCast<KyDbAttribute>(part)->setTextString(L"D02");
    kyrxCast<KyDbAttribute>(part)->setHeight(250.0);
    EXPECT_EQ(log.lines(),
              (Lines{"openedForModify KyDbAttribute", "db.objectOpenedForModify KyDbAttribute"}))
        << "the reference hears nothing while the attribute is open";
    KyDbSubEntityProvider::close(ref.object(), part);
    EXPECT_EQ(log.lines(), joined(attributeChanged(), referenceClosed()));
    log.clear();
    ref.close();
    EXPECT_TRUE(log.lines().empty()) << "the reader of the reference changed nothing";
}

TEST_F(AttributeNotificationTest, AReferenceOpenForWriteCountsAsChangedAndTellsAtItsClose) {
    KyDbObjectPointer<KyDbBlockReference> ref(reference, KyDb::kForWrite);
    {
        KyDbObjectPointer<KyDbAttribute> tag(attribute, KyDb::kForWrite);
        tag->setTextString(L"D02");
    }
    EXPECT_EQ(log.lines(),
              joined(attributeChanged(), {"openedForModify KyDbBlockReference",
                                          "db.objectOpenedForModify KyDbBlockReference"}));
    EXPECT_TRUE(ref->isModified());
    log.clear();
    ref.close();
    EXPECT_EQ(log.lines(), referenceClosed());
}

TEST_F(AttributeNotificationTest, AnAttributeLeftUnchangedTellsItsReferenceNothing) {
    { KyDbObjectPointer<KyDbAttribute> tag(attribute, KyDb::kForRead); }
    {
        KyDbObjectPointer<KyDbAttribute> tag(attribute, KyDb::kForWrite);
        EXPECT_EQ(tag->setTextString(L"D01"), Kyro::eOk);
    }
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(AttributeNotificationTest, AnErasedAttributeAndAnUndoneEditAreToldToTheReference) {
    ASSERT_EQ(setErased(attribute, true), Kyro::eOk);
    EXPECT_EQ(log.lines(),
              joined({"openedForModify KyDbAttribute", "db.objectOpenedForModify KyDbAttribute",
                      "erased(true) KyDbAttribute", "db.objectErased(true) KyDbAttribute",
                      "modified KyDbAttribute", "db.objectModified KyDbAttribute",
                      "objectClosed KyDbAttribute"},
                     referenceClosed()));
    log.clear();
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_EQ(log.lines(), joined({"erased(false) KyDbAttribute",
                                   "db.objectErased(false) KyDbAttribute", "modified KyDbAttribute",
                                   "db.objectModified KyDbAttribute", "objectClosed KyDbAttribute"},
                                  referenceClosed()));
    EXPECT_FALSE(attribute.isErased());
}

TEST(DatabaseGoodbyeTest, DeletingADatabaseSaysGoodbyeWhileEverythingIsThere) {
    Log log;
    auto* db = new KyDbDatabase();
    DatabaseSpy databaseSpy(log);
    db->addReactor(&databaseSpy);
    const KyDbObjectId zero = [db] {
        KyDbObjectPointer<KyDbLayerTable> table(db->layerTableId(), KyDb::kForRead);
        KyDbObjectId id;
        table->getAt(L"0", id);
        return id;
    }();
    ObjectSpy layerSpy(log);
    ObjectSpy tableSpy(log);
    // A reactor that, hearing goodbye, takes itself off the departing object
    // and looks at another object, which must still be there.
    class Departure : public KyDbObjectReactor {
    public:
        Departure(Log& log, KyDbObjectId other) : m_log(log), m_other(other) {}
        void goodbye(const KyDbObject* object) override {
            EXPECT_EQ(const_cast<KyDbObject*>(object)->removeReactor(this), Kyro::eOk);
            KyDbObject* again = nullptr;
            EXPECT_EQ(kydbOpenObject(again, object->objectId(), KyDb::kForNotify),
                      Kyro::eObjectToBeDeleted);
            KyDbObjectPointer<KyDbObject> other(m_other, KyDb::kForNotify);
            m_log.add(std::string("departure sees ") +
                      (other ? labelOf(other.object()) : "nothing"));
        }

    private:
        Log& m_log;
        KyDbObjectId m_other;
    } departure(log, zero);
    {
        KyDbObjectPointer<KyDbObject> table(db->layerTableId(), KyDb::kForNotify);
        table->addReactor(&tableSpy);
        table->addReactor(&departure);
        KyDbObjectPointer<KyDbObject> layer(zero, KyDb::kForNotify);
        layer->addReactor(&layerSpy);
    }
    const KyDbObjectId tableId = db->layerTableId();
    delete db;
    EXPECT_EQ(log.lines(),
              (Lines{"db.goodbye", "goodbye KyDbLayerTable", "departure sees 0", "goodbye 0"}));
    EXPECT_FALSE(zero.isValid());
    EXPECT_FALSE(tableId.isValid());
    EXPECT_EQ(zero.database(), nullptr);
}

}  // namespace
}  // namespace dbtest
