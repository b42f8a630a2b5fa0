// KyRxMethod: invoke passes through subInvoke. KyRxEnumTag: a named value of
// an enumerated value type, owned by that type.
#include "rx/KyRxMethod.h"

KYRX_DEFINE_MEMBERS(KyRxMethod, KyRxMember)
KYRX_DEFINE_MEMBERS(KyRxEnumTag, KyRxMember)

KyRxMethod::KyRxMethod(const wchar_t* name, const KyRxValueType& returnType,
                       const KyRxObject* owner)
    : KyRxMember(name, returnType, owner) {}

Kyro::ErrorStatus KyRxMethod::invoke(KyRxObject* object, const KyRxValueArray& arguments,
                                     KyRxValue& result) const {
    return subInvoke(object, arguments, result);
}

Kyro::ErrorStatus KyRxMethod::subInvoke(KyRxObject* /*object*/, const KyRxValueArray& /*arguments*/,
                                        KyRxValue& /*result*/) const {
    return Kyro::eNotImplementedYet;
}

KyRxEnumTag::KyRxEnumTag(const wchar_t* name, const KyRxValue& value)
    : KyRxMember(name, value.type(), &value.type()), m_value(value) {}
