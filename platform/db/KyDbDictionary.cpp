#include "db/KyDbDictionary.h"

#include <memory>

#include "db/KyDbClassSupport.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionaryIterator.h"
#include "db/KyDbObjectAccess.h"
#include "db/KyDbOpenObject.h"
#include "db/KyDbStateFiler.h"

namespace {

// The entries whose objects are not erased, in order.
Kyro::ErrorStatus listEntries(const KyRxObject* object, KyDbIdList& ids) {
    const KyDbDictionary* dictionary = kyrxCast<KyDbDictionary>(object);
    if (dictionary == nullptr) {
        return Kyro::eNotThatKindOfClass;
    }
    std::unique_ptr<KyDbDictionaryIterator> it(dictionary->newIterator());
    for (; !it->done(); it->next()) {
        ids.append(it->objectId());
    }
    return Kyro::eOk;
}

const KyDbPropertyRow kDictionaryRows[] = {
    {L"Name", kydbiReadOnly<KyString>(&kydbiGetEntryName), KyDbCategory::kGeneral, 0},
    {L"Items", {}, nullptr, 0, nullptr, &kydbiIdCollection<&listEntries>},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbDictionary, KyDbObject, kDictionaryRows)

Kyro::ErrorStatus kydbiGetEntryName(const KyRxObject* object, KyRxValue& value) {
    const KyDbObject* entry = kyrxCast<KyDbObject>(object);
    if (entry == nullptr) {
        return Kyro::eNotThatKindOfClass;
    }
    if (const Kyro::ErrorStatus status = kydbiReadStatus(entry); status != Kyro::eOk) {
        return status;
    }
    KyString key;
    const KyDbStub* owner = entry->ownerId().stub();
    if (owner != nullptr && owner->object != nullptr) {
        if (const KyDbDictionary* dictionary = kyrxCast<KyDbDictionary>(owner->object)) {
            dictionary->nameAt(entry->objectId(), key);
        }
    }
    value = KyRxValue(key);
    return Kyro::eOk;
}

KyDbDictionary::KyDbDictionary() = default;

KyDbDictionary::~KyDbDictionary() = default;

int KyDbDictionary::find(const wchar_t* key) const {
    if (key == nullptr || key[0] == L'\0') {
        return -1;
    }
    const auto it = m_index.find(KyDbNames::folded(key));
    return it != m_index.end() ? it->second : -1;
}

int KyDbDictionary::findId(KyDbObjectId id) const {
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        if (m_entries[i].id == id) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

void KyDbDictionary::rebuildIndex() {
    m_index.clear();
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        m_index[KyDbNames::folded(m_entries[i].key)] = static_cast<int>(i);
    }
}

Kyro::ErrorStatus KyDbDictionary::checkWrite() const {
    if (!isDatabaseResident()) {
        return Kyro::eNotInDatabase;
    }
    return checkWritable();
}

Kyro::ErrorStatus KyDbDictionary::getAt(const wchar_t* key, KyDbObjectId& id) const {
    if (key == nullptr || key[0] == L'\0') {
        return Kyro::eInvalidInput;
    }
    const int at = find(key);
    if (at < 0 || m_entries[static_cast<std::size_t>(at)].id.isErased()) {
        return Kyro::eKeyNotFound;
    }
    id = m_entries[static_cast<std::size_t>(at)].id;
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbDictionary::getAt(const wchar_t* key, KyDbObject*& object,
                                        KyDb::OpenMode mode) const {
    object = nullptr;
    KyDbObjectId id;
    if (const Kyro::ErrorStatus status = getAt(key, id); status != Kyro::eOk) {
        return status;
    }
    return kydbOpenObject(object, id, mode);
}

Kyro::ErrorStatus KyDbDictionary::nameAt(KyDbObjectId id, KyString& key) const {
    const int at = id.isNull() ? -1 : findId(id);
    if (at < 0 || id.isErased()) {
        return Kyro::eKeyNotFound;
    }
    key = m_entries[static_cast<std::size_t>(at)].key;
    return Kyro::eOk;
}

bool KyDbDictionary::has(const wchar_t* key) const {
    KyDbObjectId id;
    return getAt(key, id) == Kyro::eOk;
}

bool KyDbDictionary::has(KyDbObjectId id) const {
    return !id.isNull() && !id.isErased() && findId(id) >= 0;
}

int KyDbDictionary::numEntries() const {
    int count = 0;
    for (const Entry& entry : m_entries) {
        count += entry.id.isErased() ? 0 : 1;
    }
    return count;
}

Kyro::ErrorStatus KyDbDictionary::setAt(const wchar_t* key, KyDbObject* object, KyDbObjectId& id,
                                        KyDbHandle handle) {
    if (const Kyro::ErrorStatus status = checkWrite(); status != Kyro::eOk) {
        return status;
    }
    if (key == nullptr || key[0] == L'\0') {
        return Kyro::eInvalidInput;
    }
    if (object == nullptr) {
        return Kyro::eNullObjectPointer;
    }
    const int at = find(key);
    const bool isNew = !object->isDatabaseResident();
    if (isNew) {
        if (const Kyro::ErrorStatus status = KyDbObjectAccess::checkHandle(database(), handle);
            status != Kyro::eOk) {
            return status;
        }
    } else {
        if (object->database() != database()) {
            return Kyro::eWrongDatabase;
        }
        if (at >= 0 && m_entries[static_cast<std::size_t>(at)].id == object->objectId()) {
            id = object->objectId();
            return Kyro::eOk;
        }
        if (!object->isWriteEnabled()) {
            return Kyro::eWasNotOpenForWrite;
        }
    }
    // The object under the key now is erased: open it before changing anything.
    KyDbObject* replaced = nullptr;
    if (at >= 0 && !m_entries[static_cast<std::size_t>(at)].id.isErased()) {
        const Kyro::ErrorStatus status =
            kydbOpenObject(replaced, m_entries[static_cast<std::size_t>(at)].id, KyDb::kForWrite);
        if (status != Kyro::eOk) {
            return status;
        }
    }
    assertWriteEnabled();
    KyDbObjectId newId;
    if (isNew) {
        const Kyro::ErrorStatus status =
            KyDbObjectAccess::append(database(), object, objectId(), handle, newId);
        if (status != Kyro::eOk) {
            if (replaced != nullptr) {
                replaced->close();
            }
            return status;
        }
    } else {
        newId = object->objectId();
        object->setOwnerId(objectId());
        // An object stands under one key of a dictionary.
        if (const int previous = findId(newId); previous >= 0) {
            m_entries.erase(m_entries.begin() + previous);
            rebuildIndex();
        }
    }
    const int slot = find(key);
    if (slot >= 0) {
        m_entries[static_cast<std::size_t>(slot)] = Entry{KyString(key), newId};
    } else {
        m_entries.push_back(Entry{KyString(key), newId});
        m_index[KyDbNames::folded(key)] = static_cast<int>(m_entries.size() - 1);
    }
    id = newId;
    if (isNew) {
        KyDbObjectAccess::announceAppend(object);
    }
    if (replaced != nullptr) {
        replaced->erase(true);
        replaced->close();
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbDictionary::remove(const wchar_t* key) {
    KyDbObjectId id;
    return remove(key, id);
}

Kyro::ErrorStatus KyDbDictionary::remove(const wchar_t* key, KyDbObjectId& id) {
    if (const Kyro::ErrorStatus status = checkWrite(); status != Kyro::eOk) {
        return status;
    }
    const int at = find(key);
    if (at < 0 || m_entries[static_cast<std::size_t>(at)].id.isErased()) {
        return Kyro::eKeyNotFound;
    }
    assertWriteEnabled();
    id = m_entries[static_cast<std::size_t>(at)].id;
    m_entries.erase(m_entries.begin() + at);
    rebuildIndex();
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbDictionary::remove(KyDbObjectId id) {
    KyString key;
    if (const Kyro::ErrorStatus status = nameAt(id, key); status != Kyro::eOk) {
        return status;
    }
    return remove(key);
}

Kyro::ErrorStatus KyDbDictionary::setName(const wchar_t* oldKey, const wchar_t* newKey) {
    if (const Kyro::ErrorStatus status = checkWrite(); status != Kyro::eOk) {
        return status;
    }
    if (newKey == nullptr || newKey[0] == L'\0') {
        return Kyro::eInvalidInput;
    }
    const int at = find(oldKey);
    if (at < 0 || m_entries[static_cast<std::size_t>(at)].id.isErased()) {
        return Kyro::eKeyNotFound;
    }
    if (m_entries[static_cast<std::size_t>(at)].key.compare(newKey) == 0) {
        return Kyro::eOk;
    }
    const int other = find(newKey);
    if (other >= 0 && other != at && !m_entries[static_cast<std::size_t>(other)].id.isErased()) {
        return Kyro::eDuplicateKey;
    }
    assertWriteEnabled();
    m_entries[static_cast<std::size_t>(at)].key = newKey;
    if (other >= 0 && other != at) {
        // A hidden entry of an erased object gives its key up.
        m_entries.erase(m_entries.begin() + other);
    }
    rebuildIndex();
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbDictionary::subErase(bool erasing) {
    const KyDbDatabase* db = database();
    if (erasing && db != nullptr && db->namedObjectsDictionaryId() == objectId()) {
        return Kyro::eCannotBeErasedByCaller;
    }
    return Kyro::eOk;
}

KyDbDictionaryIterator* KyDbDictionary::newIterator() const {
    return new KyDbDictionaryIterator(this);
}

void KyDbDictionary::subSaveState(KyDbStateFiler& filer) const {
    KyDbObject::subSaveState(filer);
    filer.write(static_cast<int>(m_entries.size()));
    for (const Entry& entry : m_entries) {
        filer.writeString(entry.key);
        filer.write(entry.id);
    }
}

Kyro::ErrorStatus KyDbDictionary::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbObject::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    int count = 0;
    filer.read(count);
    m_entries.clear();
    for (int i = 0; i < count && filer.status() == Kyro::eOk; ++i) {
        Entry entry;
        filer.read(entry.key);
        filer.read(entry.id);
        m_entries.push_back(entry);
    }
    rebuildIndex();
    return filer.status();
}
