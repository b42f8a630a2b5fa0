// Not part of the interface: the colour of obscured edges, which means
// something only while facet edges (VSEDGES 2) and obscured edges are shown.
#pragma once

#include "sysvars/ModelSpaceOnlySysVar.h"

class VSObscuredColorSysVar : public ModelSpaceOnlySysVar {
public:
    using ModelSpaceOnlySysVar::ModelSpaceOnlySysVar;

protected:
    bool subIsActive() override;
};
