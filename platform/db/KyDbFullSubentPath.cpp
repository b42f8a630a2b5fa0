#include "db/KyDbFullSubentPath.h"

KyDbFullSubentPath::KyDbFullSubentPath() = default;

KyDbFullSubentPath::KyDbFullSubentPath(KyDbObjectId entityId, const KyDbSubentId& subentId)
    : m_subentId(subentId) {
    m_objectIds.append(entityId);
}

KyDbFullSubentPath::KyDbFullSubentPath(const KyArray<KyDbObjectId>& objectIds,
                                       const KyDbSubentId& subentId)
    : m_objectIds(objectIds), m_subentId(subentId) {}

KyDbFullSubentPath::KyDbFullSubentPath(const KyDbFullSubentPath& other) = default;

KyDbFullSubentPath& KyDbFullSubentPath::operator=(const KyDbFullSubentPath& other) = default;

KyDbFullSubentPath::~KyDbFullSubentPath() = default;

bool KyDbFullSubentPath::operator==(const KyDbFullSubentPath& other) const {
    return m_subentId == other.m_subentId && m_objectIds == other.m_objectIds;
}
