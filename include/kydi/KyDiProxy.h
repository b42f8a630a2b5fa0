// KyDiProxy: how a dynamic object lends its reflected access to another
// object. A property obtained from an object that is a proxy reads and writes
// through these three operations instead of on the object itself: an item
// reads its record, a context the object behind it.
#pragma once

#include "base/KyroErrorStatus.h"
#include "kydi/KyDiExport.h"

class KyRxPropertyBase;
class KyRxValue;
class KyRxValueIterator;

class KYDI_API KyDiProxy {
public:
    virtual ~KyDiProxy();

    // `index` is -1 and `key` null for a scalar property.
    virtual Kyro::ErrorStatus getValue(const KyRxPropertyBase* property, KyRxValue& value,
                                       int index, const wchar_t* key) = 0;
    virtual Kyro::ErrorStatus setValue(const KyRxPropertyBase* property, const KyRxValue& value,
                                       int index, const wchar_t* key) = 0;
    // The values of a collection property, or null; the caller deletes it.
    virtual KyRxValueIterator* newValueIterator(const KyRxPropertyBase* property) = 0;
};
