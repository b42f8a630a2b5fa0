// Not part of the interface: the name of the colour that index 7 shows now,
// white or black by the background. Computed; it takes no writes.
#pragma once

#include "sysvars/KyUiImpSysVar.h"

class DisplayedWhiteColorSysVar : public KyUiImpSysVar {
public:
    using KyUiImpSysVar::KyUiImpSysVar;

protected:
    int getVar(resbuf* out) override;
    Kyro::ErrorStatus subSetValue(const resbuf& value, bool viaCommand) override;
};
