// KyDbFacePart: a face of an entity (KyDbEntityPart), shown by its area: the
// area a closed polyline bounds.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbEntityPart.h"

class KYPLATFORM_API KyDbFacePart : public KyDbEntityPart {
public:
    KYRX_DECLARE_MEMBERS(KyDbFacePart);
    KyDbFacePart(KyDbObjectId entityId, int index, KyDb::OpenMode mode);
    ~KyDbFacePart() override;

    // Reflected as "Area".
    Kyro::ErrorStatus getArea(double& area) const;
};
