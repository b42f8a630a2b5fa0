// Not part of the interface: how a database item reads and writes a property
// of its record, each access opening and closing the record by its id.
// `property` is a wrapper; the host member behind it does the work.
#pragma once

#include "base/KyroErrorStatus.h"
#include "db/KyDbObjectId.h"

class KyRxObject;
class KyRxPropertyBase;
class KyRxValue;
class KyRxValueIterator;

class DbValueAccess {
public:
    // Reads on the record open for read, erased or not. A reserved name comes
    // in the user's language, and the value as a data item.
    static Kyro::ErrorStatus readDbValue(KyDbObjectId id, const KyRxPropertyBase* property,
                                         KyRxValue& value, int index, const wchar_t* key);
    // Writes on the record open for write, under a document lock; a data
    // item is turned into the host's value first.
    static Kyro::ErrorStatus writeDbValue(KyDbObjectId id, const KyRxPropertyBase* property,
                                          const KyRxValue& value, int index, const wchar_t* key);
    // Hands the value as it stands to a property that opens the record for
    // write by itself: the record is open for read, without a lock.
    static Kyro::ErrorStatus writeDbValueInPlace(KyDbObjectId id, const KyRxPropertyBase* property,
                                                 const KyRxValue& value, int index,
                                                 const wchar_t* key);
    // The values of a collection property of an open object, read up front
    // and turned into data items; null without values.
    static KyRxValueIterator* newConvertedValueIterator(const KyRxObject* object,
                                                        const KyRxPropertyBase* property);
};
