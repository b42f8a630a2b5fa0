#include "KyAppPropertyValue.h"

#include "db/KyCmColor.h"
#include "db/KyCmTransparency.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbHandle.h"
#include "ge/KyGePoint3d.h"
#include "kydi/KyDiDbItem.h"
#include "kydi/KyDiExpression.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiValueTypes.h"
#include "rx/KyRxBoxedValue.h"
#include "rx/KyRxMember.h"
#include "rx/KyRxProperty.h"
#include "rx/KyRxValue.h"

namespace {

KyAppValue colorValue(const KyCmColor& color) {
    if (color.isByLayer()) {
        return KyAppValue::byLayer();
    }
    if (color.isByBlock()) {
        return KyAppValue::byBlock();
    }
    if (color.hasBookName() && color.hasColorName()) {
        return KyAppValue::bookColor(KyString(color.bookName()).utf8(),
                                     KyString(color.colorName()).utf8());
    }
    // No colour at all prints as its index, 257, which no value reads back.
    if (color.isByACI() || color.isNone()) {
        return KyAppValue::colorIndex(color.colorIndex());
    }
    return KyAppValue::trueColor(color.red(), color.green(), color.blue());
}

KyAppValue transparencyValue(const KyCmTransparency& transparency) {
    if (transparency.isByLayer()) {
        return KyAppValue::byLayer();
    }
    if (transparency.isByBlock()) {
        return KyAppValue::byBlock();
    }
    return KyAppValue::alpha(transparency.alpha());
}

std::string itemText(KyDiDynamicObject* item) {
    if (item == nullptr) {
        return "none";
    }
    // A value item shows its value; an item of a record, or of a name
    // without a value, its display name.
    if (const KyRxValue* value = item->value(); value != nullptr && !value->isEmpty()) {
        return KyAppPropertyValue::format(*value);
    }
    return KyAppValue::text(KyDiGetItemName(item).utf8()).format();
}

}  // namespace

std::string KyAppPropertyValue::format(const KyRxValue& value) {
    if (value.isVaries()) {
        return "varies";
    }
    if (const bool* flag = valueCast<bool>(&value)) {
        return KyAppValue::boolean(*flag).format();
    }
    if (const double* number = valueCast<double>(&value)) {
        return KyAppValue::number(*number).format();
    }
    if (const int* number = valueCast<int>(&value)) {
        return KyAppValue::number(*number).format();
    }
    if (const short* number = valueCast<short>(&value)) {
        return KyAppValue::number(*number).format();
    }
    if (const unsigned int* number = valueCast<unsigned int>(&value)) {
        return KyAppValue::number(*number).format();
    }
    if (const KyString* text = valueCast<KyString>(&value)) {
        return KyAppValue::text(text->utf8()).format();
    }
    if (const wchar_t* const* text = valueCast<const wchar_t*>(&value)) {
        return KyAppValue::text(KyString(*text).utf8()).format();
    }
    if (const KyCmColor* color = valueCast<KyCmColor>(&value)) {
        return colorValue(*color).format();
    }
    if (const KyCmTransparency* transparency = valueCast<KyCmTransparency>(&value)) {
        return transparencyValue(*transparency).format();
    }
    if (const KyDbObjectId* id = valueCast<KyDbObjectId>(&value)) {
        return id->isNull() ? "none" : KyAppValue::object(id->handle()).format();
    }
    if (const KyGePoint3d* point = valueCast<KyGePoint3d>(&value)) {
        return "pt:" + KyAppValue::formatNumber(point->x) + "," +
               KyAppValue::formatNumber(point->y) + "," + KyAppValue::formatNumber(point->z);
    }
    if (KyDiDynamicObject* const* item = valueCast<KyDiDynamicObject*>(&value)) {
        return itemText(*item);
    }
    if (const KyDiExpression* expression = valueCast<KyDiExpression>(&value)) {
        return expression->expression.isEmpty()
                   ? format(expression->value)
                   : KyAppValue::text(expression->expression.utf8()).format();
    }
    // A value of several members without a text of its own (tone
    // parameters) prints its members.
    const KyRxMemberCollection* members = value.type().members();
    if (members != nullptr && value.text().isEmpty()) {
        KyRxValue copy = value;
        KyRxBoxedValueOnStack box(copy);
        std::string text = "{";
        for (int i = 0; i < members->count(); ++i) {
            const auto* member = kyrxCast<KyRxProperty>(members->getAt(i));
            KyRxValue part;
            if (member == nullptr || member->getValue(&box, part) != Kyro::eOk) {
                continue;
            }
            text += (text.size() > 1 ? ", " : "") + KyString(member->name()).utf8() + "=" +
                    format(part);
        }
        return text + "}";
    }
    // Enumerated values print their tags; anything else its own text.
    return KyAppValue::text(value.text().utf8()).format();
}

bool KyAppPropertyValue::toValue(const KyAppValue& value, const KyRxValueType& type,
                                 KyDbDatabase* database, KyRxValue& out, std::string& error) {
    if (type == KyRxValueType::Desc<KyCmColor>::value()) {
        KyCmColor color;
        if (!value.toColor(color)) {
            error = value.format() + " is no colour";
            return false;
        }
        out = KyRxValue(color);
        return true;
    }
    if (type == KyRxValueType::Desc<KyCmTransparency>::value()) {
        KyCmTransparency transparency;
        if (!value.toTransparency(transparency)) {
            error = value.format() + " is no transparency";
            return false;
        }
        out = KyRxValue(transparency);
        return true;
    }
    if (type == KyRxValueType::Desc<bool>::value() && value.kind() == KyAppValue::Kind::kBoolean) {
        out = KyRxValue(value.asBoolean());
        return true;
    }
    if (value.kind() == KyAppValue::Kind::kNumber) {
        if (type == KyRxValueType::Desc<double>::value()) {
            out = KyRxValue(value.asNumber());
            return true;
        }
        if (type == KyRxValueType::Desc<int>::value()) {
            out = KyRxValue(static_cast<int>(value.asNumber()));
            return true;
        }
        if (type == KyRxValueType::Desc<short>::value()) {
            out = KyRxValue(static_cast<short>(value.asNumber()));
            return true;
        }
    }
    if (type == KyRxValueType::Desc<KyString>::value() && value.kind() == KyAppValue::Kind::kText) {
        out = KyRxValue(KyString::fromUtf8(value.asText()));
        return true;
    }
    if (type == KyRxValueType::Desc<KyDbObjectId>::value() &&
        value.kind() == KyAppValue::Kind::kObject && database != nullptr) {
        KyDbObjectId id;
        if (database->getKyDbObjectId(id, KyDbHandle(value.handle())) != Kyro::eOk) {
            error = "no object " + value.format() + " in the drawing";
            return false;
        }
        out = KyRxValue(id);
        return true;
    }
    error = value.format() + " does not fit a value of " + KyString(type.name()).utf8();
    return false;
}
