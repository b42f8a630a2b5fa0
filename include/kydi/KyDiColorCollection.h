// KyDiColorCollection: the colour list ("COLOR"), the palette behind a colour
// drop-down. KyDiManager::getKnownCollection(L"COLOR") answers an object of
// this class; a client casts it to reach addItem. The list only grows: ten
// fixed entries, then every colour that was current or was added.
#pragma once

#include "kydi/KyDiObservableCollection.h"

class KyCmColor;

class KYDI_API KyDiColorCollection : public KyDiObservableCollection {
public:
    explicit KyDiColorCollection(KyDiImpCollection* imp);
    ~KyDiColorCollection() override;

    // The item of `color`: the listed one of an equal colour, or a new entry.
    // A new entry is in getItems() when the call returns (for a list bound to
    // a drawing), and its reactors hear of it at the next refresh.
    KyDiDynamicObject* addItem(const KyCmColor& color);
};
