// Not part of the interface: the drawing's render presets ("RENDER_PRESETS"),
// as the host's render service lists them and in its order. Without the
// service the list is empty.
#pragma once

#include "collections/KyDiImpDictionaryItemCollection.h"

class KyDiImpRenderPresetCollection : public KyDiImpDictionaryItemCollection {
public:
    using KyDiImpDictionaryItemCollection::KyDiImpDictionaryItemCollection;

    bool subFillFromDatabase(bool initial, KyDbDatabase* db, KyDbObjectId& owner,
                             KyDiItemArray& list, KyArray<KyDbObjectId>& erased,
                             void** context) override;
};
