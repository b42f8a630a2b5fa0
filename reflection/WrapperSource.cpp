#include "reflection/WrapperSource.h"

#include <memory>

#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiProxy.h"
#include "reflection/HostValueAccess.h"
#include "reflection/PropertyWrapping.h"
#include "rx/KyRxProperty.h"

void WrapperSource::shareAttributes(KyRxMember& wrapper) const {
    if (m_source == nullptr) {
        return;
    }
    const KyRxAttributeCollection& attributes = m_source->attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        wrapper.attributes().add(const_cast<KyRxAttribute*>(attributes.getAt(i)));
    }
}

void WrapperSource::releaseAttributes(KyRxMember& wrapper) {
    KyRxAttributeCollection& attributes = wrapper.attributes();
    while (attributes.count() > 0) {
        attributes.remove(attributes.getAt(attributes.count() - 1));
    }
}

bool WrapperSource::isReadOnly() const {
    const auto* property = kyrxCast<KyRxPropertyBase>(m_source);
    return property == nullptr || property->isReadOnly();
}

KyString WrapperSource::localName() const {
    return m_source != nullptr ? m_source->localName() : KyString();
}

Kyro::ErrorStatus WrapperSource::children(const KyRxMemberArray*& out) const {
    if (m_children.isEmpty() && m_source != nullptr) {
        const KyRxMemberArray* hostChildren = m_source->children();
        if (hostChildren == nullptr) {
            return Kyro::eNotApplicable;
        }
        for (int i = 0; i < hostChildren->length(); ++i) {
            if (const KyRxMember* wrapper = PropertyWrapping::wrapMember((*hostChildren)[i])) {
                m_children.append(wrapper);
            }
        }
    }
    out = &m_children;
    return Kyro::eOk;
}

KyDiProxy* WrapperSource::proxyOf(const KyRxObject* object) {
    return dynamic_cast<KyDiProxy*>(const_cast<KyRxObject*>(object));
}

Kyro::ErrorStatus WrapperSource::get(const KyRxPropertyBase* wrapper, const KyRxObject* object,
                                     KyRxValue& value, int index, const wchar_t* key) const {
    if (KyDiProxy* proxy = proxyOf(object)) {
        return proxy->getValue(wrapper, value, index, key);
    }
    const Kyro::ErrorStatus status =
        HostValueAccess::readHostValue(object, m_source, value, index, key);
    if (status != Kyro::eOk) {
        return status;
    }
    KyDiConvertToDataItem(value);
    return Kyro::eOk;
}

Kyro::ErrorStatus WrapperSource::set(const KyRxPropertyBase* wrapper, KyRxObject* object,
                                     const KyRxValue& value, int index, const wchar_t* key) const {
    if (KyDiProxy* proxy = proxyOf(object)) {
        return proxy->setValue(wrapper, value, index, key);
    }
    KyRxValue hostValue = value;
    KyDiConvertFromDataItem(kyrxCast<KyRxPropertyBase>(m_source), hostValue);
    return HostValueAccess::writeHostValue(object, m_source, hostValue, index, key);
}

KyRxValueIterator* WrapperSource::newValueIterator(const KyRxPropertyBase* wrapper,
                                                   const KyRxObject* object) const {
    if (KyDiProxy* proxy = proxyOf(object)) {
        return proxy->newValueIterator(wrapper);
    }
    const auto* collection = kyrxCast<KyRxCollectionProperty>(m_source);
    return collection != nullptr ? collection->newValueIterator(object) : nullptr;
}

Kyro::ErrorStatus WrapperSource::tryGetCount(const KyRxPropertyBase* wrapper,
                                             const KyRxObject* object, int& count) const {
    if (KyDiProxy* proxy = proxyOf(object)) {
        const std::unique_ptr<KyRxValueIterator> values(proxy->newValueIterator(wrapper));
        if (values == nullptr) {
            return Kyro::eNoIterator;
        }
        count = 0;
        for (; !values->done(); values->next()) {
            ++count;
        }
        return Kyro::eOk;
    }
    const auto* collection = kyrxCast<KyRxCollectionProperty>(m_source);
    return collection != nullptr ? collection->tryGetCount(object, count) : Kyro::eNotApplicable;
}
