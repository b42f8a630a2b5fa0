// KyDiContext: a named, observable dynamic object that answers one question
// about the present state of the host (the drawing's current values, what is
// selected, which viewport is current). Clients order contexts by priority (a
// higher number is a more specific context) and show those that are active.
#pragma once

#include "kydi/KyDiObservableDynamicObject.h"

class KYDI_API KyDiContext : public KyDiObservableDynamicObject {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    bool isActive() const { return subIsActive(); }
    short priority() const { return subPriority(); }

protected:
    KyDiContext();
    ~KyDiContext() override;

    virtual bool subIsActive() const;
    virtual void subReset();
    virtual short subPriority() const;
};
