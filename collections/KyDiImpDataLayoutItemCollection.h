// Not part of the interface: the layouts ("KYRO_LAYOUT") of the drawing, a plain
// dictionary collection under the dictionary's key.
#pragma once

#include "collections/KyDiImpDictionaryItemCollection.h"

class KyDiImpDataLayoutItemCollection : public KyDiImpDictionaryItemCollection {
public:
    using KyDiImpDictionaryItemCollection::KyDiImpDictionaryItemCollection;
};
