// KyDiDataValueReactor: told when an observed value (a system variable)
// changes, and when it becomes available or unavailable to the user. Both
// handlers do nothing by default.
#pragma once

#include "base/resbuf.h"
#include "kydi/KyDiExport.h"

class KYDI_API KyDiDataValueReactor {
public:
    virtual ~KyDiDataValueReactor();

    // The value changed; `value` belongs to the observed object and is valid
    // for the length of the call. It may be null when the value was dropped.
    virtual void valueChanged(const resbuf* value);
    // The value may now (true) or may no longer (false) be offered to the user.
    virtual void activeChanged(bool active);
};
