// Not part of the interface: the records of one symbol table of the drawing,
// in the table's order. Erased records are not listed but watched; a class
// that lists only some records says which.
#pragma once

#include "collections/KyDiImpDbObjectCollection.h"

class KyDbSymbolTableRecord;
class KyRxValue;

class KyDiImpSymbolTableItemCollection : public KyDiImpDbObjectCollection {
public:
    // Reads the id of the table from a database.
    using TableIdGetter = KyDbObjectId (KyDbDatabase::*)() const;
    // Makes the item of a record; null stands for createDataItem.
    using ItemFactory = KyDiDynamicObject* (*)(const KyString& name, const KyRxValue& value);

    KyDiImpSymbolTableItemCollection(const wchar_t* name, KyDiCurrencyTracker* tracker,
                                     TableIdGetter getTableId);

    void subDrawingContentChanged() override;
    bool subFillFromDatabase(bool initial, KyDbDatabase* db, KyDbObjectId& owner,
                             KyDiItemArray& list, KyArray<KyDbObjectId>& erased,
                             void** context) override;
    // Whether a record belongs in the list; every record does here.
    virtual bool subIncludeRecord(const KyDbSymbolTableRecord* record) const;

protected:
    void setItemFactory(ItemFactory factory) { m_itemFactory = factory; }

private:
    TableIdGetter m_getTableId;
    ItemFactory m_itemFactory = nullptr;
};
