// KyDiObjectReactor: watches one database object through the manager
// (KyDiManager::addObjectReactor) without being a database reactor itself.
// It is told at the next refresh pass, never in the middle of a database
// operation, and when the object's document stops or starts being the current
// one. Every operation does nothing by default.
#pragma once

#include "kydi/KyDiExport.h"

class KYDI_API KyDiObjectReactor {
public:
    virtual ~KyDiObjectReactor();

    // The object was changed; `reserved` is null.
    virtual void modified(void* reserved);
    // The object's document stopped (false) or started (true) being the
    // current document.
    virtual void activeChanged(bool active);
    // The object was erased or left memory. The reactor is required to call
    // KyDiManager::removeObjectReactor here; it hears nothing more.
    virtual void erased();
};
