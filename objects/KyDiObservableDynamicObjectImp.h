// Not part of the interface: the reactor list of an observable dynamic object.
#pragma once

#include "kydi/KyDiObservableDynamicObject.h"

class KyDiObservableDynamicObjectImp {
public:
    KyDiObservableDynamicObjectImp() : reactors(0, 8) {}
    virtual ~KyDiObservableDynamicObjectImp() = default;

    // Not owned.
    KyDiDynamicObjectReactorArray reactors;
};
