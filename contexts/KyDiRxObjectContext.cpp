#include "contexts/KyDiRxObjectContext.h"

#include "kydi/KyDiFunctions.h"
#include "manager/KyDiReflectedClasses.h"
#include "reflection/HostValueAccess.h"
#include "reflection/PropertyWrapping.h"
#include "reflection/WrapperSource.h"
#include "rx/KyRxProperty.h"

KYDI_DEFINE_CLASS_MEMBERS(KyDiRxObjectContext, kRxObjectContext)

namespace {

// The host member a property stands for: the source of a wrapper, or the
// property itself.
const KyRxMember* memberOf(const KyRxPropertyBase* property) {
    const KyRxMember* source = PropertyWrapping::sourceMember(property);
    return source != nullptr ? source : property;
}

}  // namespace

KyDiRxObjectContext::KyDiRxObjectContext(KyRxObject* object, const wchar_t* name)
    : KyDiContextBase(name), m_object(object) {}

KyDiRxObjectContext::~KyDiRxObjectContext() {
    delete m_object;
}

bool KyDiRxObjectContext::subIsActive() const {
    return m_object != nullptr;
}

void KyDiRxObjectContext::subDatabaseToBeDestroyed(void* /*database*/) {
    delete m_object;
    m_object = nullptr;
}

KyRxMemberIterator* KyDiRxObjectContext::subNewMemberIterator() {
    return m_object != nullptr ? newFilteredMemberIterator(m_object) : nullptr;
}

Kyro::ErrorStatus KyDiRxObjectContext::getValue(const KyRxPropertyBase* property, KyRxValue& value,
                                                int index, const wchar_t* key) {
    if (m_object == nullptr) {
        return Kyro::eNullObjectPointer;
    }
    if (KyDiProxy* proxy = WrapperSource::proxyOf(m_object)) {
        return proxy->getValue(property, value, index, key);
    }
    const Kyro::ErrorStatus status =
        HostValueAccess::readHostValue(m_object, memberOf(property), value, index, key);
    if (status == Kyro::eOk) {
        KyDiConvertToDataItem(value);
    }
    return status;
}

Kyro::ErrorStatus KyDiRxObjectContext::setValue(const KyRxPropertyBase* property,
                                                const KyRxValue& value, int index,
                                                const wchar_t* key) {
    if (m_object == nullptr) {
        return Kyro::eNullObjectPointer;
    }
    Kyro::ErrorStatus status;
    if (KyDiProxy* proxy = WrapperSource::proxyOf(m_object)) {
        status = proxy->setValue(property, value, index, key);
    } else {
        KyRxValue hostValue = value;
        KyDiConvertFromDataItem(property, hostValue);
        status =
            HostValueAccess::writeHostValue(m_object, memberOf(property), hostValue, index, key);
    }
    // The only context that reports its own writes: nothing else watches a
    // live object.
    notifyChanged(this, property != nullptr ? property->name() : nullptr, nullptr);
    return status;
}

KyRxValueIterator* KyDiRxObjectContext::newValueIterator(const KyRxPropertyBase* property) {
    if (m_object == nullptr) {
        return nullptr;
    }
    if (KyDiProxy* proxy = WrapperSource::proxyOf(m_object)) {
        return proxy->newValueIterator(property);
    }
    const auto* collection = kyrxCast<KyRxCollectionProperty>(memberOf(property));
    return collection != nullptr ? collection->newValueIterator(m_object) : nullptr;
}

KyDiContext* createKyDiRxObjectContext(KyRxObject* object, const wchar_t* name) {
    return new KyDiRxObjectContext(object, name != nullptr ? name : L"");
}

void deleteKyDiRxObjectContext(KyDiContext* context) {
    if (context != nullptr && context->isA()->isDerivedFrom(KyDiRxObjectContext::desc())) {
        delete static_cast<KyDiRxObjectContext*>(context);
    }
}
