// Not part of the interface: the manager's operations for the rest of the
// data item layer.
#pragma once

class KyDiImpEffectiveProperty;
class KyDiItem;
class KyRxMember;
class KyRxObject;
class KyRxPropertyBase;

class KyDiManagerModule {
public:
    // Tells every data item reactor that `item` is being destroyed. The walk
    // goes over a copy of the reactor list: a reactor added or removed during
    // the walk counts from the next notification on.
    static void notifyItemDeleted(KyDiItem* item);

    // Notes that `wrapper` stands for the host member `hostMember`. The
    // wrapper is deleted when the host member goes, or at uninitialize. A
    // later wrapper for the same member replaces the entry (the earlier one
    // is not deleted). Null for either does nothing.
    static void registerWrappedMember(const KyRxMember* hostMember, KyRxMember* wrapper);

    // The property `name` of `object`, as a reference path resolves it; null
    // when the object has none, or the member found is not a property.
    static const KyRxPropertyBase* resolveReferenceProperty(const KyRxObject* object,
                                                            const wchar_t* name);

    // The drawing's effective property, made at its first demand and bound
    // to the current document when there is one with a database.
    static KyDiImpEffectiveProperty* getDrawingEffectiveProperty();
};
