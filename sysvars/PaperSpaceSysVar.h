// Not part of the interface: 1 while the paper space viewport of a layout is
// current, as the last refresh pass read it. Computed; it takes no writes.
#pragma once

#include "sysvars/KyUiImpSysVar.h"

class PaperSpaceSysVar : public KyUiImpSysVar {
public:
    using KyUiImpSysVar::KyUiImpSysVar;

protected:
    int getVar(resbuf* out) override;
    Kyro::ErrorStatus subSetValue(const resbuf& value, bool viaCommand) override;
};
