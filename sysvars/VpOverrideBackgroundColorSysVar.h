// Not part of the interface: the name of the background colour that the
// current viewport shows instead of the drawing's. Computed; it takes no
// writes.
#pragma once

#include "sysvars/KyUiImpSysVar.h"

class VpOverrideBackgroundColorSysVar : public KyUiImpSysVar {
public:
    using KyUiImpSysVar::KyUiImpSysVar;

protected:
    int getVar(resbuf* out) override;
    Kyro::ErrorStatus subSetValue(const resbuf& value, bool viaCommand) override;
};
