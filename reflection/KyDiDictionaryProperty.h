// Not part of the interface: the wrapper of a host property read by name.
// Its values as a collection come from an embedded collection wrapper over
// the same host property.
#pragma once

#include "reflection/KyDiCollectionProperty.h"

class KyDiDictionaryProperty : public KyDiWrapper<KyRxDictionaryProperty> {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    KyDiDictionaryProperty(const KyRxDictionaryProperty* source, const KyRxObject* owner);
    ~KyDiDictionaryProperty() override;

    KyDiCollectionProperty* collectionSide() const { return m_collection; }

protected:
    KyRxValueIterator* subNewValueIterator(const KyRxObject* object) const override;
    Kyro::ErrorStatus subTryGetCount(const KyRxObject* object, int& count) const override;
    Kyro::ErrorStatus subGetValue(const KyRxObject* object, const wchar_t* key,
                                  KyRxValue& value) const override;
    Kyro::ErrorStatus subSetValue(KyRxObject* object, const wchar_t* key,
                                  const KyRxValue& value) const override;

private:
    KyDiCollectionProperty* m_collection;
};
