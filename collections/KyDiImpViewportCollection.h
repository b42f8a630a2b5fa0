// Not part of the interface: the drawing's viewport configurations that a
// user saved under a name. The host's own configurations, whose names begin
// with "*" (the active one among them), are not listed, and their changes
// are not reported.
#pragma once

#include "collections/KyDiImpSymbolTableItemCollection.h"

class KyDiImpViewportCollection : public KyDiImpSymbolTableItemCollection {
public:
    using KyDiImpSymbolTableItemCollection::KyDiImpSymbolTableItemCollection;

    bool subIncludeRecord(const KyDbSymbolTableRecord* record) const override;
};
