// KyDbEdgePart: an edge of an entity (KyDbEntityPart), shown by its end
// points and its length: a line, a segment of a polyline, a circle (which
// starts and ends at the point at angle 0), an arc.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbEntityPart.h"

class KYPLATFORM_API KyDbEdgePart : public KyDbEntityPart {
public:
    KYRX_DECLARE_MEMBERS(KyDbEdgePart);
    KyDbEdgePart(KyDbObjectId entityId, int index, KyDb::OpenMode mode);
    ~KyDbEdgePart() override;

    // Reflected as "StartPoint", "EndPoint" and "Length".
    Kyro::ErrorStatus getStartPoint(KyGePoint3d& point) const;
    Kyro::ErrorStatus getEndPoint(KyGePoint3d& point) const;
    Kyro::ErrorStatus getLength(double& length) const;
};
