// Not part of the interface: a variable that the ordinary set path refuses.
// It is written directly to the host's variable object instead.
#pragma once

#include "sysvars/KyUiImpSysVar.h"

class ReadOnlySysVar : public KyUiImpSysVar {
public:
    using KyUiImpSysVar::KyUiImpSysVar;

protected:
    Kyro::ErrorStatus subSetValue(const resbuf& value, bool viaCommand) override;
};
