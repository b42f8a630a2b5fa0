// Not part of the interface: a hatch setting that names a symbol (the layer
// of new hatches). It is only ever set by command, with the name as typed.
#pragma once

#include "sysvars/KyUiImpSysVar.h"

class HatchSymbolSysVar : public KyUiImpSysVar {
public:
    using KyUiImpSysVar::KyUiImpSysVar;

protected:
    Kyro::ErrorStatus subSetValue(const resbuf& value, bool viaCommand) override;
};
