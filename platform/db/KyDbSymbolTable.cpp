#include "db/KyDbSymbolTable.h"

#include <memory>

#include "db/KyDbClassSupport.h"
#include "db/KyDbObjectAccess.h"
#include "db/KyDbOpenObject.h"
#include "db/KyDbSymbolTableIterator.h"
#include "db/KyDbSymbolTableRecord.h"
#include "rx/KyRxClass.h"

namespace {

// The records that are not erased, in table order.
Kyro::ErrorStatus listRecords(const KyRxObject* object, KyDbIdList& ids) {
    const KyDbSymbolTable* table = kyrxCast<KyDbSymbolTable>(object);
    if (table == nullptr) {
        return Kyro::eNotThatKindOfClass;
    }
    KyDbSymbolTableIterator* raw = nullptr;
    table->newIterator(raw, true, true);
    std::unique_ptr<KyDbSymbolTableIterator> it(raw);
    for (; !it->done(); it->step(true, true)) {
        KyDbObjectId id;
        it->getRecordId(id);
        ids.append(id);
    }
    return Kyro::eOk;
}

const KyDbPropertyRow kTableRows[] = {
    {L"Items", {}, nullptr, 0, nullptr, &kydbiIdCollection<&listRecords>},
};

// The iterator of tables without one of their own.
class KyDbPlainSymbolTableIterator : public KyDbSymbolTableIterator {
public:
    explicit KyDbPlainSymbolTableIterator(const KyDbSymbolTable* table)
        : KyDbSymbolTableIterator(table) {}
};

}  // namespace

KYDB_DEFINE_BASE_CLASS(KyDbSymbolTable, KyDbObject, kTableRows)

KyDbSymbolTable::KyDbSymbolTable() = default;

KyDbSymbolTable::~KyDbSymbolTable() = default;

Kyro::ErrorStatus KyDbSymbolTable::subErase(bool erasing) {
    return erasing ? Kyro::eCannotBeErasedByCaller : Kyro::eOk;
}

const KyRxClass* KyDbSymbolTable::subRecordClass() const {
    return KyDbSymbolTableRecord::desc();
}

KyDbSymbolTableIterator* KyDbSymbolTable::subNewIterator() const {
    return new KyDbPlainSymbolTableIterator(this);
}

Kyro::ErrorStatus KyDbSymbolTable::add(KyDbSymbolTableRecord* record) {
    KyDbObjectId id;
    return add(id, record);
}

Kyro::ErrorStatus KyDbSymbolTable::add(KyDbObjectId& id, KyDbSymbolTableRecord* record,
                                       KyDbHandle handle) {
    return insert(id, record, handle, true);
}

Kyro::ErrorStatus KyDbSymbolTable::addWithoutNotice(KyDbObjectId& id, KyDbSymbolTableRecord* record,
                                                    KyDbHandle handle) {
    return insert(id, record, handle, false);
}

Kyro::ErrorStatus KyDbSymbolTable::insert(KyDbObjectId& id, KyDbSymbolTableRecord* record,
                                          KyDbHandle handle, bool announce) {
    if (const Kyro::ErrorStatus status = checkCanOwn(record); status != Kyro::eOk) {
        return status;
    }
    if (!record->isKindOf(recordClass())) {
        return Kyro::eNotThatKindOfClass;
    }
    const wchar_t* name = record->name().kwszPtr();
    if (const Kyro::ErrorStatus status = KyDbNames::checkRecordName(name); status != Kyro::eOk) {
        return status;
    }
    if (!liveRecord(name).isNull()) {
        return Kyro::eDuplicateRecordName;
    }
    KyDbObjectId newId;
    Kyro::ErrorStatus status = Kyro::eOk;
    if (announce) {
        status = appendOwned(record, handle, newId);
    } else if (status = KyDbObjectAccess::checkHandle(database(), handle); status == Kyro::eOk) {
        // Unannounced, the table takes the record without a change of its
        // own: its list is no part of its saved state (undo of the append
        // erases the record, which keeps its place), so it needs no
        // before-image.
        status = KyDbObjectAccess::append(database(), record, objectId(), handle, newId);
    }
    if (status != Kyro::eOk) {
        return status;
    }
    m_records.append(newId);
    indexAdd(name, newId);
    id = newId;
    if (announce) {
        KyDbObjectAccess::announceAppend(record);
    }
    return Kyro::eOk;
}

const KyDbSymbolTable::Index& KyDbSymbolTable::index() const {
    if (m_indexStale) {
        m_index.clear();
        for (const KyDbObjectId& id : m_records) {
            if (!id.isErased() && id.stub()->object != nullptr) {
                const auto* record = static_cast<const KyDbSymbolTableRecord*>(id.stub()->object);
                m_index[KyDbNames::folded(record->name())] = id;
            }
        }
        m_indexStale = false;
    }
    return m_index;
}

KyDbObjectId KyDbSymbolTable::liveRecord(const wchar_t* name) const {
    const Index& names = index();
    const auto it = names.find(KyDbNames::folded(name));
    return it != names.end() ? it->second : KyDbObjectId();
}

void KyDbSymbolTable::indexAdd(const wchar_t* name, KyDbObjectId id) {
    if (!m_indexStale) {
        m_index[KyDbNames::folded(name)] = id;
    }
}

void KyDbSymbolTable::indexRemove(const wchar_t* name, KyDbObjectId id) {
    if (m_indexStale) {
        return;
    }
    const auto it = m_index.find(KyDbNames::folded(name));
    if (it != m_index.end() && it->second == id) {
        m_index.erase(it);
    }
}

Kyro::ErrorStatus KyDbSymbolTable::getAt(const wchar_t* name, KyDbObjectId& id,
                                         bool getErased) const {
    if (name == nullptr || name[0] == L'\0') {
        return Kyro::eInvalidInput;
    }
    const KyDbObjectId live = liveRecord(name);
    if (!live.isNull()) {
        id = live;
        return Kyro::eOk;
    }
    if (getErased) {
        for (int i = m_records.length() - 1; i >= 0; --i) {
            const KyDbObjectId candidate = m_records[i];
            const auto* record =
                static_cast<const KyDbSymbolTableRecord*>(candidate.stub()->object);
            if (candidate.isErased() && record != nullptr &&
                record->name().compareNoCase(name) == 0) {
                id = candidate;
                return Kyro::eOk;
            }
        }
    }
    return Kyro::eKeyNotFound;
}

Kyro::ErrorStatus KyDbSymbolTable::getAt(const wchar_t* name, KyDbSymbolTableRecord*& record,
                                         KyDb::OpenMode mode, bool openErased) const {
    record = nullptr;
    KyDbObjectId id;
    if (const Kyro::ErrorStatus status = getAt(name, id, openErased); status != Kyro::eOk) {
        return status;
    }
    return kydbOpenObject(record, id, mode, openErased);
}

bool KyDbSymbolTable::has(const wchar_t* name) const {
    KyDbObjectId id;
    return getAt(name, id) == Kyro::eOk;
}

bool KyDbSymbolTable::has(KyDbObjectId id) const {
    return !id.isNull() && id.database() == database() && id.stub()->object != nullptr &&
           id.stub()->object->ownerId() == objectId() && !id.isErased();
}

void KyDbSymbolTable::getRecordIds(KyArray<KyDbObjectId>& ids, bool withErased) const {
    ids.setLogicalLength(0);
    for (const KyDbObjectId& id : m_records) {
        if (withErased || !id.isErased()) {
            ids.append(id);
        }
    }
}

Kyro::ErrorStatus KyDbSymbolTable::newIterator(KyDbSymbolTableIterator*& iterator, bool atBeginning,
                                               bool skipDeleted) const {
    iterator = subNewIterator();
    if (iterator == nullptr) {
        return Kyro::eNoIterator;
    }
    iterator->start(atBeginning, skipDeleted);
    return Kyro::eOk;
}
