// Support for the database tests: spy reactors that log every notification
// with its arguments into one shared log, so a test asserts the whole
// sequence after the act; and a fixture with a new drawing and helpers that
// add records in a line.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "db/KyDbDatabase.h"
#include "db/KyDbDatabaseReactor.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbEntity.h"
#include "db/KyDbLayerTable.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbObjectReactor.h"
#include "db/KyDbOpenObject.h"
#include "db/KyDbUndoController.h"

namespace dbtest {

using Lines = std::vector<std::string>;

// A readable name for an object: the name of a record, the class otherwise.
std::string labelOf(const KyDbObject* object);
// The same for an id, read without disturbing anything (also when erased).
std::string labelOf(KyDbObjectId id);

class Log {
public:
    void add(std::string line) { m_lines.push_back(std::move(line)); }
    const Lines& lines() const { return m_lines; }
    void clear() { m_lines.clear(); }

private:
    Lines m_lines;
};

// Logs each object notification as "event label[ args]".
class ObjectSpy : public KyDbObjectReactor {
public:
    explicit ObjectSpy(Log& log, std::string prefix = "")
        : m_log(log), m_prefix(std::move(prefix)) {}

    void cancelled(const KyDbObject* object) override { add("cancelled", object); }
    void copied(const KyDbObject* object, const KyDbObject*) override { add("copied", object); }
    void erased(const KyDbObject* object, bool erasing) override {
        add(erasing ? "erased(true)" : "erased(false)", object);
    }
    void goodbye(const KyDbObject* object) override { add("goodbye", object); }
    void openedForModify(const KyDbObject* object) override { add("openedForModify", object); }
    void modified(const KyDbObject* object) override { add("modified", object); }
    void modifyUndone(const KyDbObject* object) override { add("modifyUndone", object); }
    void modifiedXData(const KyDbObject* object) override { add("modifiedXData", object); }
    void unappended(const KyDbObject* object) override { add("unappended", object); }
    void reappended(const KyDbObject* object) override { add("reappended", object); }
    void objectClosed(KyDbObjectId id) override {
        m_log.add(m_prefix + "objectClosed " + labelOf(id));
    }

private:
    void add(const char* event, const KyDbObject* object) {
        m_log.add(m_prefix + event + " " + labelOf(object));
    }

    Log& m_log;
    std::string m_prefix;
};

// Logs each database notification as "db.event label[ args]".
class DatabaseSpy : public KyDbDatabaseReactor {
public:
    explicit DatabaseSpy(Log& log) : m_log(log) {}

    void objectAppended(const KyDbDatabase*, const KyDbObject* object) override {
        add("db.objectAppended", object);
    }
    void objectUnAppended(const KyDbDatabase*, const KyDbObject* object) override {
        add("db.objectUnAppended", object);
    }
    void objectReAppended(const KyDbDatabase*, const KyDbObject* object) override {
        add("db.objectReAppended", object);
    }
    void objectOpenedForModify(const KyDbDatabase*, const KyDbObject* object) override {
        add("db.objectOpenedForModify", object);
    }
    void objectModified(const KyDbDatabase*, const KyDbObject* object) override {
        add("db.objectModified", object);
    }
    void objectErased(const KyDbDatabase*, const KyDbObject* object, bool erased) override {
        add(erased ? "db.objectErased(true)" : "db.objectErased(false)", object);
    }
    void headerSysVarWillChange(const KyDbDatabase*, const wchar_t* name) override;
    void headerSysVarChanged(const KyDbDatabase*, const wchar_t* name, bool success) override;
    void goodbye(const KyDbDatabase*) override { m_log.add("db.goodbye"); }

private:
    void add(const char* event, const KyDbObject* object) {
        m_log.add(std::string(event) + " " + labelOf(object));
    }

    Log& m_log;
};

// A test with a new drawing, deleted at the end.
class DbTest : public ::testing::Test {
protected:
    DbTest();
    ~DbTest() override;

    // Adds a layer (closed again); answers its id, null on failure.
    KyDbObjectId addLayer(const wchar_t* name);
    // The id of a record of a table by name (also erased ones).
    KyDbObjectId layerId(const wchar_t* name) const;
    // The names of the table's records in table order, as the iterator gives them.
    Lines layerNames(bool skipDeleted = true) const;
    // Erases or unerases an object in one open; answers the status.
    Kyro::ErrorStatus setErased(KyDbObjectId id, bool erasing);
    // Renames a layer in one open.
    Kyro::ErrorStatus renameLayer(KyDbObjectId id, const wchar_t* name);
    // The id of a block by name.
    KyDbObjectId blockId(const wchar_t* name) const;
    // Appends `entity` (new) to a block and closes it; its id, null on failure.
    KyDbObjectId addEntity(KyDbEntity* entity, const wchar_t* blockName = L"*Model_Space");
    // Logs the notifications of the object `id` into `log` through `spy`
    // until unwatch; the fixture takes the spy off at its end.
    void watch(KyDbObjectId id, KyDbObjectReactor* spy);
    void unwatch(KyDbObjectId id, KyDbObjectReactor* spy);
    KyDbUndoController* undo() const { return db->undoController(); }

    KyDbDatabase* db;
    Log log;

private:
    std::vector<std::pair<KyDbObjectId, KyDbObjectReactor*>> m_watched;
};

}  // namespace dbtest
