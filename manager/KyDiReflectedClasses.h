// Not part of the interface: the runtime classes of the data item layer, as
// registered by initialize and deleted by uninitialize.
#pragma once

#include "rx/KyRxClass.h"

class KyDiReflectedClasses {
public:
    // Registers class `name` under `parentName`, which may come later, and
    // keeps the descriptor in `descriptor`. When `descriptor` is set already
    // and the registry holds it under the name, nothing is done; when the
    // registry holds another class under the name, the process stops with
    // "Class mismatch".
    static void registerClass(KyRxClass*& descriptor, const wchar_t* name,
                              const wchar_t* parentName,
                              KyRxMemberCollectionConstructorPtr memberBuilder);
    // Deletes the class kept in `descriptor`, or else the class registered
    // under `name`, and clears `descriptor`.
    static void deleteClass(KyRxClass*& descriptor, const wchar_t* name);

    // Every class of the data item layer, in registration order; the class
    // tree is linked afterwards by the caller.
    static void registerAll();
    // Every class of the data item layer, children before their parents.
    static void deleteAll();
};
