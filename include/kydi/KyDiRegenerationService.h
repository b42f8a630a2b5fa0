// KyDiRegenerationService: redraws what depends on layers after their
// settings were changed behind the host's commands.
#pragma once

#include "base/KyArray.h"
#include "db/KyDbObjectId.h"
#include "kydi/KyDiExport.h"

class KYDI_API KyDiRegenerationService {
public:
    virtual ~KyDiRegenerationService() = default;

    // Redraws the objects on the layers `layerIds`, in the way `mode` says.
    virtual void regenLayers(const KyArray<KyDbObjectId>& layerIds, int mode) = 0;
    // The mode that regenLayers is to be called with now.
    virtual int regenMode() = 0;
};
