// Not part of the interface: the wrapper of a host property read by position
// (the vertices of a polyline). Its values as a collection come from an
// embedded collection wrapper over the same host property; insertion and
// removal are not supported.
#pragma once

#include "reflection/KyDiCollectionProperty.h"

class KyDiIndexedProperty : public KyDiWrapper<KyRxIndexedProperty> {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    KyDiIndexedProperty(const KyRxIndexedProperty* source, const KyRxObject* owner);
    ~KyDiIndexedProperty() override;

    // The embedded collection side, which the wrapping step registers too.
    KyDiCollectionProperty* collectionSide() const { return m_collection; }

protected:
    KyRxValueIterator* subNewValueIterator(const KyRxObject* object) const override;
    Kyro::ErrorStatus subTryGetCount(const KyRxObject* object, int& count) const override;
    Kyro::ErrorStatus subGetValue(const KyRxObject* object, int index,
                                  KyRxValue& value) const override;
    Kyro::ErrorStatus subSetValue(KyRxObject* object, int index,
                                  const KyRxValue& value) const override;
    Kyro::ErrorStatus subInsertValue(KyRxObject* object, int index,
                                     const KyRxValue& value) const override;
    Kyro::ErrorStatus subRemoveValue(KyRxObject* object, int index) const override;

private:
    KyDiCollectionProperty* m_collection;
};
