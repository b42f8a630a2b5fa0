// Not part of the interface: the linetypes a user may pick: not those of
// external references, nor those the host hides while a trace is shown.
#pragma once

#include "collections/KyDiImpSymbolTableItemCollection.h"

class KyDiImpLineTypeCollection : public KyDiImpSymbolTableItemCollection {
public:
    using KyDiImpSymbolTableItemCollection::KyDiImpSymbolTableItemCollection;

    bool subIncludeRecord(const KyDbSymbolTableRecord* record) const override;
};
