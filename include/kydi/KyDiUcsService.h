// KyDiUcsService: the user coordinate system of the current view.
#pragma once

#include "base/KyString.h"
#include "base/KyroErrorStatus.h"
#include "db/KyDbObjectId.h"
#include "kydi/KyDiExport.h"

class KYDI_API KyDiUcsService {
public:
    virtual ~KyDiUcsService() = default;

    // Name and record id of the current coordinate system; the id is null for
    // World and the orthographic planes ("Top", "Front" ...), which have no
    // record. Kyro::eOk on success.
    virtual Kyro::ErrorStatus getCurrent(KyString& name, KyDbObjectId& id) = 0;
};
