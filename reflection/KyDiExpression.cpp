#include "kydi/KyDiExpression.h"

#include "reflection/KyDiExpressionProperties.h"
#include "rx/KyRxBoxedValue.h"
#include "rx/KyRxDictionary.h"
#include "rx/KyRxMember.h"

namespace {

class ExpressionValueType : public KyRxNonBlittableType<KyDiExpression> {
public:
    ExpressionValueType() : KyRxNonBlittableType(L"KyDiExpression", &buildMembers) {}

    // The formula's text, or the value's own for a plain value.
    int subToString(const void* instance, wchar_t* buffer, size_t size,
                    StringFormat format) const override {
        const auto* expression = static_cast<const KyDiExpression*>(instance);
        wchar_t local[32] = {};
        const wchar_t* text = expression->expression.kwszPtr();
        if (expression->expression.isEmpty()) {
            expression->value.toString(local, 32, format);
            text = local;
        }
        return putText(text, buffer, size);
    }

private:
    static void buildMembers(KyRxMemberCollectionBuilder& builder, void*) {
        builder.add(new KyDiExpressionExpressionProperty());
        builder.add(new KyDiExpressionValueProperty<int>(L"IntegerValue"));
        builder.add(new KyDiExpressionValueProperty<double>(L"DoubleValue"));
    }
};

const KyRxValueType* g_expressionType = nullptr;

KyDiExpression* expressionOf(const KyRxObject* object) {
    return valueCast<KyDiExpression>(KyRxValue::unbox(const_cast<KyRxObject*>(object)));
}

}  // namespace

bool operator==(const KyDiExpression& a, const KyDiExpression& b) {
    return a.value.type() == b.value.type() && !a.value.isEmpty() && !b.value.isEmpty() &&
           a.value == b.value && a.expression.compare(b.expression) == 0;
}

template <>
const KyRxValueType& KyRxValueType::Desc<KyDiExpression>::value() {
    if (g_expressionType == nullptr) {
        g_expressionType = new ExpressionValueType();
    }
    return *g_expressionType;
}

KyDiExpressionExpressionProperty::KyDiExpressionExpressionProperty()
    : KyRxProperty(L"Expression", KyRxValueType::Desc<KyString>::value()) {}

Kyro::ErrorStatus KyDiExpressionExpressionProperty::subGetValue(const KyRxObject* object,
                                                                KyRxValue& value) const {
    const KyDiExpression* expression = expressionOf(object);
    if (expression == nullptr) {
        return Kyro::eNotThatKindOfClass;
    }
    value = KyRxValue(expression->expression);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDiExpressionExpressionProperty::subSetValue(KyRxObject* object,
                                                                const KyRxValue& value) const {
    KyDiExpression* expression = expressionOf(object);
    if (expression == nullptr) {
        return Kyro::eNotThatKindOfClass;
    }
    const KyString* text = valueCast<KyString>(&value);
    if (text == nullptr) {
        return Kyro::eInvalidInput;
    }
    expression->expression = *text;
    return Kyro::eOk;
}

template <typename T>
KyDiExpressionValueProperty<T>::KyDiExpressionValueProperty(const wchar_t* name)
    : KyRxProperty(name, KyRxValueType::Desc<T>::value()) {}

template <typename T>
Kyro::ErrorStatus KyDiExpressionValueProperty<T>::subGetValue(const KyRxObject* object,
                                                              KyRxValue& value) const {
    const KyDiExpression* expression = expressionOf(object);
    if (expression == nullptr) {
        return Kyro::eNotThatKindOfClass;
    }
    if (expression->value.type() != type()) {
        return Kyro::eNotApplicable;
    }
    value = expression->value;
    return Kyro::eOk;
}

template <typename T>
Kyro::ErrorStatus KyDiExpressionValueProperty<T>::subSetValue(KyRxObject* object,
                                                              const KyRxValue& value) const {
    KyDiExpression* expression = expressionOf(object);
    if (expression == nullptr) {
        return Kyro::eNotThatKindOfClass;
    }
    if (expression->value.type() != type()) {
        return Kyro::eNotApplicable;
    }
    if (valueCast<T>(&value) == nullptr) {
        return Kyro::eInvalidInput;
    }
    expression->value = value;
    return Kyro::eOk;
}

template class KyDiExpressionValueProperty<int>;
template class KyDiExpressionValueProperty<double>;

void KyDiExpressionProperties::removeTypeFromClassDictionary() {
    if (g_expressionType == nullptr) {
        return;
    }
    // The dictionary is part of the platform's set-up: without it nothing
    // can go on.
    KyRxDictionary* classes =
        kyrxCast<KyRxDictionary>(kyrxSysRegistry()->at(KYRX_CLASS_DICTIONARY));
    if (classes == nullptr) {
        kyrx_abort(L"The class dictionary is missing");
    }
    classes->remove(g_expressionType->name());
}
