#include "db/KyDbFacePart.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbEntityPartMembers.h"

namespace {

const KyDbPropertyRow kFaceRows[] = {
    {L"Area", kydbiPartAccess<&KyDbFacePart::getArea>(), KyDbCategory::kGeometry, 1},
};

}  // namespace

KYDB_DEFINE_BASE_CLASS(KyDbFacePart, KyDbEntityPart, kFaceRows)

KyDbFacePart::KyDbFacePart(KyDbObjectId entityId, int index, KyDb::OpenMode mode)
    : KyDbEntityPart(entityId, KyDbSubentId(KyDb::kFaceSubentType, index), mode) {}

KyDbFacePart::~KyDbFacePart() = default;

Kyro::ErrorStatus KyDbFacePart::getArea(double& area) const {
    return read(&Geometry::area, area);
}
