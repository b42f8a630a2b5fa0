// Not part of the interface: the materials ("KYRO_MATERIAL") of the drawing, a plain
// dictionary collection under the dictionary's key.
#pragma once

#include "collections/KyDiImpDictionaryItemCollection.h"

class KyDiImpDataMaterialItemCollection : public KyDiImpDictionaryItemCollection {
public:
    using KyDiImpDictionaryItemCollection::KyDiImpDictionaryItemCollection;
};
