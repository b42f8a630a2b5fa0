// KyRxPropertyExpressionPE: the protocol extension of a class whose numeric
// properties may hold a formula (KyFormula) instead of a plain number. A
// property that holds one keeps the formula's text beside the value it
// evaluates to; a plain value written to the property drops the formula.
//
//   const auto* formulas = kyrxCast<KyRxPropertyExpressionPE>(
//       object->queryX(KyRxPropertyExpressionPE::desc()));
//   if (formulas != nullptr && formulas->isExpression(object, height)) {
//       KyString text = formulas->getExpression(object, height);  // "" for a plain value
//   }
//
// The extension answers for the members of the class it is registered on
// (and of its parents' registrations, through queryX); a member that can't
// hold a formula is no expression, and setExpression refuses it with
// eNotApplicable.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyString.h"
#include "base/KyroErrorStatus.h"
#include "rx/KyRxObject.h"

class KyRxMember;

class KYPLATFORM_API KyRxPropertyExpressionPE : public KyRxObject {
public:
    KYRX_DECLARE_MEMBERS(KyRxPropertyExpressionPE);
    ~KyRxPropertyExpressionPE() override;

    // True when `member` of `object` takes a formula: it may hold one now
    // (getExpression gives its text) or a plain value (the text is empty).
    virtual bool isExpression(const KyRxObject* object, const KyRxMember* member) const = 0;
    // The formula text; empty when the member holds a plain value.
    virtual KyString getExpression(const KyRxObject* object, const KyRxMember* member) const = 0;
    // Sets the formula and the value it evaluates to, in one change: the
    // statuses of the property's setter (eWasNotOpenForWrite, eInvalidInput
    // for a value it refuses), and eInvalidInput for a text that is not a
    // formula or divides by zero. A refused formula changes nothing.
    virtual Kyro::ErrorStatus setExpression(KyRxObject* object, const KyRxMember* member,
                                            const wchar_t* text) const = 0;

protected:
    KyRxPropertyExpressionPE() = default;
};
