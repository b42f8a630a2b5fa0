// Not part of the interface: the visual styles ("KYRO_VISUALSTYLE") a user is
// offered, in the order of the host's visual style service. A style the
// service leaves out (one for internal use) is not listed, though it stands
// in the drawing's dictionary. Without the service the list is empty.
#pragma once

#include "collections/KyDiImpDictionaryItemCollection.h"

class KyDiImpDataVisualStyleItemCollection : public KyDiImpDictionaryItemCollection {
public:
    using KyDiImpDictionaryItemCollection::KyDiImpDictionaryItemCollection;

    bool subFillFromDatabase(bool initial, KyDbDatabase* db, KyDbObjectId& owner,
                             KyDiItemArray& list, KyArray<KyDbObjectId>& erased,
                             void** context) override;
};
