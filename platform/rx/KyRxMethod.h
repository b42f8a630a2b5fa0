// KyRxMethod: a reflected operation of a class, and KyRxEnumTag: one named
// value of an enumerated value type.
#pragma once

#include "rx/KyRxMember.h"
#include "rx/KyRxValue.h"

using KyRxValueArray = KyArray<KyRxValue, KyArrayObjectCopyReallocator<KyRxValue>>;

class KYPLATFORM_API KyRxMethod : public KyRxMember {
public:
    KYRX_DECLARE_MEMBERS(KyRxMethod);
    Kyro::ErrorStatus invoke(KyRxObject* object, const KyRxValueArray& arguments,
                             KyRxValue& result) const;

protected:
    KyRxMethod(const wchar_t* name, const KyRxValueType& returnType,
               const KyRxObject* owner = nullptr);
    virtual Kyro::ErrorStatus subInvoke(KyRxObject* object, const KyRxValueArray& arguments,
                                        KyRxValue& result) const;
};

class KYPLATFORM_API KyRxEnumTag : public KyRxMember {
public:
    KYRX_DECLARE_MEMBERS(KyRxEnumTag);
    // A tag of the value's type, owned by that type; its local name comes
    // from a KyRxLocalizedNameAttribute added to it.
    KyRxEnumTag(const wchar_t* name, const KyRxValue& value);
    const KyRxValue& value() const { return m_value; }

private:
    KyRxValue m_value;
};
