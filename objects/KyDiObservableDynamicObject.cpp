#include "kydi/KyDiObservableDynamicObject.h"

#include "kydi/KyDiDynamicObjectReactor.h"
#include "manager/KyDiReflectedClasses.h"
#include "objects/KyDiObservableDynamicObjectImp.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiObservableDynamicObject, kObservableDynamicObject)

KyDiObservableDynamicObject::KyDiObservableDynamicObject()
    : m_imp(new KyDiObservableDynamicObjectImp()) {}

KyDiObservableDynamicObject::~KyDiObservableDynamicObject() {
    delete m_imp;
    m_imp = nullptr;
}

void KyDiObservableDynamicObject::addReactor(KyDiDynamicObjectReactor* reactor) {
    if (reactor != nullptr) {
        m_imp->reactors.append(reactor);
    }
}

void KyDiObservableDynamicObject::removeReactor(KyDiDynamicObjectReactor* reactor) {
    if (reactor != nullptr) {
        m_imp->reactors.remove(reactor);
    }
}

KyDiDynamicObjectReactorArray KyDiObservableDynamicObject::getReactors() const {
    return m_imp->reactors;
}

void KyDiObservableDynamicObject::notifyChanged(KyDiDynamicObject* source,
                                                const wchar_t* memberName, void* changeData) {
    const KyDiDynamicObjectReactorArray reactors = getReactors();
    for (int i = reactors.length() - 1; i >= 0; --i) {
        reactors[i]->changed(source, memberName, changeData);
    }
}
