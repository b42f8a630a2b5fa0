// Not part of the interface: the names that a palette shows in the user's
// language although the drawing keeps them in their global form: the
// standard visual styles, the standard linetypes, the standard materials.
// Each row names the collection, the property that holds the name, and the
// reserved names it translates; initialize keys the rows by the record's
// class.
#pragma once

#include "db/KyDbReservedStrings.h"

class KyRxClass;
class KyRxValue;

struct NameConverterRow {
    const wchar_t* collectionName;
    const wchar_t* propertyName;
    // Turns a reserved name into its local form (`toLocal`) or its global
    // one; other texts stay. Answers a status that nobody reads.
    int (*convert)(KyRxValue* value, bool toLocal);
};

class NameConverters {
public:
    // The rows, closed by one with a null name.
    static const NameConverterRow* rows();
    // Keys the rows of the visual styles, linetypes and materials by their
    // record classes.
    static void install();
    // Translates `value`, read from `propertyName` of an object of `cls`, into
    // the user's language when a row covers them (the property name compared
    // without regard to case).
    static void toLocal(const KyRxClass* cls, const wchar_t* propertyName, KyRxValue& value);
    // Whether toLocal changes anything for `cls` and `propertyName`: for a
    // reader of many objects of one class.
    static bool convertsOn(const KyRxClass* cls, const wchar_t* propertyName);

    // The reserved kinds of the standard visual styles, ended by
    // KyDb::kReservedStringCount.
    static const KyDb::ReservedStringEnumType* visualStyleKinds();
    // The conversion of the visual styles' row: a standard style's name into
    // its local form (`toLocal`) or its global one. The value is always
    // written back as a text, translated or not; answers Kyro::eOk.
    static int convertVisualStyleName(KyRxValue* value, bool toLocal);
};
