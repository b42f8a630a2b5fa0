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
    // The database an object works in: its own, or the working database for
    // an object that is not in one. May be null.
    static const KyDbDatabase* databaseOf(const KyDbObject* object);
    // The record or entry `name` (any case) of the table or dictionary that
    // `container` answers, in the database of `holder`: eInvalidInput for an
    // empty name, eNotInDatabase without a database, eKeyNotFound.
    static Kyro::ErrorStatus findNamed(const KyDbObject* holder,
                                       KyDbObjectId (KyDbDatabase::*container)() const,
                                       const wchar_t* name, KyDbObjectId& id);
    // One of the standard lineweights, or ByLayer, ByBlock, Default.
    static bool isStandardWeight(int weight);
};
