// Not part of the interface: the reflected properties of the "DRAWING"
// context, one class each (KyDiDrawingContextLayerProperty ...), all made
// from a row of one table that says the property's name, its value type, the
// key of its effective value, in which space it can be read, and how a value
// is written.
//
// A read takes the effective item of the key and turns it into the value: an
// id for a record, the item itself for a plot style, a plot style table or a
// scale, the value the item holds otherwise; without an item, a neutral value
// (the null id, the default colour, the default lineweight, 0, true, empty
// text).
// A write finds the item to make current (the record of an id among the
// tracker's items, the colour list's item of a colour, the lineweight's item,
// or an item that only holds the value) and hands it to the effective
// property, under a document lock. A write that finds no item changes nothing
// and is no failure; only "TileMode" tells what the write did.
#pragma once

#include "rx/KyRxProperty.h"

class KyDiDrawingContext;
struct DrawingContextPropertyRow;

class KyDiDrawingContextProperty : public KyRxProperty {
protected:
    // The property of the table's row named `name`, with the row's
    // attributes.
    KyDiDrawingContextProperty(const wchar_t* name, const KyRxObject* owner);

    Kyro::ErrorStatus subGetValue(const KyRxObject* object, KyRxValue& value) const override;
    Kyro::ErrorStatus subSetValue(KyRxObject* object, const KyRxValue& value) const override;
    bool subIsReadOnly() const override;

private:
    const DrawingContextPropertyRow& m_row;
};
