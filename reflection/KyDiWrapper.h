// Not part of the interface: what the four wrapper classes share over their
// host base class (a scalar, collection, indexed or dictionary property): the
// host member they stand for, its attributes shown by pointer, its local
// name, its word on being read-only, and wrappers of its children.
#pragma once

#include "reflection/IKyDiSourceProperty.h"
#include "reflection/WrapperSource.h"
#include "rx/KyRxProperty.h"

template <typename HostBase>
class KyDiWrapper : public HostBase, public IKyDiSourceProperty {
public:
    const KyRxMember* sourceProperty() const override { return m_source.source(); }

protected:
    // The wrapper of `source`, belonging to `owner`; without a source, a
    // property of the layer's own named `name`.
    KyDiWrapper(const wchar_t* name, const KyRxValueType& type, const KyRxObject* owner,
                const KyRxMember* source)
        : HostBase(name, type, owner), m_source(source) {
        m_source.shareAttributes(*this);
    }
    // The attributes stay the host member's.
    ~KyDiWrapper() override { WrapperSource::releaseAttributes(*this); }

    KyString subLocalName() const override { return m_source.localName(); }
    bool subIsReadOnly() const override { return m_source.isReadOnly(); }
    // A wrapper's children are the wrappers of its source's children, kept
    // by subChildrenEx; it makes none of its own.
    Kyro::ErrorStatus subChildren(KyRxMemberArray& /*children*/) const override {
        return Kyro::eInvalidInput;
    }
    Kyro::ErrorStatus subChildrenEx(const KyRxMemberArray*& children) const override {
        return m_source.children(children);
    }

    WrapperSource m_source;
};
