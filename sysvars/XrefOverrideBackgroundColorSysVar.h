// Not part of the interface: the name of the background colour shown behind
// external references, from the external reference host. Computed; it takes
// no writes.
#pragma once

#include "sysvars/KyUiImpSysVar.h"

class XrefOverrideBackgroundColorSysVar : public KyUiImpSysVar {
public:
    using KyUiImpSysVar::KyUiImpSysVar;

protected:
    int getVar(resbuf* out) override;
    Kyro::ErrorStatus subSetValue(const resbuf& value, bool viaCommand) override;
};
