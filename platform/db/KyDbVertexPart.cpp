#include "db/KyDbVertexPart.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbEntityPartMembers.h"

namespace {

const KyDbPropertyRow kVertexRows[] = {
    {L"Position", kydbiPartAccess<&KyDbVertexPart::getPosition>(), KyDbCategory::kGeometry, 1},
};

}  // namespace

KYDB_DEFINE_BASE_CLASS(KyDbVertexPart, KyDbEntityPart, kVertexRows)

KyDbVertexPart::KyDbVertexPart(KyDbObjectId entityId, int index, KyDb::OpenMode mode)
    : KyDbEntityPart(entityId, KyDbSubentId(KyDb::kVertexSubentType, index), mode) {}

KyDbVertexPart::~KyDbVertexPart() = default;

Kyro::ErrorStatus KyDbVertexPart::getPosition(KyGePoint3d& position) const {
    return read(&Geometry::start, position);
}
