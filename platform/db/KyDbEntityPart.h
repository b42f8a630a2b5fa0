// KyDbEntityPart: a face, an edge or a vertex of an entity, opened as an
// object of its own through KyDbSubEntityProvider, so that a palette can show
// the part of a selection: a vertex its position (KyDbVertexPart), an edge
// its end points and length (KyDbEdgePart), a face its area (KyDbFacePart).
// Which parts an entity has, and their geometry, is KyDbEntityParts's to say.
//
// A part stands for its entity's geometry as it is now: every read takes it
// from the entity, which must still be open for read or write
// (eInvalidOpenState once it is closed or has left memory), and answers
// eNullSubentity when the entity no longer has the part (a polyline that lost
// a vertex). The members are read-only in every mode: a part tells the mode
// it was opened in, and changes are made to the entity itself.
//
// The provider makes a part and deletes it at its close. While it exists an
// open part counts among the opens of kydbOpenObjectCount, so a part that is
// never closed shows up as an object left open.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyroErrorStatus.h"
#include "db/KyDbEnums.h"
#include "db/KyDbObjectId.h"
#include "db/KyDbSubentId.h"
#include "ge/KyGePoint3d.h"
#include "rx/KyRxObject.h"

class KyDbEntity;

class KYPLATFORM_API KyDbEntityPart : public KyRxObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbEntityPart);
    ~KyDbEntityPart() override;
    KyDbEntityPart(const KyDbEntityPart&) = delete;
    KyDbEntityPart& operator=(const KyDbEntityPart&) = delete;

    // What a part of an entity is made of; each kind fills its own fields.
    struct Geometry {
        KyGePoint3d start;    // a vertex's position, an edge's start point
        KyGePoint3d end;      // an edge's end point
        double length = 0.0;  // an edge's length
        double area = 0.0;    // a face's area
    };

    KyDbObjectId entityId() const { return m_entityId; }
    const KyDbSubentId& subentId() const { return m_subentId; }
    KyDb::OpenMode openMode() const { return m_mode; }

    // The part of `entity` (database-resident and open) named by `subentId`,
    // a face, an edge or a vertex that the entity has; null otherwise.
    static KyDbEntityPart* create(const KyDbEntity& entity, const KyDbSubentId& subentId,
                                  KyDb::OpenMode mode);

protected:
    KyDbEntityPart(KyDbObjectId entityId, const KyDbSubentId& subentId, KyDb::OpenMode mode);
    // The part's geometry as its entity has it now.
    Kyro::ErrorStatus geometry(Geometry& geometry) const;
    // One field of it.
    template <typename T>
    Kyro::ErrorStatus read(T Geometry::*field, T& value) const {
        Geometry current;
        const Kyro::ErrorStatus status = geometry(current);
        if (status == Kyro::eOk) {
            value = current.*field;
        }
        return status;
    }

private:
    KyDbObjectId m_entityId;
    KyDbSubentId m_subentId;
    KyDb::OpenMode m_mode;
};
