// Not part of the interface: a setting of the edges of a visual style, which
// means something only while edges are shown (VSEDGES not 0).
#pragma once

#include "sysvars/ModelSpaceOnlySysVar.h"

class VSEdgeSysVar : public ModelSpaceOnlySysVar {
public:
    using ModelSpaceOnlySysVar::ModelSpaceOnlySysVar;

protected:
    bool subIsActive() override;
};
