#include "reflection/HostValueAccess.h"

#include <climits>

#include "kydi/KyDiExpression.h"
#include "rx/KyRxBoxedValue.h"
#include "rx/KyRxProperty.h"
#include "rx/KyRxPropertyExpressionPE.h"

namespace {

// The value of an expression written without a formula, in the member's
// type: an int from a double is truncated, a double from an int widened.
bool plainValueFor(const KyRxMember* member, const KyRxValue& inner, KyRxValue& out) {
    const KyRxValueType& type = member->type();
    if (inner.type() == type) {
        out = inner;
        return true;
    }
    if (type == KyRxValueType::Desc<int>::value()) {
        const double* number = valueCast<double>(&inner);
        // A number beyond the range of an int has no truncation.
        if (number != nullptr && *number > static_cast<double>(INT_MIN) - 1.0 &&
            *number < static_cast<double>(INT_MAX) + 1.0) {
            out = KyRxValue(static_cast<int>(*number));
            return true;
        }
    }
    if (type == KyRxValueType::Desc<double>::value()) {
        if (const int* number = valueCast<int>(&inner)) {
            out = KyRxValue(static_cast<double>(*number));
            return true;
        }
    }
    return false;
}

}  // namespace

const KyRxPropertyExpressionPE* HostValueAccess::formulasOf(const KyRxObject* object) {
    return kyrxCast<KyRxPropertyExpressionPE>(object->queryX(KyRxPropertyExpressionPE::desc()));
}

Kyro::ErrorStatus HostValueAccess::readHostValue(const KyRxObject* object, const KyRxMember* member,
                                                 KyRxValue& value, int index, const wchar_t* key) {
    return readHostValue(object, member, value, index, key,
                         object != nullptr ? formulasOf(object) : nullptr);
}

Kyro::ErrorStatus HostValueAccess::readHostValue(const KyRxObject* object, const KyRxMember* member,
                                                 KyRxValue& value, int index, const wchar_t* key,
                                                 const KyRxPropertyExpressionPE* formulas) {
    if (object == nullptr || member == nullptr) {
        return Kyro::eInvalidInput;
    }
    Kyro::ErrorStatus status = Kyro::eInvalidInput;
    if (index != -1) {
        const auto* indexed = kyrxCast<KyRxIndexedProperty>(member);
        if (indexed == nullptr) {
            return Kyro::eInvalidInput;
        }
        status = indexed->getValue(object, index, value);
    } else if (key != nullptr) {
        const auto* dictionary = kyrxCast<KyRxDictionaryProperty>(member);
        if (dictionary == nullptr) {
            return Kyro::eInvalidInput;
        }
        status = dictionary->getValue(object, key, value);
    } else {
        const auto* property = kyrxCast<KyRxProperty>(member);
        if (property == nullptr) {
            return Kyro::eInvalidInput;
        }
        status = property->getValue(object, value);
    }
    if (status != Kyro::eOk) {
        return status;
    }
    // A member that holds a formula on this object now reads as the value
    // with the formula's text.
    if (formulas != nullptr && formulas->isExpression(object, member)) {
        KyDiExpression expression{value, formulas->getExpression(object, member)};
        value = KyRxValue(expression);
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus HostValueAccess::writeHostValue(KyRxObject* object, const KyRxMember* member,
                                                  const KyRxValue& value, int index,
                                                  const wchar_t* key) {
    if (object == nullptr || member == nullptr) {
        return Kyro::eInvalidInput;
    }
    if (index != -1) {
        const auto* indexed = kyrxCast<KyRxIndexedProperty>(member);
        return indexed != nullptr ? indexed->setValue(object, index, value) : Kyro::eInvalidInput;
    }
    if (key != nullptr) {
        const auto* dictionary = kyrxCast<KyRxDictionaryProperty>(member);
        return dictionary != nullptr ? dictionary->setValue(object, key, value)
                                     : Kyro::eInvalidInput;
    }
    const auto* property = kyrxCast<KyRxProperty>(member);
    if (property == nullptr) {
        return Kyro::eInvalidInput;
    }
    const KyDiExpression* expression = valueCast<KyDiExpression>(&value);
    const KyRxPropertyExpressionPE* formulas = expression != nullptr ? formulasOf(object) : nullptr;
    // The member holds a formula on this object now.
    const KyRxPropertyExpressionPE* formula =
        formulas != nullptr && formulas->isExpression(object, member) ? formulas : nullptr;
    if (formula == nullptr) {
        return property->setValue(object, value);
    }
    if (!expression->expression.isEmpty()) {
        return formula->setExpression(object, member, expression->expression.kwszPtr());
    }
    // No formula: the value is written, which clears the formula.
    KyRxValue plain;
    if (!plainValueFor(member, expression->value, plain)) {
        return Kyro::eInvalidInput;
    }
    return property->setValue(object, plain);
}
