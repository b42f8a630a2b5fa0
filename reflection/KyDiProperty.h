// Not part of the interface: the wrapper of a scalar host property. Read on
// an object that is a KyDiProxy (an item, a context), it asks the object;
// read on any other object, it reads the host property and turns the value
// into a data item (an id into the item of its record, a colour into its
// value item). A write turns a data item back into the host's value first.
//
// Made without a source, it is a property of the data item layer's own (the
// "Name" of an item), which only a proxy answers.
#pragma once

#include "reflection/KyDiWrapper.h"

class KyDiProperty : public KyDiWrapper<KyRxProperty> {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    // The wrapper of `source`, belonging to `owner`.
    KyDiProperty(const KyRxProperty* source, const KyRxObject* owner);
    // A property of the layer's own.
    KyDiProperty(const wchar_t* name, const KyRxValueType& type);

protected:
    Kyro::ErrorStatus subGetValue(const KyRxObject* object, KyRxValue& value) const override;
    Kyro::ErrorStatus subSetValue(KyRxObject* object, const KyRxValue& value) const override;
};
