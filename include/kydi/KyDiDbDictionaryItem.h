// An entry of a dictionary: its "Name" is its key in the dictionary, which
// can't be written here.
#pragma once

#include "kydi/KyDiDbItem.h"

class KYDI_API KyDiDbDictionaryItem : public KyDiDbItem {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    KyDiDbDictionaryItem(KyDbObjectId objectId, KyDbObjectId dictionaryId);
    ~KyDiDbDictionaryItem() override;

    KyDbObjectId dictionaryId() const { return m_dictionaryId; }

    Kyro::ErrorStatus getValue(const KyRxPropertyBase* property, KyRxValue& value, int index,
                               const wchar_t* key) override;
    Kyro::ErrorStatus setValue(const KyRxPropertyBase* property, const KyRxValue& value, int index,
                               const wchar_t* key) override;

protected:
    KyRxMemberIterator* subNewItemMemberIterator() override;

private:
    KyDbObjectId m_dictionaryId;
};
