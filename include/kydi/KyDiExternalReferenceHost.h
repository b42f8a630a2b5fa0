// KyDiExternalReferenceHost: an optional second contract of the host, about
// the display of external references. The host hands it over with
// KyDiManager::initializeXRefHost.
#pragma once

#include "base/KyroErrorStatus.h"
#include "db/KyCmColor.h"
#include "kydi/KyDiExport.h"

class KyDbDatabase;

class KYDI_API KyDiExternalReferenceHost {
public:
    virtual ~KyDiExternalReferenceHost() = default;

    // The background colour shown behind the external references of
    // `database`, the current drawing when it is null.
    virtual Kyro::ErrorStatus getBackgroundOverride(KyCmColor& out, KyDbDatabase* database) = 0;
};
