// KyDiExpression: the value of a property that holds a formula. It carries
// both what the formula evaluates to and the formula's text, so that a
// palette can show or edit either. An empty text is a plain value.
//
// Its value type "KyDiExpression" has three reflected members, read and
// written on a boxed expression: "Expression" (the text), "IntegerValue" and
// "DoubleValue" (the evaluated value, whichever type it has; the other one
// is not applicable). Two expressions are equal when their values are of the
// same type and equal and their texts are equal, case included.
#pragma once

#include "base/KyString.h"
#include "kydi/KyDiExport.h"
#include "rx/KyRxValue.h"

struct KyDiExpression {
    KyRxValue value;
    KyString expression;
};

// Equal values of the same type, both present, and equal texts.
KYDI_API bool operator==(const KyDiExpression& a, const KyDiExpression& b);

template <>
KYDI_API const KyRxValueType& KyRxValueType::Desc<KyDiExpression>::value();
