// KyDbDictionaryIterator: a walk over the entries of a dictionary in their
// order, passing by entries whose objects are erased.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyroErrorStatus.h"
#include "db/KyDbEnums.h"
#include "db/KyDbObjectId.h"

class KyDbDictionary;
class KyDbObject;

class KYPLATFORM_API KyDbDictionaryIterator {
public:
    explicit KyDbDictionaryIterator(const KyDbDictionary* dictionary);
    ~KyDbDictionaryIterator();
    KyDbDictionaryIterator(const KyDbDictionaryIterator&) = delete;
    KyDbDictionaryIterator& operator=(const KyDbDictionaryIterator&) = delete;

    bool done() const;
    // Goes to the next entry; false when there is none.
    bool next();
    // The key and object of the entry here: "" and null when done.
    const wchar_t* name() const;
    KyDbObjectId objectId() const;
    // Opens the object of the entry here; the caller closes it.
    Kyro::ErrorStatus getObject(KyDbObject*& object, KyDb::OpenMode mode) const;

private:
    void skipErased();

    const KyDbDictionary* m_dictionary;
    std::size_t m_index = 0;
};
