#include "KyRefSetVarCommand.h"

#include "KyRefCommandContext.h"
#include "KyRefHost.h"
#include "KyRefSysVarStore.h"
#include "KyRefSysVarTable.h"

void KyRefSetVarCommand::run(KyRefCommandContext& context) {
    const KyRefSysVarRow* row = m_variable;
    if (row == nullptr) {
        const KyString name =
            KyRefCommandContext::literal(context.readWord(L"Enter variable name: "));
        if (name.isEmpty()) {
            return;
        }
        row = KyRefSysVarTable::find(name);
        if (row == nullptr) {
            context.fail(L"Unknown variable name \"%ls\".", name.kwszPtr());
        }
    }
    KyRefSysVarStore& store = context.host().sysVars();
    KyRefResbufPtr current;
    if (store.get(row->name, current) != KyRefSysVarStatus::kOk) {
        context.fail(L"%ls can't be read: no drawing is open.", row->name);
    }
    const KyString shown = KyRefSysVarStore::format(*current);
    if (row->has(kSysVarReadOnly)) {
        context.message(L"%ls = %ls (read only)", row->name, shown.kwszPtr());
        return;
    }
    const bool text = row->type == KYRB_STRING;
    const KyString prompt =
        KyString::formatted(L"Enter new value for %ls <%ls>: ", row->name, shown.kwszPtr());
    for (;;) {
        const KyString answer = text ? context.readLine(prompt) : context.readWord(prompt);
        if (answer.isEmpty()) {
            return;
        }
        KyRefResbufPtr value;
        if (!KyRefSysVarStore::parse(*row, answer, value)) {
            context.message(L"%ls", KyRefSysVarStore::rangeText(*row).kwszPtr());
            continue;
        }
        KyString error;
        const KyRefSysVarStatus status = store.set(row->name, *value, 0, &error);
        if (status == KyRefSysVarStatus::kOk) {
            return;
        }
        if (!text &&
            (status == KyRefSysVarStatus::kOutOfRange || status == KyRefSysVarStatus::kWrongType)) {
            context.message(L"%ls", error.kwszPtr());
            continue;
        }
        context.fail(L"%ls", error.kwszPtr());
    }
}
