// Not part of the interface: the colour of intersection edges, which means
// something only while facet edges (VSEDGES 2) and intersection edges are
// shown.
#pragma once

#include "sysvars/ModelSpaceOnlySysVar.h"

class VSIntersectionEdgeColorSysVar : public ModelSpaceOnlySysVar {
public:
    using ModelSpaceOnlySysVar::ModelSpaceOnlySysVar;

protected:
    bool subIsActive() override;
};
