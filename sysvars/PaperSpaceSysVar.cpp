#include "sysvars/PaperSpaceSysVar.h"

#include "manager/RefreshPass.h"

int PaperSpaceSysVar::getVar(resbuf* out) {
    out->restype = KYRB_SHORT;
    out->resval.rint = RefreshPass::inPaperSpace() ? 1 : 0;
    out->rbnext = nullptr;
    return KYRT_NORM;
}

Kyro::ErrorStatus PaperSpaceSysVar::subSetValue(const resbuf& /*value*/, bool /*viaCommand*/) {
    return Kyro::eCannotSetSysVar;
}
