// KyDiCollection: what a client holds of a list of items, one pointer over an
// implementation that the data item layer builds and owns. A client deletes
// nothing it is given: collections come from KyDiManager and belong to it.
#pragma once

#include "kydi/KyDiDynamicObject.h"

class KyDiImpCollection;

class KYDI_API KyDiCollection {
public:
    // Takes over `imp`.
    explicit KyDiCollection(KyDiImpCollection* imp);
    virtual ~KyDiCollection();
    KyDiCollection(const KyDiCollection&) = delete;
    KyDiCollection& operator=(const KyDiCollection&) = delete;

    // The items as they stand after the last update. When `context` isn't
    // null it receives the context the items were filled with.
    const KyDiItemArray& getItems(void** context = nullptr) const;

    // The implementation, for the library's own use.
    KyDiImpCollection* imp() const { return m_imp; }

private:
    KyDiImpCollection* m_imp;
};
