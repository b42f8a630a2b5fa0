// Internal to the drawing database; not part of the platform's interface.
//
// Runtime classes of the database whose objects can be made by class (a
// reader makes a record from its class name: kyrxFindKyRxClass(name)->create()).
#pragma once

#include "rx/KyRxClass.h"
#include "rx/KyRxObject.h"

template <typename T>
KyRxObject* kydbiConstruct() {
    return new T();
}

#define KYDB_DEFINE_MEMBERS(CLASS, PARENT) \
    KYRX_DEFINE_MEMBERS_EX(CLASS, PARENT, &kydbiConstruct<CLASS>, nullptr)
