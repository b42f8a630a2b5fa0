// The runtime classes of the platform's reflection library, made known by
// name. Each desc() registers its class at the first call.
#include "rx/KyRxBoxedValue.h"
#include "rx/KyRxDictionary.h"
#include "rx/KyRxDynamicLinker.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxMethod.h"
#include "rx/KyRxPlatformInit.h"
#include "rx/KyRxProperty.h"
#include "rx/KyRxPropertyExpressionPE.h"
#include "rx/KyRxStandardAttributes.h"
#include "rx/KyRxValueType.h"
#include "rx/KyRxVariablesDictionary.h"

void kyrxRegisterRuntimeClasses() {
    using Desc = KyRxClass* (*)();
    static const Desc kClasses[] = {
        &KyRxObject::desc,
        &KyRxClass::desc,
        &KyRxValueType::desc,
        &KyRxDictionary::desc,
        &KyRxDynamicLinker::desc,
        &KyRxService::desc,
        &KyRxVariable::desc,
        &KyRxBoxedValue::desc,
        &KyRxBoxedValueOnStack::desc,
        &KyRxMember::desc,
        &KyRxPropertyBase::desc,
        &KyRxProperty::desc,
        &KyRxCollectionProperty::desc,
        &KyRxIndexedProperty::desc,
        &KyRxDictionaryProperty::desc,
        &KyRxPropertyExpressionPE::desc,
        &KyRxMethod::desc,
        &KyRxEnumTag::desc,
        &KyRxMemberQueryContext::desc,
        &KyRxFacetProvider::desc,
        &KyRxAttribute::desc,
        &KyRxAffinityAttribute::desc,
        &KyRxCumulativeAttribute::desc,
        &KyRxFlagsAttribute::desc,
        &KyRxDescriptionAttribute::desc,
        &KyRxLocalizedNameAttribute::desc,
        &KyRxDisplayAsAttribute::desc,
        &KyRxRefersToAttribute::desc,
        &KyRxUiPlacementAttribute::desc,
        &KyRxUnitTypeAttribute::desc,
    };
    for (Desc desc : kClasses) {
        desc();
    }
}
