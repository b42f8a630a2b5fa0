#include "db/KyDbDictionaryIterator.h"

#include "db/KyDbDictionary.h"
#include "db/KyDbOpenObject.h"

KyDbDictionaryIterator::KyDbDictionaryIterator(const KyDbDictionary* dictionary)
    : m_dictionary(dictionary) {
    skipErased();
}

KyDbDictionaryIterator::~KyDbDictionaryIterator() = default;

void KyDbDictionaryIterator::skipErased() {
    while (!done() && m_dictionary->m_entries[m_index].id.isErased()) {
        ++m_index;
    }
}

bool KyDbDictionaryIterator::done() const {
    return m_index >= m_dictionary->m_entries.size();
}

bool KyDbDictionaryIterator::next() {
    if (done()) {
        return false;
    }
    ++m_index;
    skipErased();
    return !done();
}

const wchar_t* KyDbDictionaryIterator::name() const {
    return done() ? L"" : m_dictionary->m_entries[m_index].key.kwszPtr();
}

KyDbObjectId KyDbDictionaryIterator::objectId() const {
    return done() ? KyDbObjectId() : m_dictionary->m_entries[m_index].id;
}

Kyro::ErrorStatus KyDbDictionaryIterator::getObject(KyDbObject*& object,
                                                    KyDb::OpenMode mode) const {
    object = nullptr;
    if (done()) {
        return Kyro::eInvalidIndex;
    }
    return kydbOpenObject(object, objectId(), mode);
}
