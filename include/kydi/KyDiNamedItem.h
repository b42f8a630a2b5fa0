// KyDiNamedItem: an item that is only a name and a value (a colour, an
// enumerated value). Its one member is "Name".
#pragma once

#include "base/KyString.h"
#include "kydi/KyDiItem.h"
#include "rx/KyRxValue.h"

class KYDI_API KyDiNamedItem : public KyDiItem {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    KyDiNamedItem(const KyString& name, const KyRxValue& value);
    ~KyDiNamedItem() override;

    const KyString& name() const { return m_name; }

    // "Name" gives the name; any other property eInvalidInput.
    Kyro::ErrorStatus getValue(const KyRxPropertyBase* property, KyRxValue& value, int index,
                               const wchar_t* key) override;

protected:
    Kyro::ErrorStatus subGetValueInto(KyRxValue& out) override;
    const KyRxValue* subValue() const override;
    KyRxValue* subValue() override;
    KyRxMemberIterator* subNewItemMemberIterator() override;

private:
    KyString m_name;
    KyRxValue m_value;
};
