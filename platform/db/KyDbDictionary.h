// KyDbDictionary: objects of the database under keys, in the order they were
// put in. Keys are unique without regard to case. A dictionary owns its
// entries; an entry whose object is erased is hidden (getAt, nameAt and the
// iterator pass it by) until the object is unerased. Dictionaries nest: an
// entry may be a dictionary.
//
// Writes need the dictionary open for write (eWasNotOpenForWrite) and in a
// database (eNotInDatabase); they change the dictionary, so closing it tells
// modified and objectClosed. An entry's object erased or unerased (by erase,
// undo or redo) changes the dictionary too: its reactors hear modified and
// objectClosed when the erase is told, or at its close when it is open for
// write then.
#pragma once

#include <unordered_map>
#include <vector>

#include "KyPlatformExport.h"
#include "db/KyDbEnums.h"
#include "db/KyDbNames.h"
#include "db/KyDbObject.h"

class KyDbDictionaryIterator;

class KYPLATFORM_API KyDbDictionary : public KyDbObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbDictionary);
    KyDbDictionary();
    ~KyDbDictionary() override;

    // The object under `key`: eKeyNotFound when none (or its object is
    // erased), eInvalidInput for an empty key.
    Kyro::ErrorStatus getAt(const wchar_t* key, KyDbObjectId& id) const;
    // Finds and opens it; the caller closes it.
    Kyro::ErrorStatus getAt(const wchar_t* key, KyDbObject*& object, KyDb::OpenMode mode) const;
    // The key of the object `id`; eKeyNotFound when it is not an entry.
    Kyro::ErrorStatus nameAt(KyDbObjectId id, KyString& key) const;
    bool has(const wchar_t* key) const;
    bool has(KyDbObjectId id) const;
    // Entries whose objects are not erased.
    int numEntries() const;

    // Puts `object` under `key`. A new object is appended to the database
    // (with `handle` or the next free one) and is then open for write: close
    // it. An object of the database already must be open for write by the
    // caller. An object standing under the key already is erased, unless it
    // is `object` itself. eInvalidInput (empty key), eHandleInUse,
    // eWrongDatabase, and the status of opening the replaced object.
    Kyro::ErrorStatus setAt(const wchar_t* key, KyDbObject* object, KyDbObjectId& id,
                            KyDbHandle handle = KyDbHandle());
    // Takes the entry out of the dictionary; its object stays in the database
    // as it is (not erased). eKeyNotFound when there is none.
    Kyro::ErrorStatus remove(const wchar_t* key);
    Kyro::ErrorStatus remove(const wchar_t* key, KyDbObjectId& id);
    Kyro::ErrorStatus remove(KyDbObjectId id);
    // Gives an entry another key: eKeyNotFound, eDuplicateKey.
    Kyro::ErrorStatus setName(const wchar_t* oldKey, const wchar_t* newKey);

    // A new iterator over the entries in order (the caller deletes it).
    KyDbDictionaryIterator* newIterator() const;

protected:
    // The named objects dictionary can't be erased.
    Kyro::ErrorStatus subErase(bool erasing) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    friend class KyDbDictionaryIterator;
    friend class KyDbObjectAccess;

    struct Entry {
        KyString key;
        KyDbObjectId id;
    };

    Kyro::ErrorStatus checkWrite() const;
    // The position of `key` (erased entries too), -1 if none.
    int find(const wchar_t* key) const;
    int findId(KyDbObjectId id) const;
    // True when `id` stands under a key, its object erased or not.
    bool holds(KyDbObjectId id) const { return !id.isNull() && findId(id) >= 0; }
    void rebuildIndex();

    std::vector<Entry> m_entries;
    std::unordered_map<KyString, int, KyDbNames::Hash, KyDbNames::Equal> m_index;
};
