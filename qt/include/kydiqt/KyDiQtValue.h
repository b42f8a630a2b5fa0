// KyDiQtValue: the values of reflected properties in Qt's terms, as both
// models show and take them.
//
// - text: what a cell shows: the localized text of the value; an item by the
//   text of its value (a colour, a transparency) or else its display name;
//   "*VARIES*" for a value that differs between objects.
// - variant: what an editor gets: bool, int, double and QString for plain
//   values; KyCmColor and KyCmTransparency as themselves (registered with
//   Qt's meta-types), so that an index colour, a book colour or ByLayer
//   come back unchanged, also when a colour or transparency item holds
//   them; any other item as its display name; an enumerated value as its
//   localized tag.
// - toValue: what a property is written with: the same forms back, and
//   besides a QColor, an int or a text ("red", "ByLayer", "10,20,30") for a
//   colour, an int (alpha) for a
//   transparency, a tag's name for an enumerated value and an item's display
//   name for a property that refers to a collection.
#pragma once

#include <QColor>
#include <QMetaType>
#include <QString>
#include <QVariant>
#include <optional>

#include "base/KyString.h"
#include "db/KyCmColor.h"
#include "db/KyCmTransparency.h"
#include "kydiqt/KyDiQtExport.h"
#include "rx/KyRxValue.h"

class KyDiDynamicObject;
class KyRxProperty;
class KyRxPropertyBase;

Q_DECLARE_METATYPE(KyCmColor)
Q_DECLARE_METATYPE(KyCmTransparency)

class KYDIQT_API KyDiQtValue {
public:
    static QString text(const KyRxValue& value);
    static QVariant variant(const KyRxValue& value);
    // The colour a swatch shows for a value that is or holds a colour with
    // red, green and blue (an index or a true colour); invalid otherwise.
    static QColor swatch(const KyRxValue& value);
    // A boolean value, or nothing.
    static std::optional<bool> flag(const KyRxValue& value);
    // `variant` as a value for `property`; false when it does not fit.
    static bool toValue(const QVariant& variant, const KyRxPropertyBase& property, KyRxValue& out);

    // What a value cell answers for `role` (Display, Edit, Decoration,
    // CheckState); an invalid variant for any other role.
    static QVariant roleData(const KyRxValue& value, int role);
    // Writes what an editor gave for `role` (Edit, or CheckState for a
    // boolean property) to `property` of `object`; false when it does not fit
    // or the write failed.
    static bool write(const QVariant& variant, int role, const KyRxProperty& property,
                      KyDiDynamicObject* object);

    // The value a data item stands for (a colour item's colour), or the
    // value itself when it holds no item with a value.
    static KyRxValue itemValue(const KyRxValue& value);
    // The item a value holds; null for any other value.
    static KyDiDynamicObject* item(const KyRxValue& value);
    static QString fromKyString(const KyString& text);
    static KyString toKyString(const QString& text);
};
