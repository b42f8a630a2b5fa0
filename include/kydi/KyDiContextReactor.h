// KyDiContextReactor: a client of the context manager. Once a refresh pass it
// is told either that the set of active contexts (or the document in front)
// changed, and it must read again whatever it reads, or once for each
// context that reported a change. Both do nothing by default.
#pragma once

#include "kydi/KyDiExport.h"

struct KyDiContextChange;

class KYDI_API KyDiContextReactor {
public:
    KyDiContextReactor();
    virtual ~KyDiContextReactor();

    virtual void contextChanged(const KyDiContextChange* change);
    virtual void activeContextsChanged();
};
