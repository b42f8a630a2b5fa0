// KyRxDictionary: runtime objects by name, and the system registry, the
// dictionary of system services: "ClassDictionary" (every runtime class by
// name), "ServiceDictionary" (registered services) and "DynamicLinker".
#pragma once

#include <map>

#include "base/KyString.h"
#include "rx/KyRxObject.h"

#define KYRX_CLASS_DICTIONARY L"ClassDictionary"
#define KYRX_SERVICE_DICTIONARY L"ServiceDictionary"
#define KYRX_DYNAMIC_LINKER L"DynamicLinker"

class KYPLATFORM_API KyRxDictionaryIterator {
public:
    virtual ~KyRxDictionaryIterator();
    virtual bool done() const = 0;
    virtual bool next() = 0;
    virtual const wchar_t* key() const = 0;
    virtual KyRxObject* object() const = 0;

protected:
    KyRxDictionaryIterator() = default;
};

class KYPLATFORM_API KyRxDictionary : public KyRxObject {
public:
    KYRX_DECLARE_MEMBERS(KyRxDictionary);
    // With `ownsEntries` the dictionary deletes its entries when it goes.
    explicit KyRxDictionary(bool ownsEntries = false);
    ~KyRxDictionary() override;

    KyRxObject* at(const wchar_t* key) const;
    // Puts `object` under `key`; answers the entry it replaces (not deleted).
    KyRxObject* atPut(const wchar_t* key, KyRxObject* object);
    // Takes the entry out and answers it (not deleted); null when absent.
    KyRxObject* remove(const wchar_t* key);
    bool has(const wchar_t* key) const { return at(key) != nullptr; }
    int numEntries() const { return static_cast<int>(m_entries.size()); }
    // Entries in key order; the caller deletes the iterator.
    KyRxDictionaryIterator* newIterator() const;

private:
    std::map<KyString, KyRxObject*, KyStringLess> m_entries;
    bool m_ownsEntries;
};

// The system registry, made at first use with its three entries.
KYPLATFORM_API KyRxDictionary* kyrxSysRegistry();
// The "ClassDictionary" entry of the system registry.
KYPLATFORM_API KyRxDictionary* kyrxClassDictionary();
