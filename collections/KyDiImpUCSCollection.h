// Not part of the interface: the named user coordinate systems of the
// drawing. The current one is asked for again whenever the host reports that
// the user coordinate system changed.
#pragma once

#include "collections/KyDiImpSymbolTableItemCollection.h"

class KyDiImpUCSCollection : public KyDiImpSymbolTableItemCollection {
public:
    using KyDiImpSymbolTableItemCollection::KyDiImpSymbolTableItemCollection;

    void subUcsChanged() override;
};
