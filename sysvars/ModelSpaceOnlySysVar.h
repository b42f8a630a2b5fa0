// Not part of the interface: a variable that only means something in model
// space, outside the block editor.
#pragma once

#include "sysvars/KyUiImpSysVar.h"

class ModelSpaceOnlySysVar : public KyUiImpSysVar {
public:
    using KyUiImpSysVar::KyUiImpSysVar;

protected:
    bool subIsActive() override;
};
