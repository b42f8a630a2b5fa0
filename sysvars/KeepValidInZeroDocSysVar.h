// Not part of the interface: a variable of the drawing whose last value stays
// valid while no document is open, and which takes no writes then.
#pragma once

#include "sysvars/KyUiImpSysVar.h"

class KeepValidInZeroDocSysVar : public KyUiImpSysVar {
public:
    using KyUiImpSysVar::KyUiImpSysVar;

protected:
    // Refused (KYRT_REJECTED) without a current document, so that the last
    // value read stays.
    int getVar(resbuf* out) override;
    // eCannotSetSysVar without a current document.
    Kyro::ErrorStatus subSetValue(const resbuf& value, bool viaCommand) override;
};
