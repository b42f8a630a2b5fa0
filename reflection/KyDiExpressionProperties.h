// Not part of the interface: the reflected members of the expression value
// type, read and written on a boxed KyDiExpression.
//   "Expression"    the formula's text (a KyString);
//   "IntegerValue"  the evaluated value when it is an int;
//   "DoubleValue"   the evaluated value when it is a double.
// A value member of the other type than the expression's value answers
// eNotApplicable. Setting a value keeps the text: a client empties the text
// to make the value a plain one.
#pragma once

#include "rx/KyRxProperty.h"

class KyDiExpressionExpressionProperty : public KyRxProperty {
public:
    KyDiExpressionExpressionProperty();

protected:
    Kyro::ErrorStatus subGetValue(const KyRxObject* object, KyRxValue& value) const override;
    Kyro::ErrorStatus subSetValue(KyRxObject* object, const KyRxValue& value) const override;
};

template <typename T>
class KyDiExpressionValueProperty : public KyRxProperty {
public:
    explicit KyDiExpressionValueProperty(const wchar_t* name);

protected:
    Kyro::ErrorStatus subGetValue(const KyRxObject* object, KyRxValue& value) const override;
    Kyro::ErrorStatus subSetValue(KyRxObject* object, const KyRxValue& value) const override;
};

class KyDiExpressionProperties {
public:
    // Takes the expression value type's name out of the class dictionary,
    // when the type was made; the type itself stays for the values that
    // still hold it.
    static void removeTypeFromClassDictionary();
};
