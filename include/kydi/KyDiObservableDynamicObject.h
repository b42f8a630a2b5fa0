// KyDiObservableDynamicObject: a dynamic object with a list of reactors that
// are told when it changes. The list is not owned: a client removes its
// reactor before the reactor or the object goes.
#pragma once

#include "kydi/KyDiDynamicObject.h"

class KyDiDynamicObjectReactor;
class KyDiObservableDynamicObjectImp;

using KyDiDynamicObjectReactorArray =
    KyArray<KyDiDynamicObjectReactor*, KyArrayMemCopyReallocator<KyDiDynamicObjectReactor*>>;

class KYDI_API KyDiObservableDynamicObject : public KyDiDynamicObject {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    ~KyDiObservableDynamicObject() override;
    KyDiObservableDynamicObject(const KyDiObservableDynamicObject&) = delete;
    KyDiObservableDynamicObject& operator=(const KyDiObservableDynamicObject&) = delete;

    // Null is ignored; a reactor added twice stands twice.
    void addReactor(KyDiDynamicObjectReactor* reactor);
    // Null and unknown reactors are ignored; removes the first match.
    void removeReactor(KyDiDynamicObjectReactor* reactor);
    // A copy of the list: what a notification walks, so that a reactor may
    // add or remove reactors while it is told.
    KyDiDynamicObjectReactorArray getReactors() const;

protected:
    KyDiObservableDynamicObject();

    // Tells every reactor, from the last to the first, on a copy of the list.
    void notifyChanged(KyDiDynamicObject* source, const wchar_t* memberName, void* changeData);

private:
    KyDiObservableDynamicObjectImp* m_imp;
};
