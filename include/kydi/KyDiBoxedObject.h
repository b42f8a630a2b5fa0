// KyDiBoxedObject: a value holder over another runtime object, which shows
// the value of the object it boxes. A module that builds on the data item
// layer gives it the object to box; it does not own it.
#pragma once

#include "kydi/KyDiExport.h"
#include "rx/KyRxBoxedValue.h"

class KYDI_API KyDiBoxedObject : public KyRxBoxedValue {
public:
    explicit KyDiBoxedObject(KyRxBoxedValue* boxed = nullptr) : m_boxed(boxed) {}

    KyRxBoxedValue* boxed() const { return m_boxed; }
    void setBoxed(KyRxBoxedValue* boxed) { m_boxed = boxed; }

    // The boxed object's value; null without a boxed object.
    const KyRxValue* value() const override;
    KyRxValue* value() override;

private:
    KyRxBoxedValue* m_boxed;
};
