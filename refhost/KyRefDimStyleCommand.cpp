#include "KyRefDimStyleCommand.h"

#include "KyRefCommandContext.h"
#include "KyRefHost.h"
#include "KyRefLanguage.h"

namespace {

const KyRefKeyword kOptions[] = {
    {L"ANnotative", L"ANnotativ"},
    {L"Save", L"Sichern"},
    {L"Restore", L"Holen"},
    {L"STatus", L"STatus"},
    {L"Variables", L"Variablen"},
    {L"Apply", L"Anwenden"},
    {L"?", L"?"},
};
constexpr int kRestore = 2;

}  // namespace

void KyRefDimStyleCommand::run(KyRefCommandContext& context) {
    KyRefSysVarStore& variables = context.host().sysVars();
    KyRefResbufPtr current;
    variables.get(L"DIMSTYLE", current);
    context.message(L"Current dimension style: %ls",
                    current != nullptr ? current->resval.rstring : L"");
    const KyString prompt = KyString::formatted(
        L"Enter a dimension style option %ls <%ls>: ", KyRefKeywords::options(kOptions).kwszPtr(),
        KyRefLanguage::pick(kOptions[kRestore].global, kOptions[kRestore].local));
    const int option = context.readKeyword(prompt, kOptions, true);
    if (option >= 0 && option != kRestore) {
        context.fail(L"This host does not support the option %ls.",
                     KyRefLanguage::pick(kOptions[option].global, kOptions[option].local));
    }
    const KyString name = context.readName(L"Enter a dimension style name: ");
    if (name.isEmpty()) {
        return;
    }
    KyString error;
    if (variables.set(L"DIMSTYLE", *KyRefResbuf::makeString(name), 0, &error) !=
        KyRefSysVarStatus::kOk) {
        context.fail(L"%ls", error.kwszPtr());
    }
}
