#include "currency/VisualStyleCurrencyTracker.h"

#include "kydi/KyDiDbItem.h"
#include "kydi/KyDiEditorService.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiVisualStyleService.h"
#include "manager/NameConverters.h"
#include "manager/host/KyDiHostAccess.h"
#include "rx/KyRxValue.h"

namespace {

// Two cancels end whatever command runs; the echo of the answers is off.
const wchar_t kStandardStyleCommand[] = L"^C^C^Q_.VSCURRENT\n_%ls\n";
const wchar_t kOtherStyleCommand[] = L"^C^C^Q_.VSCURRENT\n_other\n%ls\n";

// `text` without its blanks: the command takes a standard style's name as one
// word.
KyString withoutBlanks(const KyString& text) {
    KyString word;
    for (const wchar_t* at = text.kwszPtr(); *at != L'\0'; ++at) {
        if (*at != L' ') {
            word.append(*at);
        }
    }
    return word;
}

}  // namespace

VisualStyleCurrencyTracker::VisualStyleCurrencyTracker(const wchar_t* collectionName,
                                                       const wchar_t* sysVarName,
                                                       const wchar_t* commandFormat, Getter getter,
                                                       Setter setter)
    : DataItemCurrencyTracker(collectionName, sysVarName, commandFormat, getter, setter) {
    standardNames();
}

const std::set<KyString, KyStringLess>& VisualStyleCurrencyTracker::standardNames() {
    static const std::set<KyString, KyStringLess> s_names = [] {
        std::set<KyString, KyStringLess> names;
        for (const KyDb::ReservedStringEnumType* kind = NameConverters::visualStyleKinds();
             *kind != KyDb::kReservedStringCount; ++kind) {
            names.insert(KyString(kydbGetReservedString(*kind, false)));
        }
        return names;
    }();
    return s_names;
}

KyDiDynamicObject* VisualStyleCurrencyTracker::getCurrentItem() {
    KyDiVisualStyleService* styles = KyDiHostAccess::visualStyleService();
    if (styles == nullptr) {
        return nullptr;
    }
    KyDbObjectId id;
    if (styles->getCurrent(id) != Kyro::eOk ||
        styles->styleKind(id) == KyDiVisualStyleService::kUnlistedStyle) {
        // A style that no list shows is as none.
        return nullptr;
    }
    return id.isNull() ? nullptr : itemOfRecord(id);
}

void VisualStyleCurrencyTracker::setCurrentItem(KyDiDynamicObject* item) {
    KyDiEditorService* editor = KyDiHostAccess::editor();
    const KyString name = item != nullptr ? KyDiGetItemName(item) : KyString();
    if (editor != nullptr && !name.isEmpty()) {
        // The item shows a standard style's name in the user's language; the
        // command takes the global one.
        KyRxValue global(name);
        NameConverters::convertVisualStyleName(&global, false);
        const KyString globalName = *valueCast<KyString>(&global);
        const KyString command =
            standardNames().contains(globalName)
                ? KyString::formatted(kStandardStyleCommand, withoutBlanks(globalName).kwszPtr())
                : KyString::formatted(kOtherStyleCommand, name.kwszPtr());
        editor->sendCommand(command.kwszPtr(), false, true, false);
        return;
    }
    KyDiVisualStyleService* styles = KyDiHostAccess::visualStyleService();
    const auto* dbItem = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(item));
    if (styles != nullptr && dbItem != nullptr) {
        styles->setCurrent(dbItem->objectId(), 0);
    }
}

void VisualStyleCurrencyTracker::update() {
    KyDiDynamicObject* current = getCurrentItem();
    if (current != m_lastCurrentItem) {
        notifyReactors();
        m_lastCurrentItem = current;
    }
}
