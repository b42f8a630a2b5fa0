// KyAppPropertyValue: values of reflected properties in the program's forms.
// A value read through a data item prints as its item: a colour or a
// transparency item by its value ("aci:5", "rgb:10,20,30", "alpha:128"), an
// item of a record by its display name. Ids print as "#HANDLE", points as
// "pt:X,Y,Z", a value that differs between objects as "varies", a formula as
// its text.
#pragma once

#include <string>

#include "KyAppValue.h"

class KyDbDatabase;
class KyRxValue;
class KyRxValueType;

class KyAppPropertyValue {
public:
    static std::string format(const KyRxValue& value);
    // The value of a script for a property of `type`: a colour for a colour,
    // a transparency for a transparency, a number for a number, an object id
    // (of `database`) for an id. False with `error` when it does not fit.
    static bool toValue(const KyAppValue& value, const KyRxValueType& type, KyDbDatabase* database,
                        KyRxValue& out, std::string& error);
};
