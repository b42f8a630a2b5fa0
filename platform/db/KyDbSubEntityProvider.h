// KyDbSubEntityProvider: opens the part of a selected object that a
// sub-entity id names, as an object of its own, and closes it again.
//
//   KyRxObject* part = nullptr;
//   if (KyDbSubEntityProvider::open(reference, part, subentId, KyDb::kForRead) == Kyro::eOk) {
//       ...
//       KyDbSubEntityProvider::close(reference, part);
//   }
//
// The object must be open for read or write (eInvalidOpenState otherwise).
// The parts that can be opened:
// - the attributes of a block reference (KyDb::kAttributeSubentType, by
//   index among those not erased): the attribute itself, opened in `mode`
//   with the failures of kydbOpenObject;
// - the faces, edges and vertices of an entity (KyDbEntityParts.h says which
//   classes have which): a KyDbVertexPart, KyDbEdgePart or KyDbFacePart that
//   stands for the part and is read-only in every mode. It is opened in
//   `mode` (eInvalidInput for another mode); a write-open needs the entity
//   open for write (eWasNotOpenForWrite), and the entity must be in a
//   database (eNotInDatabase). Close it before the entity: it reads the
//   entity's geometry while it is open.
// - the selected cells of a table with a sub-selection (KyDbTable), by the
//   null id: a KyDbTableCellSelection, which close() deletes. Opened for
//   write, the table must be open for write (eWasNotOpenForWrite); for read
//   or notify its cells are read only.
// Any other id, an index past the last part of its kind, and a table without
// a sub-selection answer eNullSubentity: the object has no such part.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyroErrorStatus.h"
#include "db/KyDbEnums.h"
#include "db/KyDbSubentId.h"

class KyDbObject;
class KyRxObject;

class KYPLATFORM_API KyDbSubEntityProvider {
public:
    // `subEntity` is null on failure.
    static Kyro::ErrorStatus open(KyDbObject* object, KyRxObject*& subEntity,
                                  const KyDbSubentId& subentId, KyDb::OpenMode mode);
    // Closes what open gave for `object`, and nulls `subEntity`; eInvalidInput
    // for null, or for a part of another entity (which stays open).
    static Kyro::ErrorStatus close(KyDbObject* object, KyRxObject*& subEntity);
};
