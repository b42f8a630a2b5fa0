// Not part of the interface: plain reads and writes of host members, with
// the formulas of properties that hold one. `index` is -1 without an index,
// `key` null without a key.
//
// A read of a property that holds a formula gives a KyDiExpression: the value
// with the formula's text. A write of a KyDiExpression to such a property sets
// a formula when the text isn't empty, and otherwise writes the value (a
// double into an int property truncated, an int into a double widened).
#pragma once

#include "base/KyroErrorStatus.h"

class KyRxMember;
class KyRxObject;
class KyRxPropertyExpressionPE;
class KyRxValue;

class HostValueAccess {
public:
    // eInvalidInput for a null object or member, and for a member of a kind
    // that does not take the index or the key given.
    static Kyro::ErrorStatus readHostValue(const KyRxObject* object, const KyRxMember* member,
                                           KyRxValue& value, int index, const wchar_t* key);
    // The same for a reader that knows the formula extension of the object
    // (`formulas`, null when its class has none), reading many objects of one
    // class.
    static Kyro::ErrorStatus readHostValue(const KyRxObject* object, const KyRxMember* member,
                                           KyRxValue& value, int index, const wchar_t* key,
                                           const KyRxPropertyExpressionPE* formulas);
    // The formula extension of `object`; null when it has none.
    static const KyRxPropertyExpressionPE* formulasOf(const KyRxObject* object);
    static Kyro::ErrorStatus writeHostValue(KyRxObject* object, const KyRxMember* member,
                                            const KyRxValue& value, int index, const wchar_t* key);
};
