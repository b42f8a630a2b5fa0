// Not part of the interface: the sky of the current view. It means something
// only in a perspective view of model space, and switching it in model space
// turns perspective on first.
#pragma once

#include "sysvars/KeepValidInZeroDocSysVar.h"

class SkyStatusSysVar : public KeepValidInZeroDocSysVar {
public:
    using KeepValidInZeroDocSysVar::KeepValidInZeroDocSysVar;

protected:
    bool subIsActive() override;
    Kyro::ErrorStatus subSetValue(const resbuf& value, bool viaCommand) override;
};
