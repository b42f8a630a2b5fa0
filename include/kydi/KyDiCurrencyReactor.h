// KyDiCurrencyReactor: told that the current item of a collection may have
// changed; the collection asks its tracker again at its next update.
#pragma once

#include "kydi/KyDiExport.h"

class KYDI_API KyDiCurrencyReactor {
public:
    virtual void currencyChanged() = 0;

protected:
    ~KyDiCurrencyReactor() = default;
};
