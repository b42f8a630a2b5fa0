// KyDbVertexPart: a vertex of an entity (KyDbEntityPart), shown by its
// position: the start (0) or end (1) of a line, a point of a polyline.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbEntityPart.h"

class KYPLATFORM_API KyDbVertexPart : public KyDbEntityPart {
public:
    KYRX_DECLARE_MEMBERS(KyDbVertexPart);
    KyDbVertexPart(KyDbObjectId entityId, int index, KyDb::OpenMode mode);
    ~KyDbVertexPart() override;

    // Reflected as "Position".
    Kyro::ErrorStatus getPosition(KyGePoint3d& position) const;
};
