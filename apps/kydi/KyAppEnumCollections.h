// KyAppEnumCollections: the collections of an enumeration's values that the
// program reaches by name, beside the known collections: "LINEWEIGHT" (with
// the current lineweight, as its tracker follows it) and "SHADOWDISPLAY" (a
// plain list; the tracker of that name answers its current item).
#pragma once

#include <string>

class IKyRxEnumeration;

class KyAppEnumCollections {
public:
    // The enumeration of the collection `name`; null for any other name.
    static const IKyRxEnumeration* find(const std::string& name);
};
