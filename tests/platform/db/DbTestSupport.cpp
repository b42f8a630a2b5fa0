#include "DbTestSupport.h"

#include <memory>

#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbSymbolTableIterator.h"
#include "rx/KyRxClass.h"

namespace dbtest {

std::string labelOf(const KyDbObject* object) {
    if (object == nullptr) {
        return "null";
    }
    if (const auto* record = kyrxCast<KyDbSymbolTableRecord>(object)) {
        return record->name().utf8();
    }
    return KyString(object->isA()->name()).utf8();
}

std::string labelOf(KyDbObjectId id) {
    if (!id.isValid()) {
        return "gone";
    }
    // Read straight from the stub, so that logging opens nothing.
    return labelOf(id.stub()->object);
}

void DatabaseSpy::headerSysVarWillChange(const KyDbDatabase*, const wchar_t* name) {
    m_log.add("db.headerSysVarWillChange " + KyString(name).utf8());
}

void DatabaseSpy::headerSysVarChanged(const KyDbDatabase*, const wchar_t* name, bool success) {
    m_log.add("db.headerSysVarChanged " + KyString(name).utf8() + (success ? " ok" : " failed"));
}

DbTest::DbTest() : db(new KyDbDatabase()) {}

DbTest::~DbTest() {
    for (const auto& [id, spy] : m_watched) {
        KyDbObjectPointer<KyDbObject> object(id, KyDb::kForNotify, true);
        if (object) {
            object->removeReactor(spy);
        }
    }
    delete db;
}

KyDbObjectId DbTest::blockId(const wchar_t* name) const {
    KyDbObjectPointer<KyDbSymbolTable> table(db->blockTableId(), KyDb::kForRead);
    KyDbObjectId id;
    table->getAt(name, id, true);
    return id;
}

KyDbObjectId DbTest::addEntity(KyDbEntity* entity, const wchar_t* blockName) {
    KyDbObjectPointer<KyDbBlockTableRecord> block(blockId(blockName), KyDb::kForWrite);
    KyDbObjectId id;
    if (!block || block->appendKyDbEntity(id, entity) != Kyro::eOk) {
        delete entity;
        return KyDbObjectId();
    }
    entity->close();
    return id;
}

void DbTest::watch(KyDbObjectId id, KyDbObjectReactor* spy) {
    KyDbObjectPointer<KyDbObject> object(id, KyDb::kForNotify, true);
    if (object && object->addReactor(spy) == Kyro::eOk) {
        m_watched.emplace_back(id, spy);
    }
}

void DbTest::unwatch(KyDbObjectId id, KyDbObjectReactor* spy) {
    for (auto it = m_watched.begin(); it != m_watched.end(); ++it) {
        if (it->first == id && it->second == spy) {
            KyDbObjectPointer<KyDbObject> object(id, KyDb::kForNotify, true);
            object->removeReactor(spy);
            m_watched.erase(it);
            return;
        }
    }
}

KyDbObjectId DbTest::addLayer(const wchar_t* name) {
    KyDbObjectPointer<KyDbLayerTable> table(db->layerTableId(), KyDb::kForWrite);
    if (!table) {
        return KyDbObjectId();
    }
    auto* layer = new KyDbLayerTableRecord();
    layer->setName(name);
    KyDbObjectId id;
    if (table->add(id, layer) != Kyro::eOk) {
        delete layer;
        return KyDbObjectId();
    }
    layer->close();
    return id;
}

KyDbObjectId DbTest::layerId(const wchar_t* name) const {
    KyDbObjectPointer<KyDbLayerTable> table(db->layerTableId(), KyDb::kForRead);
    KyDbObjectId id;
    table->getAt(name, id, true);
    return id;
}

Lines DbTest::layerNames(bool skipDeleted) const {
    Lines names;
    KyDbObjectPointer<KyDbLayerTable> table(db->layerTableId(), KyDb::kForRead);
    KyDbSymbolTableIterator* raw = nullptr;
    table->newIterator(raw, true, skipDeleted);
    std::unique_ptr<KyDbSymbolTableIterator> it(raw);
    for (; !it->done(); it->step(true, skipDeleted)) {
        KyDbObjectId id;
        it->getRecordId(id);
        names.push_back(labelOf(id));
    }
    return names;
}

Kyro::ErrorStatus DbTest::setErased(KyDbObjectId id, bool erasing) {
    KyDbObjectPointer<KyDbObject> object(id, KyDb::kForWrite, true);
    if (!object) {
        return object.openStatus();
    }
    return object->erase(erasing);
}

Kyro::ErrorStatus DbTest::renameLayer(KyDbObjectId id, const wchar_t* name) {
    KyDbObjectPointer<KyDbLayerTableRecord> layer(id, KyDb::kForWrite);
    if (!layer) {
        return layer.openStatus();
    }
    return layer->setName(name);
}

}  // namespace dbtest
