// Not part of the interface: a collection whose items are matched by their
// display names. Its fills make new item objects each time: a merge keeps the
// old object of each name and gives the new one up, so a client's pointers
// stay valid across refills. A value changed under the same name is not
// reported this way.
#pragma once

#include "collections/KyDiImpCollectionBase.h"

class KyDiImpNamedCollection : public KyDiImpCollectionBase {
public:
    using KyDiImpCollectionBase::KyDiImpCollectionBase;

    int subFindItem(const KyDiItemArray& list, KyDiDynamicObject* item) override;
    void subMergeItems(KyDiItemArray& added, KyDiItemArray& removed, KyDiItemArray& modified,
                       KyDiItemArray& newItems) override;
};
