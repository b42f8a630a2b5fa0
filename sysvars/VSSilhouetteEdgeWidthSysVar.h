// Not part of the interface: the width of silhouette edges, which means
// something only while they are shown (VSSILHEDGES not 0).
#pragma once

#include "sysvars/ModelSpaceOnlySysVar.h"

class VSSilhouetteEdgeWidthSysVar : public ModelSpaceOnlySysVar {
public:
    using ModelSpaceOnlySysVar::ModelSpaceOnlySysVar;

protected:
    bool subIsActive() override;
};
