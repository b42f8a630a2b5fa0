#include "kydi/KyDiDynamicObject.h"

#include <mutex>

#include "kydi/KyDiContext.h"
#include "kydi/KyDiContextBase.h"
#include "manager/KyDiReflectedClasses.h"
#include "reflection/PropertyFilter.h"
#include "rx/KyRxDictionary.h"
#include "rx/KyRxMemberQueryEngine.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiDynamicObject, kDynamicObject)

KyDiDynamicObject::~KyDiDynamicObject() = default;

const KyRxValue* KyDiDynamicObject::value() const {
    return nullptr;
}

KyRxValue* KyDiDynamicObject::value() {
    return nullptr;
}

Kyro::ErrorStatus KyDiDynamicObject::value(KyRxValue& /*out*/) {
    return Kyro::eInvalidInput;
}

namespace {

// The layer selection context is a class of another module, which filters
// its members itself. It is looked up once; a host without that module
// remembers the null answer.
const KyRxClass* layerSelectionContextClass() {
    static std::once_flag s_once;
    static const KyRxClass* s_class = nullptr;
    std::call_once(s_once, [] {
        KyRxDictionary* classes = kyrxClassDictionary();
        s_class = kyrxCast<KyRxClass>(classes->at(L"KyDiLayerSelectionContext"));
    });
    return s_class;
}

}  // namespace

KyRxMemberIterator* KyDiDynamicObject::newMemberIterator() {
    const KyRxClass* layerSelectionContext = layerSelectionContextClass();
    KyRxMemberIterator* members = subNewMemberIterator();
    if (members == nullptr) {
        return nullptr;
    }
    // Items show all their members, and the layer's own contexts filter
    // themselves; a context of another module gets the palette's filter.
    if (!isKindOf(KyDiContext::desc()) || isKindOf(KyDiContextBase::desc()) ||
        isA() == layerSelectionContext) {
        return members;
    }
    KyRxMemberIterator* filtered = PropertyFilter::filter(this, members);
    delete members;
    return filtered;
}
