// Not part of the interface: the wrapper of a host collection property (and a
// collection property of the layer's own, such as the "Layers" of a layer
// filter item). An object that is a KyDiProxy gives the values itself.
#pragma once

#include "reflection/KyDiWrapper.h"

class KyDiCollectionProperty : public KyDiWrapper<KyRxCollectionProperty> {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    KyDiCollectionProperty(const KyRxCollectionProperty* source, const KyRxObject* owner);
    KyDiCollectionProperty(const wchar_t* name, const KyRxValueType& type);

protected:
    KyRxValueIterator* subNewValueIterator(const KyRxObject* object) const override;
    Kyro::ErrorStatus subTryGetCount(const KyRxObject* object, int& count) const override;
};
