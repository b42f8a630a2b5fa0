// KyDiEffectivePropertyReactor: a client of an effective property. Once a
// refresh pass it is told which effective values changed: once for each key
// ("LAYER", "COLOR" ...), in a fixed order, or once that all of them may have
// changed (another drawing came in front), when it must read every value it
// shows again. Both do nothing by default.
#pragma once

#include "kydi/KyDiExport.h"

class KYDI_API KyDiEffectivePropertyReactor {
public:
    KyDiEffectivePropertyReactor();
    virtual ~KyDiEffectivePropertyReactor();

    virtual void propertyChanged(const wchar_t* key);
    virtual void allPropertiesChanged();
};
