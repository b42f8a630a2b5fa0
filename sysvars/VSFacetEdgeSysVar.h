// Not part of the interface: a setting of facet edges, which means something
// only while facet edges are shown (VSEDGES 2).
#pragma once

#include "sysvars/ModelSpaceOnlySysVar.h"

class VSFacetEdgeSysVar : public ModelSpaceOnlySysVar {
public:
    using ModelSpaceOnlySysVar::ModelSpaceOnlySysVar;

protected:
    bool subIsActive() override;
};
