// Not part of the interface: the wrapper of a host collection property (and a
// collection property of the layer's own, such as the "Layers" of a layer
// filter item). An object that is a KyDiProxy gives the values itself.
#pragma once

#include "reflection/IKyDiSourceProperty.h"
#include "reflection/WrapperSource.h"
#include "rx/KyRxProperty.h"

class KyDiCollectionProperty : public KyRxCollectionProperty, public IKyDiSourceProperty {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    KyDiCollectionProperty(const KyRxCollectionProperty* source, const KyRxObject* owner);
    KyDiCollectionProperty(const wchar_t* name, const KyRxValueType& type);
    ~KyDiCollectionProperty() override;

    const KyRxMember* sourceProperty() const override { return m_source.source(); }

protected:
    KyString subLocalName() const override;
    Kyro::ErrorStatus subChildren(KyRxMemberArray& children) const override;
    Kyro::ErrorStatus subChildrenEx(const KyRxMemberArray*& children) const override;
    KyRxValueIterator* subNewValueIterator(const KyRxObject* object) const override;
    Kyro::ErrorStatus subTryGetCount(const KyRxObject* object, int& count) const override;

private:
    WrapperSource m_source;
};
