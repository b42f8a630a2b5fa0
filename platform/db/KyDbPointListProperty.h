// Internal to the drawing database; not part of the platform's interface.
//
// KyDbPointListProperty: the points of an entity (the vertices of a
// polyline, the points of a dimension) by index. A point is read and written
// in place; the number of points changes through the entity's own calls.
#pragma once

#include "db/KyDbPropertyTable.h"

class KyDbPointListProperty : public KyRxIndexedProperty {
public:
    KyDbPointListProperty(const wchar_t* name, const KyRxObject* owner,
                          const KyDbPointListAccess& access);

protected:
    KyRxValueIterator* subNewValueIterator(const KyRxObject* object) const override;
    Kyro::ErrorStatus subTryGetCount(const KyRxObject* object, int& count) const override;
    Kyro::ErrorStatus subGetValue(const KyRxObject* object, int index,
                                  KyRxValue& value) const override;
    Kyro::ErrorStatus subSetValue(KyRxObject* object, int index,
                                  const KyRxValue& value) const override;

private:
    // The points of `object` after the read check; null with `status` set.
    const KyDbPointList* points(const KyRxObject* object, Kyro::ErrorStatus& status) const;

    KyDbPointListAccess m_access;
};
