#include "sysvars/VpOverrideBackgroundColorSysVar.h"

#include "db/KyCmColor.h"
#include "kydi/KyDiViewportService.h"
#include "manager/host/KyDiHostAccess.h"
#include "sysvars/SysVarValue.h"

int VpOverrideBackgroundColorSysVar::getVar(resbuf* out) {
    KyDiViewportService* viewports = KyDiHostAccess::viewportService();
    if (viewports == nullptr) {
        return KYRT_NORM;
    }
    KyCmColor color;
    viewports->getBackgroundOverride(color);
    const KyString shown = color.colorNameForDisplay();
    SysVarValue::setText(
        *out, color.hasBookName() ? KyString(color.bookName()).concat(L"$").concat(shown) : shown);
    return KYRT_NORM;
}

Kyro::ErrorStatus VpOverrideBackgroundColorSysVar::subSetValue(const resbuf& /*value*/,
                                                               bool /*viaCommand*/) {
    return Kyro::eCannotSetSysVar;
}
