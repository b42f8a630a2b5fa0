// Drawing content that command tests start from: records, dictionary
// entries and entities of any kind, made in a line each under the document
// lock and not recorded for undo; and the entities a space holds, to see what
// a command drew.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "db/KyAxDocLock.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbUndoController.h"

namespace refhost {

class DrawingContent {
public:
    explicit DrawingContent(KyDbDatabase* database) : m_database(database) {}

    // A record named `name` of the table `tableId`, set up by `setup` first.
    template <typename Record, typename Setup>
    KyDbObjectId addRecord(KyDbObjectId tableId, const wchar_t* name, Setup setup) {
        const Unrecorded scope(m_database);
        KyDbObjectPointer<KyDbSymbolTable> table(tableId, KyDb::kForWrite);
        auto* record = new Record();
        record->setName(name);
        setup(*record);
        KyDbObjectId id;
        EXPECT_EQ(table->add(id, record), Kyro::eOk);
        record->close();
        return id;
    }
    template <typename Record>
    KyDbObjectId addRecord(KyDbObjectId tableId, const wchar_t* name) {
        return addRecord<Record>(tableId, name, [](Record&) {});
    }

    // An entry `key` of the dictionary `dictionaryId`.
    template <typename Object, typename Setup>
    KyDbObjectId addEntry(KyDbObjectId dictionaryId, const wchar_t* key, Setup setup) {
        const Unrecorded scope(m_database);
        KyDbObjectPointer<KyDbDictionary> dictionary(dictionaryId, KyDb::kForWrite);
        auto* object = new Object();
        setup(*object);
        KyDbObjectId id;
        EXPECT_EQ(dictionary->setAt(key, object, id), Kyro::eOk);
        object->close();
        return id;
    }

    // An entity of the block `blockId`, with the drawing's current
    // properties, set up by `setup` before it is appended.
    template <typename Entity, typename Setup>
    KyDbObjectId addEntityTo(KyDbObjectId blockId, Setup setup) {
        const Unrecorded scope(m_database);
        KyDbObjectPointer<KyDbBlockTableRecord> block(blockId, KyDb::kForWrite);
        auto* entity = new Entity();
        setup(*entity);
        KyDbObjectId id;
        EXPECT_EQ(block->appendKyDbEntity(id, entity), Kyro::eOk);
        entity->close();
        return id;
    }
    // The same in model space.
    template <typename Entity, typename Setup>
    KyDbObjectId addEntity(Setup setup) {
        return addEntityTo<Entity>(modelSpaceId(), setup);
    }
    template <typename Entity>
    KyDbObjectId addEntity() {
        return addEntity<Entity>([](Entity&) {});
    }

    KyDbObjectId modelSpaceId() const;
    KyDbObjectId paperSpaceId() const;
    // The entities of a block that are not erased, in drawing order.
    static std::vector<KyDbObjectId> entitiesOf(KyDbObjectId blockId);

private:
    // The document lock, with undo recording off, for the length of a scope.
    class Unrecorded {
    public:
        explicit Unrecorded(KyDbDatabase* database) : m_lock(database), m_database(database) {
            m_database->undoController()->setRecording(false);
        }
        ~Unrecorded() { m_database->undoController()->setRecording(true); }
        Unrecorded(const Unrecorded&) = delete;
        Unrecorded& operator=(const Unrecorded&) = delete;

    private:
        KyAxDocLock m_lock;
        KyDbDatabase* m_database;
    };

    KyDbDatabase* m_database;
};

}  // namespace refhost
