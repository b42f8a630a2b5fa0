// The items that stand for objects of the drawing. A database item holds only
// its object's id: every read and write goes to the database at the moment it
// is asked for. Its members are the object's reflected members as the host's
// query engine shows them, each wrapped so that it reads through the item and
// gives data items for ids and colours.
//
// The same record in the same document is always the same item object (the
// manager's item cache keeps them): a client may compare item pointers across
// refills and document switches.
#pragma once

#include "db/KyDbObjectId.h"
#include "kydi/KyDiItem.h"

class KYDI_API KyDiDbItem : public KyDiItem {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    explicit KyDiDbItem(KyDbObjectId objectId);
    ~KyDiDbItem() override;

    KyDbObjectId objectId() const { return m_objectId; }

    // Reads the object's property; erased objects are read too, and reserved
    // names come in the user's language.
    Kyro::ErrorStatus getValue(const KyRxPropertyBase* property, KyRxValue& value, int index,
                               const wchar_t* key) override;
    // Writes the object's property under a document lock, then closes the
    // command line's prompt. KyRxValue::varies() is handed to the property as
    // it is, on an object open for read, for properties that open the object
    // for write by themselves.
    Kyro::ErrorStatus setValue(const KyRxPropertyBase* property, const KyRxValue& value, int index,
                               const wchar_t* key) override;
    KyRxValueIterator* newValueIterator(const KyRxPropertyBase* property) override;

protected:
    // The value of a database item is its object id.
    Kyro::ErrorStatus subGetValueInto(KyRxValue& out) override;
    KyRxMemberIterator* subNewItemMemberIterator() override;

private:
    KyDbObjectId m_objectId;
};
