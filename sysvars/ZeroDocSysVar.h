// Not part of the interface: 1 while the host has no document open, else 0.
// Computed; it takes no writes.
#pragma once

#include "sysvars/KyUiImpSysVar.h"

class ZeroDocSysVar : public KyUiImpSysVar {
public:
    using KyUiImpSysVar::KyUiImpSysVar;

protected:
    int getVar(resbuf* out) override;
    Kyro::ErrorStatus subSetValue(const resbuf& value, bool viaCommand) override;
};
