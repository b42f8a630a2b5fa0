#include "db/KyDbEdgePart.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbEntityPartMembers.h"

namespace {

const KyDbPropertyRow kEdgeRows[] = {
    {L"StartPoint", kydbiPartAccess<&KyDbEdgePart::getStartPoint>(), KyDbCategory::kGeometry, 1},
    {L"EndPoint", kydbiPartAccess<&KyDbEdgePart::getEndPoint>(), KyDbCategory::kGeometry, 2},
    {L"Length", kydbiPartAccess<&KyDbEdgePart::getLength>(), KyDbCategory::kGeometry, 3},
};

}  // namespace

KYDB_DEFINE_BASE_CLASS(KyDbEdgePart, KyDbEntityPart, kEdgeRows)

KyDbEdgePart::KyDbEdgePart(KyDbObjectId entityId, int index, KyDb::OpenMode mode)
    : KyDbEntityPart(entityId, KyDbSubentId(KyDb::kEdgeSubentType, index), mode) {}

KyDbEdgePart::~KyDbEdgePart() = default;

Kyro::ErrorStatus KyDbEdgePart::getStartPoint(KyGePoint3d& point) const {
    return read(&Geometry::start, point);
}

Kyro::ErrorStatus KyDbEdgePart::getEndPoint(KyGePoint3d& point) const {
    return read(&Geometry::end, point);
}

Kyro::ErrorStatus KyDbEdgePart::getLength(double& length) const {
    return read(&Geometry::length, length);
}
