#include "currency/UCSCurrencyTracker.h"

#include "db/KyDbDatabase.h"
#include "kydi/KyDiDataItemFactory.h"
#include "kydi/KyDiDbItem.h"
#include "kydi/KyDiEditorService.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiUcsService.h"
#include "manager/host/KyDiHostAccess.h"
#include "objects/DataItemOwnership.h"

namespace {

// World and the orthographic planes, as the UCS service names them, and the
// command's keywords for them (their capitals are the letters a user types).
struct UcsWord {
    const wchar_t* name;
    const wchar_t* word;
};

const UcsWord kUcsWords[] = {
    {L"World", L"_World"},   {L"Left", L"_Left"},   {L"Right", L"_RIght"}, {L"Top", L"_Top"},
    {L"Bottom", L"_Bottom"}, {L"Front", L"_FRont"}, {L"Back", L"_BAck"},
};

// The keyword for the UCS `name` without a record, matched exactly; any
// other name is answered as it is.
KyString unnamedUcsWord(const KyString& name) {
    for (const UcsWord& entry : kUcsWords) {
        if (name.compare(entry.name) == 0) {
            return KyString(entry.word);
        }
    }
    return name;
}

const wchar_t kNamedUcsCommand[] = L"_.UCS\n_Named\n_Restore\n%ls\n";
const wchar_t kUnnamedUcsCommand[] = L"_.UCS\n%ls\n";

}  // namespace

UCSCurrencyTracker::UCSCurrencyTracker(const wchar_t* collectionName, const wchar_t* sysVarName,
                                       const wchar_t* commandFormat, Getter getter, Setter setter)
    : DataItemCurrencyTracker(collectionName, sysVarName, commandFormat, getter, setter),
      m_transientItems(0, 8) {}

UCSCurrencyTracker::~UCSCurrencyTracker() {
    // An item that the cache keeps lives on in its collection.
    for (int i = 0; i < m_transientItems.length(); ++i) {
        DataItemOwnership::disposeDataItem(m_transientItems[i]);
    }
    m_transientItems.setLogicalLength(0);
}

KyDiDynamicObject* UCSCurrencyTracker::getCurrentItem() {
    KyDiUcsService* ucs = KyDiHostAccess::ucsService();
    KyString name;
    KyDbObjectId id;
    if (ucs == nullptr || ucs->getCurrent(name, id) != Kyro::eOk) {
        return nullptr;
    }
    if (KyDiDynamicObject* item = itemOfRecord(id)) {
        return item;
    }
    // World or a plane: an item that carries only the name.
    KyDiDynamicObject* item = createDataItem(name, KyRxValue(KyDbObjectId()));
    m_transientItems.append(item);
    return item;
}

void UCSCurrencyTracker::setCurrentItem(KyDiDynamicObject* item) {
    KyDbObjectId id;
    KyString name;
    if (const auto* dbItem = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(item))) {
        id = dbItem->objectId();
        name = KyDiGetItemName(item);
    } else {
        KyRxValue value;
        if (item == nullptr || item->value(value) != Kyro::eOk) {
            return;
        }
        if (const KyString* text = valueCast<KyString>(&value)) {
            name = *text;
        } else if (const wchar_t* const* chars = valueCast<const wchar_t*>(&value)) {
            name = *chars;
        }
    }
    KyDiEditorService* editor = KyDiHostAccess::editor();
    if (!id.isNull()) {
        if (!name.isEmpty() && editor != nullptr) {
            const KyString command = KyString::formatted(kNamedUcsCommand, name.kwszPtr());
            editor->sendCommand(command.kwszPtr(), false, false, true);
        } else if (KyDbDatabase* db = KyDiHostAccess::workingDatabase()) {
            db->setUcsBase(id);
        }
        return;
    }
    if (name.isEmpty() || editor == nullptr) {
        return;
    }
    const KyString command =
        KyString::formatted(kUnnamedUcsCommand, unnamedUcsWord(name).kwszPtr());
    editor->sendCommand(command.kwszPtr(), false, false, true);
}
