// Not part of the interface: the plot style of new objects, whose value is
// shown in the user's language.
#pragma once

#include "sysvars/KyUiImpSysVar.h"

class CPlotStyleName : public KyUiImpSysVar {
public:
    using KyUiImpSysVar::KyUiImpSysVar;

protected:
    int getVar(resbuf* out) override;
};
