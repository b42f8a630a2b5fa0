#include "sysvars/XrefOverrideBackgroundColorSysVar.h"

#include "db/KyCmColor.h"
#include "kydi/KyDiExternalReferenceHost.h"
#include "manager/host/KyDiHostAccess.h"
#include "sysvars/SysVarValue.h"

int XrefOverrideBackgroundColorSysVar::getVar(resbuf* out) {
    KyDiExternalReferenceHost* xrefHost = KyDiHostAccess::xrefHost();
    if (xrefHost == nullptr) {
        return KYRT_NORM;
    }
    KyCmColor color;
    xrefHost->getBackgroundOverride(color, nullptr);
    const KyString shown = color.colorNameForDisplay();
    SysVarValue::setText(
        *out, color.hasBookName() ? KyString(color.bookName()).concat(L"$").concat(shown) : shown);
    return KYRT_NORM;
}

Kyro::ErrorStatus XrefOverrideBackgroundColorSysVar::subSetValue(const resbuf& /*value*/,
                                                                 bool /*viaCommand*/) {
    return Kyro::eCannotSetSysVar;
}
