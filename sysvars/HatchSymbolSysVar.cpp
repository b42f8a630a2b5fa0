#include "sysvars/HatchSymbolSysVar.h"

#include "kydi/KyDiEditorService.h"
#include "manager/host/KyDiHostAccess.h"

Kyro::ErrorStatus HatchSymbolSysVar::subSetValue(const resbuf& value, bool viaCommand) {
    if (KyDiHostAccess::currentDocument() == kKyDiNoDocument) {
        return Kyro::eNoCurrentDocument;
    }
    if (!viaCommand) {
        return Kyro::eInvalidInput;
    }
    KyDiEditorService* editor = KyDiHostAccess::editor();
    if (value.restype != KYRB_STRING || editor == nullptr) {
        return Kyro::eInvalidInput;
    }
    // The name goes as typed, without quotes.
    const wchar_t* symbol = value.resval.rstring != nullptr ? value.resval.rstring : L"";
    const KyString text = KyString::formatted(L"'%ls %ls\n", name(), symbol);
    return editor->sendCommand(text, false, false, true);
}
