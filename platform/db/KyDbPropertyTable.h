// Internal to the drawing database; not part of the platform's interface.
//
// The reflected members of the database classes. Each class lists its
// properties in a static table of rows; the class's member builder turns the
// rows into properties with the attributes a property palette needs:
// - KyRxUiPlacementAttribute(category, weight) when the row has a category;
// - KyRxLocalizedNameAttribute and KyRxDescriptionAttribute, texts of the
//   platform's resource module (table 0) found by the property's name in
//   KyDbPropertyTexts, so a name means the same thing on every class;
// - KyRxRefersToAttribute(path) with KyRxDisplayAsAttribute("Name") when the
//   row refers to the items of a table or dictionary;
// - KyRxCumulativeAttribute when the values of several objects add up (the
//   area of hatches).
//
// Names. A property is named after what a user edits, in one spelling across
// the classes: "Name", "Color" (KyCmColor), "LineWeight" (KyDb::LineWeight),
// "Transparency" (KyCmTransparency), "Description", "Position", "Center",
// "Height" ... An object id is named after what it refers to with "Id"
// appended ("LayerId", "LinetypeId", "MaterialId", "TextStyleId",
// "BlockTableRecordId"); a layer keeps "LinetypeObjectId" as its own calls
// spell it. A flag starts with "Is" ("IsOff", "IsLocked"), except "Visible"
// and "Closed". A plot style is a name: "PlotStyle" on an entity,
// "PlotStyleName" on a layer. Points are KyGePoint3d; angles are in degrees.
// Lists of ids or points are collection properties ("Items", "Points").
// Every object shows "ClassName" and "LocalizedName" (the names of its kind).
//
// Formulas. A numeric property whose row has a formula access may hold a
// formula (KyDbFormulaValue); the class then serves KyRxPropertyExpressionPE
// for it (KyDbPropertyExpression), registered with the class.
//
// Reads and writes work on an object the caller has opened: a read needs it
// open for read (eInvalidOpenState otherwise), a write for write (the
// setter's eWasNotOpenForWrite). An object of another class answers
// eNotThatKindOfClass, a value of another type eInvalidInput.
//
//   const KyDbPropertyRow kRows[] = {
//       {L"Radius", kydbiAccess<&KyDbCircle::radius, &KyDbCircle::setRadius>(),
//        KyDbCategory::kGeometry, 2},
//   };
//   KYDB_DEFINE_CLASS(KyDbCircle, KyDbEntity, kRows)
#pragma once

#include <cstddef>
#include <iterator>
#include <type_traits>

#include "base/KyArray.h"
#include "base/KyroErrorStatus.h"
#include "db/KyDbObject.h"
#include "ge/KyGePoint3d.h"
#include "rx/KyRxClass.h"
#include "rx/KyRxProperty.h"
#include "rx/KyRxValue.h"

// Categories of the palette.
namespace KyDbCategory {
inline constexpr const wchar_t* kGeneral = L"General";
inline constexpr const wchar_t* kGeometry = L"Geometry";
inline constexpr const wchar_t* kText = L"Text";
inline constexpr const wchar_t* kPattern = L"Pattern";
inline constexpr const wchar_t* kMisc = L"Misc";
}  // namespace KyDbCategory

// How a scalar property reads and writes; a null `set` makes it read-only.
struct KyDbPropertyAccess {
    const KyRxValueType& (*type)() = nullptr;
    Kyro::ErrorStatus (*get)(const KyRxObject* object, KyRxValue& value) = nullptr;
    Kyro::ErrorStatus (*set)(KyRxObject* object, const KyRxValue& value) = nullptr;
};

// How a property that may hold a formula reads the formula's text (empty for
// a plain value) and sets a formula with its value; null members for every
// other property.
struct KyDbFormulaAccess {
    Kyro::ErrorStatus (*get)(const KyRxObject* object, KyString& text) = nullptr;
    Kyro::ErrorStatus (*set)(KyRxObject* object, const wchar_t* text) = nullptr;
};

// Makes a member that is not a scalar property (a collection, a list by index).
using KyDbMakeMember = KyRxMember* (*)(const wchar_t* name, const KyRxObject* owner);

struct KyDbPropertyRow {
    const wchar_t* name;
    KyDbPropertyAccess access;
    const wchar_t* category = nullptr;  // null: not placed in a palette
    unsigned weight = 0;
    const wchar_t* refersTo = nullptr;  // a reference path, shown by "Name"
    KyDbMakeMember make = nullptr;      // set instead of `access` for other members
    KyDbFormulaAccess formula = {};     // set for a property that may hold a formula
    bool cumulative = false;            // the values of several objects add up
};

// Adds the members of `rows` to a class being built.
void kydbiAddProperties(KyRxMemberCollectionBuilder& builder, const KyDbPropertyRow* rows,
                        std::size_t count);

template <const auto& Rows>
void kydbiBuildMembers(KyRxMemberCollectionBuilder& builder, void*) {
    kydbiAddProperties(builder, Rows, std::size(Rows));
}

// The read check of every getter: eOk for an object that may be read now.
Kyro::ErrorStatus kydbiReadStatus(const KyRxObject* object);
// "Name" of an object that is named by its key in a dictionary: the key, or
// the empty text for an object in no dictionary.
Kyro::ErrorStatus kydbiGetEntryName(const KyRxObject* object, KyRxValue& value);
// The text of a KyString or `const wchar_t*` value; null for other values.
const wchar_t* kydbiText(const KyRxValue& value);

// ---- Access through member functions

template <auto Getter>
struct KyDbGetterOf;

template <typename C, typename R, R (C::*Getter)() const>
struct KyDbGetterOf<Getter> {
    using Object = C;
    using Value = std::remove_cvref_t<R>;

    static Kyro::ErrorStatus get(const KyRxObject* object, KyRxValue& value) {
        const C* typed = kyrxCast<C>(object);
        if (typed == nullptr) {
            return Kyro::eNotThatKindOfClass;
        }
        if (const Kyro::ErrorStatus status = kydbiReadStatus(typed); status != Kyro::eOk) {
            return status;
        }
        value = KyRxValue(Value((typed->*Getter)()));
        return Kyro::eOk;
    }
};

template <auto Setter>
struct KyDbSetterOf;

template <typename C, typename A, Kyro::ErrorStatus (C::*Setter)(A)>
struct KyDbSetterOf<Setter> {
    static Kyro::ErrorStatus set(KyRxObject* object, const KyRxValue& value) {
        C* typed = kyrxCast<C>(object);
        if (typed == nullptr) {
            return Kyro::eNotThatKindOfClass;
        }
        using Arg = std::remove_cvref_t<A>;
        if constexpr (std::is_same_v<Arg, const wchar_t*>) {
            const wchar_t* text = kydbiText(value);
            return text != nullptr ? (typed->*Setter)(text) : Kyro::eInvalidInput;
        } else {
            const Arg* payload = valueCast<Arg>(&value);
            return payload != nullptr ? (typed->*Setter)(*payload) : Kyro::eInvalidInput;
        }
    }
};

// Picks one of overloaded member functions.
template <typename C, typename R>
constexpr auto kydbiGetter(R (C::*getter)() const) {
    return getter;
}
template <typename C, typename A>
constexpr auto kydbiSetter(Kyro::ErrorStatus (C::*setter)(A)) {
    return setter;
}

template <auto Getter, auto Setter = nullptr>
constexpr KyDbPropertyAccess kydbiAccess() {
    using G = KyDbGetterOf<Getter>;
    KyDbPropertyAccess access;
    access.type = &KyRxValueType::Desc<typename G::Value>::value;
    access.get = &G::get;
    if constexpr (!std::is_null_pointer_v<decltype(Setter)>) {
        access.set = &KyDbSetterOf<Setter>::set;
    }
    return access;
}

// The formula of a property through the class's member functions: the
// formula's text, and the setter of a formula with its value.
template <auto Getter, auto Setter>
struct KyDbFormulaOf;

template <typename C, const KyString& (C::*Getter)() const,
          Kyro::ErrorStatus (C::*Setter)(const wchar_t*)>
struct KyDbFormulaOf<Getter, Setter> {
    static Kyro::ErrorStatus get(const KyRxObject* object, KyString& text) {
        const C* typed = kyrxCast<C>(object);
        if (typed == nullptr) {
            return Kyro::eNotThatKindOfClass;
        }
        if (const Kyro::ErrorStatus status = kydbiReadStatus(typed); status != Kyro::eOk) {
            return status;
        }
        text = (typed->*Getter)();
        return Kyro::eOk;
    }
    static Kyro::ErrorStatus set(KyRxObject* object, const wchar_t* text) {
        C* typed = kyrxCast<C>(object);
        return typed != nullptr ? (typed->*Setter)(text) : Kyro::eNotThatKindOfClass;
    }
};

template <auto Getter, auto Setter>
constexpr KyDbFormulaAccess kydbiFormula() {
    using F = KyDbFormulaOf<Getter, Setter>;
    return KyDbFormulaAccess{&F::get, &F::set};
}

// A read-only property of type T over a plain function.
template <typename T>
constexpr KyDbPropertyAccess kydbiReadOnly(Kyro::ErrorStatus (*get)(const KyRxObject*,
                                                                    KyRxValue&)) {
    KyDbPropertyAccess access;
    access.type = &KyRxValueType::Desc<T>::value;
    access.get = get;
    return access;
}

// ---- Lists

using KyDbIdList = KyArray<KyDbObjectId>;
using KyDbPointList = KyArray<KyGePoint3d>;

// A collection of ids (the records of a table, the layers frozen in a
// viewport), read whole when an iterator is asked for.
using KyDbListIds = Kyro::ErrorStatus (*)(const KyRxObject* object, KyDbIdList& ids);
KyRxMember* kydbiMakeIdCollection(const wchar_t* name, const KyRxObject* owner, KyDbListIds list);

template <KyDbListIds List>
KyRxMember* kydbiIdCollection(const wchar_t* name, const KyRxObject* owner) {
    return kydbiMakeIdCollection(name, owner, List);
}

// Points by index (the vertices of a polyline): read, and written one by one.
struct KyDbPointListAccess {
    const KyDbPointList* (*points)(const KyRxObject* object) = nullptr;
    Kyro::ErrorStatus (*setAt)(KyRxObject* object, int index, const KyGePoint3d& point) = nullptr;
};
KyRxMember* kydbiMakePointList(const wchar_t* name, const KyRxObject* owner,
                               KyDbPointListAccess access);

template <typename C, const KyDbPointList& (C::*Points)() const,
          Kyro::ErrorStatus (C::*SetAt)(int, const KyGePoint3d&)>
KyRxMember* kydbiPointList(const wchar_t* name, const KyRxObject* owner) {
    KyDbPointListAccess access;
    access.points = [](const KyRxObject* object) -> const KyDbPointList* {
        const C* typed = kyrxCast<C>(object);
        return typed != nullptr ? &(typed->*Points)() : nullptr;
    };
    access.setAt = [](KyRxObject* object, int index, const KyGePoint3d& point) {
        C* typed = kyrxCast<C>(object);
        return typed != nullptr ? (typed->*SetAt)(index, point) : Kyro::eNotThatKindOfClass;
    };
    return kydbiMakePointList(name, owner, access);
}
