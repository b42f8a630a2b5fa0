#include "KyAppSysVarValue.h"

#include <cmath>
#include <limits>
#include <vector>

#include "KyRefColorText.h"
#include "KyRefTransparencyText.h"
#include "db/KyCmColor.h"
#include "db/KyCmTransparency.h"

namespace {

std::string pointText(const resbuf& record, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += (i > 0 ? "," : "") + KyAppValue::formatNumber(record.resval.rpoint[i]);
    }
    return text;
}

// The coordinates of "x,y" or "x,y,z".
bool parseCoordinates(const std::string& text, std::vector<double>& coordinates) {
    std::size_t start = 0;
    while (true) {
        const std::size_t comma = text.find(',', start);
        double value = 0.0;
        if (!KyAppValue::parseNumber(text.substr(start, comma - start), value)) {
            return false;
        }
        coordinates.push_back(value);
        if (comma == std::string::npos) {
            return true;
        }
        start = comma + 1;
    }
}

// The text of any value as the host's command line takes it.
bool hostText(const KyAppValue& value, std::string& text, std::string& error) {
    switch (value.kind()) {
        case KyAppValue::Kind::kText:
            text = value.asText();
            return true;
        case KyAppValue::Kind::kNumber:
            text = KyAppValue::formatNumber(value.asNumber());
            return true;
        case KyAppValue::Kind::kBoolean:
            text = value.asBoolean() ? "1" : "0";
            return true;
        case KyAppValue::Kind::kAlpha: {
            KyCmTransparency transparency;
            value.toTransparency(transparency);
            text = KyRefTransparencyText::format(transparency).utf8();
            return true;
        }
        case KyAppValue::Kind::kObject:
            text = value.format().substr(1);
            return true;
        default:
            break;
    }
    KyCmColor color;
    if (!value.toColor(color)) {
        error = "the colour " + value.format() + " is in no known colour book";
        return false;
    }
    text = KyRefColorText::format(color).utf8();
    return true;
}

}  // namespace

KyAppValue KyAppSysVarValue::toValue(const resbuf& record) {
    switch (record.restype) {
        case KYRB_SHORT:
            return KyAppValue::number(record.resval.rint);
        case KYRB_LONG:
            return KyAppValue::number(record.resval.rlong);
        case KYRB_REAL:
        case KYRB_ANGLE:
        case KYRB_ORIENT:
            return KyAppValue::number(record.resval.rreal);
        case KYRB_POINT:
            return KyAppValue::text(pointText(record, 2));
        case KYRB_3DPOINT:
            return KyAppValue::text(pointText(record, 3));
        case KYRB_STRING:
            return KyAppValue::text(
                KyString(record.resval.rstring != nullptr ? record.resval.rstring : L"").utf8());
        default:
            return KyAppValue::text(std::string());
    }
}

bool KyAppSysVarValue::toRecord(const KyAppValue& value, short typeCode, KyRefResbufPtr& out,
                                std::string& error) {
    const bool isNumber = value.kind() == KyAppValue::Kind::kNumber;
    const bool isBoolean = value.kind() == KyAppValue::Kind::kBoolean;
    const double number = isBoolean ? (value.asBoolean() ? 1.0 : 0.0) : value.asNumber();
    switch (typeCode) {
        case KYRB_SHORT:
        case KYRB_LONG: {
            const double low = typeCode == KYRB_SHORT ? std::numeric_limits<short>::min()
                                                      : std::numeric_limits<int>::min();
            const double high = typeCode == KYRB_SHORT ? std::numeric_limits<short>::max()
                                                       : std::numeric_limits<int>::max();
            if ((!isNumber && !isBoolean) || std::trunc(number) != number || number < low ||
                number > high) {
                error = value.format() + " is not an integer of the variable's type";
                return false;
            }
            out = typeCode == KYRB_SHORT ? KyRefResbuf::makeShort(static_cast<short>(number))
                                         : KyRefResbuf::makeLong(static_cast<int>(number));
            return true;
        }
        case KYRB_REAL:
        case KYRB_ANGLE:
        case KYRB_ORIENT:
            if (!isNumber) {
                error = value.format() + " is not a number";
                return false;
            }
            out = KyRefResbuf::makeReal(number, typeCode);
            return true;
        case KYRB_POINT:
        case KYRB_3DPOINT: {
            std::vector<double> coordinates;
            const bool fits =
                value.kind() == KyAppValue::Kind::kText &&
                parseCoordinates(value.asText(), coordinates) &&
                (coordinates.size() == 2 || (coordinates.size() == 3 && typeCode == KYRB_3DPOINT));
            if (!fits) {
                error = value.format() +
                        (typeCode == KYRB_POINT ? " is not a point x,y" : " is not a point x,y,z");
                return false;
            }
            coordinates.resize(3, 0.0);
            out = KyRefResbuf::makePoint(
                KyGePoint3d(coordinates[0], coordinates[1], coordinates[2]), typeCode);
            return true;
        }
        case KYRB_STRING: {
            std::string text;
            if (!hostText(value, text, error)) {
                return false;
            }
            out = KyRefResbuf::makeString(KyString::fromUtf8(text));
            return true;
        }
        default:
            error = "the variable's type can't be written";
            return false;
    }
}
