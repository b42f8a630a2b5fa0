#include "collections/KyDiImpDictionaryItemCollection.h"

#include <cwchar>
#include <memory>
#include <vector>

#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbDictionaryIterator.h"
#include "db/KyDbObjectPointer.h"
#include "kydi/KyDiDataItemFactory.h"
#include "rx/KyRxValue.h"

void KyDiImpDictionaryItemCollection::subDrawingContentChanged() {
    requestRefill();
}

KyDbObjectId KyDiImpDictionaryItemCollection::resolveDictionary(KyDbDatabase* db) {
    if (m_dictionaryPath.isEmpty()) {
        // Repeated separators count as one.
        std::vector<wchar_t> text(name().kwszPtr(), name().kwszPtr() + name().length() + 1);
        wchar_t* state = nullptr;
        for (wchar_t* key = std::wcstok(text.data(), L"\\", &state); key != nullptr;
             key = std::wcstok(nullptr, L"\\", &state)) {
            if (*key != L'\0') {
                m_dictionaryPath.append(KyString(key));
            }
        }
        if (m_dictionaryPath.isEmpty()) {
            return KyDbObjectId();
        }
    }
    KyDbDictionary* root = nullptr;
    if (db == nullptr || db->getNamedObjectsDictionary(root, KyDb::kForRead) != Kyro::eOk) {
        return KyDbObjectId();
    }
    // Each dictionary on the way stays open until the walk ends.
    std::vector<std::unique_ptr<KyDbObjectPointer<KyDbDictionary>>> opened;
    KyDbDictionary* here = root;
    KyDbObjectId found;
    for (int level = 0; level < m_dictionaryPath.length(); ++level) {
        const KyString& key = m_dictionaryPath[level];
        KyDbObjectId id;
        if (key.isEmpty() || here->getAt(key.kwszPtr(), id) != Kyro::eOk) {
            found.setNull();
            break;
        }
        if (level + 1 == m_dictionaryPath.length()) {
            found = id;
            break;
        }
        opened.push_back(std::make_unique<KyDbObjectPointer<KyDbDictionary>>(id, KyDb::kForRead));
        if (opened.back()->openStatus() != Kyro::eOk) {
            break;
        }
        here = opened.back()->object();
    }
    while (!opened.empty()) {
        opened.pop_back();
    }
    root->close();
    return found;
}

bool KyDiImpDictionaryItemCollection::beginFill(KyDbDatabase* db, KyDbObjectId& owner,
                                                KyDiItemArray& list) {
    owner.setNull();
    list.setLogicalLength(0);
    return db != nullptr;
}

void KyDiImpDictionaryItemCollection::appendRecords(const KyArray<KyDbObjectId>& ids,
                                                    KyDiItemArray& list) {
    for (int i = 0; i < ids.length(); ++i) {
        list.append(createDataItem(KyString(), KyRxValue(ids[i])));
    }
}

bool KyDiImpDictionaryItemCollection::subFillFromDatabase(bool /*initial*/, KyDbDatabase* db,
                                                          KyDbObjectId& owner, KyDiItemArray& list,
                                                          KyArray<KyDbObjectId>& /*erased*/,
                                                          void** /*context*/) {
    if (!beginFill(db, owner, list)) {
        return false;
    }
    owner = resolveDictionary(db);
    if (owner.isNull()) {
        return false;
    }
    KyDbObjectPointer<KyDbDictionary> dictionary(owner, KyDb::kForRead);
    if (dictionary.openStatus() != Kyro::eOk) {
        return false;
    }
    const std::unique_ptr<KyDbDictionaryIterator> entries(dictionary->newIterator());
    for (; !entries->done(); entries->next()) {
        const KyDbObjectId id = entries->objectId();
        if (!id.isNull()) {
            list.append(createDataItem(KyString(entries->name()), KyRxValue(id)));
        }
    }
    return true;
}
