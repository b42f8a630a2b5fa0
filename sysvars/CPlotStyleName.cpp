#include "sysvars/CPlotStyleName.h"

#include "db/KyDbReservedStrings.h"
#include "kydi/KyDiEditorService.h"
#include "manager/host/KyDiHostAccess.h"
#include "sysvars/SysVarValue.h"

namespace {

// The reserved names a plot style can carry, in the order they are tried.
constexpr KyDb::ReservedStringEnumType kPlotStyleNames[] = {
    KyDb::kNormal,
    KyDb::kByLayer,
    KyDb::kByBlock,
    KyDb::kByColor,
};

}  // namespace

int CPlotStyleName::getVar(resbuf* out) {
    if (out == nullptr) {
        return KYRT_ERROR;
    }
    KyDiEditorService* editor = KyDiHostAccess::editor();
    if (editor == nullptr) {
        return 0;
    }
    const int result = editor->getVar(name(), out);
    if (result != KYRT_NORM || out->restype != KYRB_STRING) {
        return result;
    }
    // The host gives a reserved name in its global form, as the drawing
    // stores it; the user reads it in the local form.
    for (const KyDb::ReservedStringEnumType kind : kPlotStyleNames) {
        if (!kydbIsReservedString(out->resval.rstring, kind)) {
            continue;
        }
        const wchar_t* local = kydbGetReservedString(kind, true);
        if (local != nullptr && local[0] != L'\0') {
            SysVarValue::setText(*out, local);
            break;
        }
    }
    return result;
}
