// A row without an object of its own (as "ByLayer" in a list of linetypes), or
// a record known by a name: its one member is "Name".
#pragma once

#include "base/KyString.h"
#include "kydi/KyDiDbItem.h"

class KYDI_API KyDiDbNamedItem : public KyDiDbItem {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    KyDiDbNamedItem(KyDbObjectId objectId, const KyString& name);
    ~KyDiDbNamedItem() override;

    const KyString& name() const { return m_name; }

    Kyro::ErrorStatus getValue(const KyRxPropertyBase* property, KyRxValue& value, int index,
                               const wchar_t* key) override;
    // Nothing is written: eInvalidInput.
    Kyro::ErrorStatus setValue(const KyRxPropertyBase* property, const KyRxValue& value, int index,
                               const wchar_t* key) override;
    KyRxValueIterator* newValueIterator(const KyRxPropertyBase* property) override;

protected:
    KyRxMemberIterator* subNewItemMemberIterator() override;

private:
    KyString m_name;
};
