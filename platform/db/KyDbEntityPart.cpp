#include "db/KyDbEntityPart.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbEdgePart.h"
#include "db/KyDbEntity.h"
#include "db/KyDbEntityParts.h"
#include "db/KyDbFacePart.h"
#include "db/KyDbObjectAccess.h"
#include "db/KyDbVertexPart.h"

KYDB_DEFINE_CLASS_EX(KyDbEntityPart, KyRxObject, nullptr, nullptr)

KyDbEntityPart::KyDbEntityPart(KyDbObjectId entityId, const KyDbSubentId& subentId,
                               KyDb::OpenMode mode)
    : m_entityId(entityId), m_subentId(subentId), m_mode(mode) {
    ++KyDbObjectAccess::openCount();
}

KyDbEntityPart::~KyDbEntityPart() {
    --KyDbObjectAccess::openCount();
}

KyDbEntityPart* KyDbEntityPart::create(const KyDbEntity& entity, const KyDbSubentId& subentId,
                                       KyDb::OpenMode mode) {
    Geometry geometry;
    if (!entity.isDatabaseResident() || !KyDbEntityParts::find(entity, subentId, geometry)) {
        return nullptr;
    }
    switch (subentId.type()) {
        case KyDb::kFaceSubentType:
            return new KyDbFacePart(entity.objectId(), subentId.index(), mode);
        case KyDb::kEdgeSubentType:
            return new KyDbEdgePart(entity.objectId(), subentId.index(), mode);
        case KyDb::kVertexSubentType:
            return new KyDbVertexPart(entity.objectId(), subentId.index(), mode);
        default:
            return nullptr;
    }
}

Kyro::ErrorStatus KyDbEntityPart::geometry(Geometry& geometry) const {
    // The id tells safely whether the entity is still in memory.
    const KyDbEntity* entity =
        m_entityId.isValid() ? kyrxCast<KyDbEntity>(m_entityId.stub()->object) : nullptr;
    if (entity == nullptr || !entity->isReadEnabled()) {
        return Kyro::eInvalidOpenState;
    }
    return KyDbEntityParts::find(*entity, m_subentId, geometry) ? Kyro::eOk : Kyro::eNullSubentity;
}
