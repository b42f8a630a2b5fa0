// Not part of the interface: "CumulativeArea" of the SELECTION context, the
// area that the selected hatches cover together: the union of their regions,
// so that where hatches overlap the area counts once. One selected object
// that is no hatch, or a hatch without a boundary, makes it not applicable.
// The selection context lists it when a property the selected objects share
// adds up over a selection (a hatch's area).
#pragma once

#include "collections/KyDiDataSelectedItemCollectionImp.h"
#include "rx/KyRxProperty.h"

class KyDiHatchCumulativeAreaPropertyBase : public KyRxProperty {
public:
    // The area of the union of the hatches `items` stand for.
    static Kyro::ErrorStatus areaOf(const KyDiItemArray& items,
                                    KyDiDataSelectedItemCollectionImp::SubEntitySelection kind,
                                    KyRxValue& value);

protected:
    KyDiHatchCumulativeAreaPropertyBase(const wchar_t* name, const KyRxObject* owner);
    // Read on a boxed array of selected items (KyDiItemArray*), the area of
    // what they stand for; on any other object eNotThatKindOfClass.
    Kyro::ErrorStatus subGetValue(const KyRxObject* object, KyRxValue& value) const override;
};

class KyDiSelectionContextCumulativeAreaProperty : public KyDiHatchCumulativeAreaPropertyBase {
public:
    explicit KyDiSelectionContextCumulativeAreaProperty(const KyRxObject* owner);
};
