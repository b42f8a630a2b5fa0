// KyDiItem: what a collection holds, a dynamic object with a value and a few
// reflected members. Every item is made by the data item layer; a client gets
// items from collections and from values read through properties, and
// deletes none.
//
// An item is a KyDiProxy: a property obtained from an item reads and writes
// through the item. When an item is destroyed, every KyDiDataItemReactor is
// told first, while the item is still whole.
#pragma once

#include "kydi/KyDiDynamicObject.h"
#include "kydi/KyDiProxy.h"

class KYDI_API KyDiItem : public KyDiDynamicObject, public KyDiProxy {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override;

    ~KyDiItem() override;
    KyDiItem(const KyDiItem&) = delete;
    KyDiItem& operator=(const KyDiItem&) = delete;

    const KyRxValue* value() const final;
    KyRxValue* value() final;
    Kyro::ErrorStatus value(KyRxValue& out) final;

    // The proxy operations: an item without its own rule answers
    // eInvalidInput and no iterator.
    Kyro::ErrorStatus getValue(const KyRxPropertyBase* property, KyRxValue& value, int index,
                               const wchar_t* key) override;
    Kyro::ErrorStatus setValue(const KyRxPropertyBase* property, const KyRxValue& value, int index,
                               const wchar_t* key) override;
    KyRxValueIterator* newValueIterator(const KyRxPropertyBase* property) override;

protected:
    KyDiItem() = default;

    KyRxMemberIterator* subNewMemberIterator() final;
    virtual Kyro::ErrorStatus subGetValueInto(KyRxValue& out);
    virtual const KyRxValue* subValue() const;
    virtual KyRxValue* subValue();
    virtual KyRxMemberIterator* subNewItemMemberIterator();

    // Tells every KyDiDataItemReactor that the item goes, once. Every item
    // class calls it first in its destructor, so the reactors are told while
    // the item is whole: its class, its value and its fields are all there.
    void tellDeleted();

private:
    bool m_deletionTold = false;
};
