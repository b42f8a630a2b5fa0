#include "collections/KyDiImpDataLayerStateCollection.h"

#include <cwctype>
#include <memory>
#include <string>
#include <unordered_set>

#include "db/KyDbDatabase.h"
#include "db/KyDbDatabaseReactor.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbDictionaryIterator.h"
#include "db/KyDbLayerStateManager.h"
#include "db/KyDbObjectPointer.h"
#include "kydi/KyDiDataItemFactory.h"
#include "manager/host/KyDiHostAccess.h"

// Waits for the layer states dictionary to be appended to the drawing.
class KyDiImpDataLayerStateDbReactor : public KyDbDatabaseReactor {
public:
    explicit KyDiImpDataLayerStateDbReactor(KyDiImpDataLayerStateCollection* owner)
        : m_owner(owner) {}

    void objectAppended(const KyDbDatabase* database, const KyDbObject* object) override {
        // The dictionary itself, not a class derived from it.
        if (object == nullptr || object->isA() != KyDbDictionary::desc()) {
            return;
        }
        KyDbLayerStateManager* states = database->getLayerStateManager();
        if (states != nullptr && !states->layerStatesDictionaryId(false).isNull()) {
            m_owner->requestReset();
        }
    }

private:
    KyDiImpDataLayerStateCollection* m_owner;
};

KyDiImpDataLayerStateCollection::KyDiImpDataLayerStateCollection(const wchar_t* name,
                                                                 KyDiCurrencyTracker* tracker)
    : KyDiImpDictionaryItemCollection(name, tracker),
      m_layerStateDbReactor(new KyDiImpDataLayerStateDbReactor(this)) {}

KyDiImpDataLayerStateCollection::~KyDiImpDataLayerStateCollection() {
    // Lets go of the drawing while the database reactor still stands.
    KyDiImpDictionaryItemCollection::subReleaseResources();
    delete m_layerStateDbReactor;
}

void KyDiImpDataLayerStateCollection::subDrawingContentChanged() {
    requestRefill();
}

void KyDiImpDataLayerStateCollection::subCommandEnded(const wchar_t* command) {
    if (isLayerStateCommand(command)) {
        requestCurrencyCheck();
    }
}

void KyDiImpDataLayerStateCollection::subDetach(KyDbObject* closing) {
    KyDiImpDictionaryItemCollection::subDetach(closing);
    if (KyDbDatabase* db = KyDiHostAccess::databaseOf(boundDocument())) {
        db->removeReactor(m_layerStateDbReactor);
    }
}

bool KyDiImpDataLayerStateCollection::subFillFromDatabase(bool initial, KyDbDatabase* db,
                                                          KyDbObjectId& owner, KyDiItemArray& list,
                                                          KyArray<KyDbObjectId>& /*erased*/,
                                                          void** /*context*/) {
    owner.setNull();
    list.setLogicalLength(0);
    KyDbLayerStateManager* states = db != nullptr ? db->getLayerStateManager() : nullptr;
    if (states == nullptr) {
        return false;
    }
    owner = states->layerStatesDictionaryId(false);
    if (!owner.isNull()) {
        KyDbObjectPointer<KyDbDictionary> dictionary(owner, KyDb::kForRead);
        if (dictionary.openStatus() != Kyro::eOk) {
            return false;
        }
        const std::unique_ptr<KyDbDictionaryIterator> entries(dictionary->newIterator());
        for (; !entries->done(); entries->next()) {
            const KyString name(entries->name());
            int mask = 0;
            // A hidden state's mask is negative: it is left out.
            if (states->getLayerStateMask(name, mask) == Kyro::eOk && mask >= 0) {
                list.append(createDataItem(name, KyRxValue(entries->objectId()), nullptr, &owner));
            }
        }
    }
    if (initial && owner.isNull()) {
        db->addReactor(m_layerStateDbReactor);
    }
    return true;
}

void KyDiImpDataLayerStateCollection::objectClosed(KyDbObjectId id) {
    KyDiImpDictionaryItemCollection::objectClosed(id);
    // A state restored, or changed, may be current now, or no longer.
    requestCurrencyCheck();
}

void KyDiImpDataLayerStateCollection::objectErased(const KyDbObject* /*object*/, bool /*erasing*/) {
    requestReset();
}

bool KyDiImpDataLayerStateCollection::isLayerStateCommand(const wchar_t* command) {
    static const std::unordered_set<std::wstring> kCommands = {
        L"LAYER",   L"LAYERP", L"LAYMCUR", L"LAYON",  L"LAYOFF",   L"LAYTHW",
        L"LAYLCK",  L"LAYULK", L"LAYFRZ",  L"LAYISO", L"LAYUNISO", L"-LAYER",
        L"-LAYMRG", L"+LAYER", L"U",       L"UNDO",   L"REDO",
    };
    if (command == nullptr) {
        return false;
    }
    std::wstring upper(command);
    for (wchar_t& c : upper) {
        c = static_cast<wchar_t>(std::towupper(static_cast<wint_t>(c)));
    }
    return kCommands.contains(upper);
}
