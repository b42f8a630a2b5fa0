// Internal to the drawing database; not part of the platform's interface.
//
// KyDbRecordReference: the checks an object makes on an id it is given to
// keep (a layer's linetype, an entity's layer, a layout's block), and lookups
// of standard records without opening anything.
#pragma once

#include "base/KyroErrorStatus.h"
#include "db/KyDbEnums.h"
#include "db/KyDbObjectId.h"

class KyDbDatabase;
class KyDbObject;
class KyRxClass;

class KyDbRecordReference {
public:
    // eOk when `id` may be kept by `holder`: not null (eNullObjectId), not
    // gone (eInvalidObjectId), of `recordClass` (eNotThatKindOfClass), of the
    // holder's database when the holder is in one (eWrongDatabase), not
    // erased (eWasErased).
    static Kyro::ErrorStatus check(const KyDbObject* holder, KyDbObjectId id,
                                   const KyRxClass* recordClass);
    // The record `name` of the table `tableId`, null if none (or if `tableId`
    // is not a table).
    static KyDbObjectId recordNamed(const KyDbDatabase* database, KyDbObjectId tableId,
                                    const wchar_t* name);
    // One of the standard lineweights, or ByLayer, ByBlock, Default.
    static bool isStandardWeight(int weight);
};
