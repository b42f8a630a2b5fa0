// KyDbFullSubentPath: a sub-entity of a selection, fully named: the ids from
// the selected entity down to the entity that holds the part (one id for a
// part of a plain entity), and the part itself.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyArray.h"
#include "db/KyDbObjectId.h"
#include "db/KyDbSubentId.h"

class KYPLATFORM_API KyDbFullSubentPath {
public:
    KyDbFullSubentPath();
    KyDbFullSubentPath(KyDbObjectId entityId, const KyDbSubentId& subentId);
    KyDbFullSubentPath(const KyArray<KyDbObjectId>& objectIds, const KyDbSubentId& subentId);
    KyDbFullSubentPath(const KyDbFullSubentPath& other);
    KyDbFullSubentPath& operator=(const KyDbFullSubentPath& other);
    ~KyDbFullSubentPath();

    // The ids, the selected entity first.
    const KyArray<KyDbObjectId>& objectIds() const { return m_objectIds; }
    KyArray<KyDbObjectId>& objectIds() { return m_objectIds; }
    const KyDbSubentId& subentId() const { return m_subentId; }
    KyDbSubentId& subentId() { return m_subentId; }

    // Same ids in the same order and the same part.
    bool operator==(const KyDbFullSubentPath& other) const;
    bool operator!=(const KyDbFullSubentPath& other) const { return !(*this == other); }

private:
    KyArray<KyDbObjectId> m_objectIds;
    KyDbSubentId m_subentId;
};
