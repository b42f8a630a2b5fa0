// Runtime objects by name, and the system registry. Making the registry calls
// no desc(): the class registry files every class into "ClassDictionary", also
// while a desc() is running.
#include "rx/KyRxDictionary.h"

#include "rx/KyRxClass.h"
#include "rx/KyRxDynamicLinker.h"

KYRX_DEFINE_MEMBERS(KyRxDictionary, KyRxObject)

namespace {

using EntryMap = std::map<KyString, KyRxObject*, KyStringLess>;

// Walks the keys in order. It remembers the current key rather than a map
// position, so entries may be added or removed while it walks.
class KyRxDictionaryMapIterator : public KyRxDictionaryIterator {
public:
    explicit KyRxDictionaryMapIterator(const EntryMap& entries) : m_entries(entries) {
        if (!m_entries.empty()) {
            m_key = m_entries.begin()->first;
            m_done = false;
        }
    }

    bool done() const override { return m_done; }

    bool next() override {
        if (m_done) {
            return false;
        }
        const auto following = m_entries.upper_bound(m_key);
        if (following == m_entries.end()) {
            m_done = true;
            m_key.setEmpty();
            return false;
        }
        m_key = following->first;
        return true;
    }

    const wchar_t* key() const override { return m_done ? nullptr : m_key.kwszPtr(); }

    KyRxObject* object() const override {
        if (m_done) {
            return nullptr;
        }
        const auto found = m_entries.find(m_key);
        return found != m_entries.end() ? found->second : nullptr;
    }

private:
    const EntryMap& m_entries;
    KyString m_key;
    bool m_done = true;
};

KyRxDictionary* makeSysRegistry() {
    auto* registry = new KyRxDictionary(false);
    registry->atPut(KYRX_CLASS_DICTIONARY, new KyRxDictionary(false));
    registry->atPut(KYRX_SERVICE_DICTIONARY, new KyRxDictionary(true));
    registry->atPut(KYRX_DYNAMIC_LINKER, new KyRxDynamicLinker);
    return registry;
}

}  // namespace

KyRxDictionaryIterator::~KyRxDictionaryIterator() = default;

KyRxDictionary::KyRxDictionary(bool ownsEntries) : m_ownsEntries(ownsEntries) {}

KyRxDictionary::~KyRxDictionary() {
    if (m_ownsEntries) {
        // Take the entries out first: an entry's destructor may look here.
        EntryMap entries;
        entries.swap(m_entries);
        for (auto& entry : entries) {
            delete entry.second;
        }
    }
}

KyRxObject* KyRxDictionary::at(const wchar_t* key) const {
    if (key == nullptr) {
        return nullptr;
    }
    const auto found = m_entries.find(KyString(key));
    return found != m_entries.end() ? found->second : nullptr;
}

KyRxObject* KyRxDictionary::atPut(const wchar_t* key, KyRxObject* object) {
    if (key == nullptr) {
        return nullptr;
    }
    if (object == nullptr) {
        return remove(key);
    }
    KyRxObject*& slot = m_entries[KyString(key)];
    KyRxObject* previous = slot;
    slot = object;
    return previous;
}

KyRxObject* KyRxDictionary::remove(const wchar_t* key) {
    if (key == nullptr) {
        return nullptr;
    }
    const auto found = m_entries.find(KyString(key));
    if (found == m_entries.end()) {
        return nullptr;
    }
    KyRxObject* object = found->second;
    m_entries.erase(found);
    return object;
}

KyRxDictionaryIterator* KyRxDictionary::newIterator() const {
    return new KyRxDictionaryMapIterator(m_entries);
}

KyRxDictionary* kyrxSysRegistry() {
    // Never freed: classes and services are looked up until the process ends.
    static KyRxDictionary* s_registry = makeSysRegistry();
    return s_registry;
}

KyRxDictionary* kyrxClassDictionary() {
    static KyRxDictionary* s_classes =
        static_cast<KyRxDictionary*>(kyrxSysRegistry()->at(KYRX_CLASS_DICTIONARY));
    return s_classes;
}
