// Internal to the drawing database; not part of the platform's interface.
//
// KyDbIdCollectionProperty: a collection property whose values are object
// ids (the records of a table, the entries of a dictionary, the layers frozen
// in a viewport). The ids are read whole when an iterator is made, so the
// iterator stays good after the object is closed.
#pragma once

#include "db/KyDbPropertyTable.h"

class KyDbIdCollectionProperty : public KyRxCollectionProperty {
public:
    KyDbIdCollectionProperty(const wchar_t* name, const KyRxObject* owner, KyDbListIds list);

protected:
    KyRxValueIterator* subNewValueIterator(const KyRxObject* object) const override;
    Kyro::ErrorStatus subTryGetCount(const KyRxObject* object, int& count) const override;

private:
    // The ids of `object`, after the read check.
    Kyro::ErrorStatus read(const KyRxObject* object, KyDbIdList& ids) const;

    KyDbListIds m_list;
};
