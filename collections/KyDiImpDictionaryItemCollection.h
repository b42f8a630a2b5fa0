// Not part of the interface: the entries of one dictionary of the drawing, in
// the dictionary's order. The collection's name is the dictionary's path of
// keys from the named objects dictionary, joined by "\" ("KYRO_MATERIAL",
// "SITE\NOTES"). A drawing without that dictionary gives an empty list.
#pragma once

#include "collections/KyDiImpDbObjectCollection.h"

class KyDiImpDictionaryItemCollection : public KyDiImpDbObjectCollection {
public:
    using KyDiImpDbObjectCollection::KyDiImpDbObjectCollection;

    void subDrawingContentChanged() override;
    bool subFillFromDatabase(bool initial, KyDbDatabase* db, KyDbObjectId& owner,
                             KyDiItemArray& list, KyArray<KyDbObjectId>& erased,
                             void** context) override;

    // The id of the dictionary the path leads to in `db`; null when a step
    // is missing.
    KyDbObjectId resolveDictionary(KyDbDatabase* db);

protected:
    // The start of a fill: no owner and an empty list; false without a
    // database.
    static bool beginFill(KyDbDatabase* db, KyDbObjectId& owner, KyDiItemArray& list);
    // Appends the item of each record of `ids`, in their order.
    static void appendRecords(const KyArray<KyDbObjectId>& ids, KyDiItemArray& list);

private:
    KyArray<KyString, KyArrayObjectCopyReallocator<KyString>> m_dictionaryPath;
};
