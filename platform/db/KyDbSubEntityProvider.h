// KyDbSubEntityProvider: opens the part of a selected object that a
// sub-entity id names, as an object of its own, and closes it again.
//
//   KyRxObject* part = nullptr;
//   if (KyDbSubEntityProvider::open(reference, part, subentId, KyDb::kForRead) == Kyro::eOk) {
//       ...
//       KyDbSubEntityProvider::close(reference, part);
//   }
//
// The object must be open (eInvalidOpenState otherwise). The parts that can be
// opened:
// - an attribute of a block reference (KyDb::kAttributeSubentType, by index).
//   It opens in `mode` with the failures of kydbOpenObject;
// - the selected cells of a table with a sub-selection (KyDbTable), by the
//   null id: a KyDbTableCellSelection, which close() deletes. Opened for
//   write, the table must be open for write (eWasNotOpenForWrite); for read
//   or notify its cells are read only.
// Any other id, an index past the last attribute, and a table without a
// sub-selection answer eNullSubentity: the object has no such part.
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
    // Closes what open gave, and nulls `subEntity`; eInvalidInput for null.
    static Kyro::ErrorStatus close(KyDbObject* object, KyRxObject*& subEntity);
};
