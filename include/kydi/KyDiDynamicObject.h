// KyDiDynamicObject: the root of everything the data item layer gives a
// client. It knows no static type of its own: it has a value (or none) and a
// list of reflected members, which a client walks with newMemberIterator and
// reads and writes as the reflection allows.
#pragma once

#include "base/KyArray.h"
#include "kydi/KyDiExport.h"
#include "rx/KyRxBoxedValue.h"

class KyRxMember;
class KyRxMemberIterator;
class KyDiDynamicObject;

// A list of dynamic objects, as collections hand them out. The array holds
// pointers; whoever made the objects owns them.
using KyDiItemArray = KyArray<KyDiDynamicObject*, KyArrayMemCopyReallocator<KyDiDynamicObject*>>;
// A list of members, as a dynamic object builds the list it shows.
using KyDiMemberArray = KyArray<KyRxMember*, KyArrayMemCopyReallocator<KyRxMember*>>;

class KYDI_API KyDiDynamicObject : public KyRxBoxedValue {
public:
    // The class registered under "KyDiDynamicObject"; null before the layer
    // has started.
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    ~KyDiDynamicObject() override;

    // The object's value; null for an object without one (a context).
    const KyRxValue* value() const override;
    KyRxValue* value() override;
    // A copy of the value into `out`: eInvalidInput, with `out` untouched,
    // for an object without one.
    virtual Kyro::ErrorStatus value(KyRxValue& out);

    // The members as a client is to see them; the caller deletes the
    // iterator. Null when the object has nothing to show. An item shows all
    // its members; a context of another module is filtered to the properties
    // a palette places and can read now.
    KyRxMemberIterator* newMemberIterator();

protected:
    KyDiDynamicObject() = default;
    virtual KyRxMemberIterator* subNewMemberIterator() = 0;
};
