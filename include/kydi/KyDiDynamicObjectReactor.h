// KyDiDynamicObjectReactor: told when an observable dynamic object changes.
#pragma once

#include "kydi/KyDiExport.h"

class KyDiDynamicObject;

class KYDI_API KyDiDynamicObjectReactor {
public:
    virtual ~KyDiDynamicObjectReactor();

    // `source` changed; `memberName` names the member when one is known (null
    // otherwise); `changeData` belongs to the object that reports.
    virtual void changed(KyDiDynamicObject* source, const wchar_t* memberName, void* changeData);
};
