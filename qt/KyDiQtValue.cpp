#include "kydiqt/KyDiQtValue.h"

#include <QCoreApplication>
#include <QStringList>

#include "kydi/KyDiDynamicObject.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiObservableCollection.h"
#include "rx/KyRxMethod.h"
#include "rx/KyRxProperty.h"
#include "rx/KyRxStandardAttributes.h"

namespace {

constexpr auto kLocal = KyRxValueType::kStringFormatLocalized;

// The names of the first seven indices, as a colour's text shows them.
const char* const kIndexNames[] = {"red", "yellow", "green", "cyan", "blue", "magenta", "white"};

// A colour typed as a user types it: "ByLayer", "ByBlock", an index, the
// name of one of the first seven, or "R,G,B".
bool colorFromText(const QString& text, KyCmColor& color) {
    const QString word = text.trimmed();
    for (int i = 0; i < 7; ++i) {
        if (word.compare(QLatin1String(kIndexNames[i]), Qt::CaseInsensitive) == 0) {
            return color.setColorIndex(static_cast<unsigned short>(i + 1)) == Kyro::eOk;
        }
    }
    if (word.compare(QLatin1String("ByLayer"), Qt::CaseInsensitive) == 0) {
        return color.setColorMethod(KyCmColor::kByLayer) == Kyro::eOk;
    }
    if (word.compare(QLatin1String("ByBlock"), Qt::CaseInsensitive) == 0) {
        return color.setColorMethod(KyCmColor::kByBlock) == Kyro::eOk;
    }
    bool ok = false;
    const int index = word.toInt(&ok);
    if (ok) {
        return index >= 1 && index <= 255 &&
               color.setColorIndex(static_cast<unsigned short>(index)) == Kyro::eOk;
    }
    const QStringList parts = word.split(QLatin1Char(','));
    if (parts.size() != 3) {
        return false;
    }
    int rgb[3] = {};
    for (int i = 0; i < 3; ++i) {
        rgb[i] = parts[i].trimmed().toInt(&ok);
        if (!ok || rgb[i] < 0 || rgb[i] > 255) {
            return false;
        }
    }
    return color.setRGB(static_cast<unsigned char>(rgb[0]), static_cast<unsigned char>(rgb[1]),
                        static_cast<unsigned char>(rgb[2])) == Kyro::eOk;
}

bool toColor(const QVariant& variant, KyCmColor& color) {
    if (variant.metaType() == QMetaType::fromType<KyCmColor>()) {
        color = variant.value<KyCmColor>();
        return true;
    }
    if (variant.metaType() == QMetaType::fromType<QColor>()) {
        const QColor rgb = variant.value<QColor>();
        return rgb.isValid() && color.setRGB(static_cast<unsigned char>(rgb.red()),
                                             static_cast<unsigned char>(rgb.green()),
                                             static_cast<unsigned char>(rgb.blue())) == Kyro::eOk;
    }
    if (variant.metaType() == QMetaType::fromType<int>()) {
        const int index = variant.toInt();
        return index >= 1 && index <= 255 &&
               color.setColorIndex(static_cast<unsigned short>(index)) == Kyro::eOk;
    }
    return variant.metaType() == QMetaType::fromType<QString>() &&
           colorFromText(variant.toString(), color);
}

bool toTransparency(const QVariant& variant, KyCmTransparency& transparency) {
    if (variant.metaType() == QMetaType::fromType<KyCmTransparency>()) {
        transparency = variant.value<KyCmTransparency>();
        return true;
    }
    bool ok = false;
    const int alpha = variant.toInt(&ok);
    if (!ok || alpha < 0 || alpha > 255 || variant.metaType() == QMetaType::fromType<bool>()) {
        return false;
    }
    transparency.setAlpha(static_cast<std::uint8_t>(alpha));
    return true;
}

// The tag of an enumeration whose name or local name is `text`.
const KyRxEnumTag* tagNamed(const IKyRxEnumeration& tags, const KyString& text) {
    for (int i = 0; i < tags.count(); ++i) {
        const KyRxEnumTag& tag = tags.getAt(i);
        if (text.compareNoCase(tag.name()) == 0 || text.compareNoCase(tag.localName()) == 0) {
            return &tag;
        }
    }
    return nullptr;
}

// The item named `name` of the collection a property refers to.
KyDiDynamicObject* referredItem(const KyRxPropertyBase& property, const KyString& name) {
    const auto* refersTo = static_cast<const KyRxRefersToAttribute*>(
        property.attributes().get(KyRxRefersToAttribute::desc()));
    if (refersTo == nullptr) {
        return nullptr;
    }
    KyDiObservableCollection* list = KyDiManager::getKnownCollectionFromPath(refersTo->path());
    if (list == nullptr) {
        return nullptr;
    }
    const KyDiItemArray& items = list->getItems();
    for (int i = 0; i < items.length(); ++i) {
        if (KyDiGetItemName(items[i]).compare(name) == 0) {
            return items[i];
        }
    }
    return nullptr;
}

}  // namespace

QString KyDiQtValue::fromKyString(const KyString& text) {
    return QString::fromWCharArray(text.kwszPtr(), text.length());
}

KyString KyDiQtValue::toKyString(const QString& text) {
    return KyString(text.toStdWString().c_str());
}

KyDiDynamicObject* KyDiQtValue::item(const KyRxValue& value) {
    KyDiDynamicObject* const* item = valueCast<KyDiDynamicObject*>(&value);
    return item != nullptr ? *item : nullptr;
}

KyRxValue KyDiQtValue::itemValue(const KyRxValue& value) {
    if (KyDiDynamicObject* object = item(value)) {
        if (const KyRxValue* own = object->value(); own != nullptr && !own->isEmpty()) {
            return *own;
        }
    }
    return value;
}

QString KyDiQtValue::text(const KyRxValue& value) {
    if (value.isVaries()) {
        return QCoreApplication::translate("KyDiQtValue", "*VARIES*");
    }
    const KyRxValue shown = itemValue(value);
    if (KyDiDynamicObject* object = item(shown)) {
        return fromKyString(KyDiGetItemName(object));
    }
    if (const std::optional<bool> on = flag(shown)) {
        return *on ? QCoreApplication::translate("KyDiQtValue", "Yes")
                   : QCoreApplication::translate("KyDiQtValue", "No");
    }
    if (const double* number = valueCast<double>(&shown)) {
        return QString::number(*number, 'g', 12);
    }
    if (const int* number = valueCast<int>(&shown)) {
        return QString::number(*number);
    }
    if (const short* number = valueCast<short>(&shown)) {
        return QString::number(*number);
    }
    if (const unsigned int* number = valueCast<unsigned int>(&shown)) {
        return QString::number(*number);
    }
    if (const KyString* text = valueCast<KyString>(&shown)) {
        return fromKyString(*text);
    }
    if (const wchar_t* const* text = valueCast<const wchar_t*>(&shown)) {
        return QString::fromWCharArray(*text);
    }
    return fromKyString(shown.text(kLocal));
}

QVariant KyDiQtValue::variant(const KyRxValue& value) {
    if (value.isVaries() || value.isEmpty()) {
        return QVariant();
    }
    // An item is edited by its display name, but for a colour or a
    // transparency item, which is edited as its value.
    KyRxValue shown = value;
    if (KyDiDynamicObject* object = item(value)) {
        const KyRxValue own = itemValue(value);
        if (valueCast<KyCmColor>(&own) == nullptr && valueCast<KyCmTransparency>(&own) == nullptr) {
            return fromKyString(KyDiGetItemName(object));
        }
        shown = own;
    }
    if (const std::optional<bool> on = flag(shown)) {
        return *on;
    }
    if (const double* number = valueCast<double>(&shown)) {
        return *number;
    }
    if (const int* number = valueCast<int>(&shown)) {
        return *number;
    }
    if (const short* number = valueCast<short>(&shown)) {
        return static_cast<int>(*number);
    }
    if (const unsigned int* number = valueCast<unsigned int>(&shown)) {
        return *number;
    }
    if (const KyCmColor* color = valueCast<KyCmColor>(&shown)) {
        return QVariant::fromValue(*color);
    }
    if (const KyCmTransparency* transparency = valueCast<KyCmTransparency>(&shown)) {
        return QVariant::fromValue(*transparency);
    }
    return text(shown);
}

std::optional<bool> KyDiQtValue::flag(const KyRxValue& value) {
    if (const bool* on = valueCast<bool>(&value)) {
        return *on;
    }
    return std::nullopt;
}

QColor KyDiQtValue::swatch(const KyRxValue& value) {
    const KyRxValue shown = itemValue(value);
    const KyCmColor* color = valueCast<KyCmColor>(&shown);
    if (color == nullptr || !(color->isByACI() || color->isByColor())) {
        return QColor();
    }
    return QColor(color->red(), color->green(), color->blue());
}

bool KyDiQtValue::toValue(const QVariant& variant, const KyRxPropertyBase& property,
                          KyRxValue& out) {
    const KyRxValueType& type = property.type();
    // A property that refers to a collection takes the item of that name,
    // unless it holds a text itself.
    if (variant.metaType() == QMetaType::fromType<QString>() &&
        type != KyRxValueType::Desc<KyString>::value()) {
        if (KyDiDynamicObject* found = referredItem(property, toKyString(variant.toString()))) {
            out = KyRxValue(found);
            return true;
        }
    }
    if (type == KyRxValueType::Desc<KyCmColor>::value()) {
        KyCmColor color;
        if (!toColor(variant, color)) {
            return false;
        }
        out = KyRxValue(color);
        return true;
    }
    if (type == KyRxValueType::Desc<KyCmTransparency>::value()) {
        KyCmTransparency transparency;
        if (!toTransparency(variant, transparency)) {
            return false;
        }
        out = KyRxValue(transparency);
        return true;
    }
    if (const IKyRxEnumeration* tags = type.enumeration()) {
        if (variant.metaType() == QMetaType::fromType<QString>()) {
            const KyRxEnumTag* tag = tagNamed(*tags, toKyString(variant.toString()));
            if (tag == nullptr) {
                return false;
            }
            out = tag->value();
            return true;
        }
    }
    if (type == KyRxValueType::Desc<bool>::value()) {
        if (variant.metaType() != QMetaType::fromType<bool>() &&
            variant.metaType() != QMetaType::fromType<int>()) {
            return false;
        }
        out = KyRxValue(variant.toBool());
        return true;
    }
    bool ok = false;
    if (type == KyRxValueType::Desc<double>::value()) {
        const double number = variant.toDouble(&ok);
        out = KyRxValue(number);
        return ok;
    }
    if (type == KyRxValueType::Desc<int>::value()) {
        const int number = variant.toInt(&ok);
        out = KyRxValue(number);
        return ok;
    }
    if (type == KyRxValueType::Desc<short>::value()) {
        const int number = variant.toInt(&ok);
        out = KyRxValue(static_cast<short>(number));
        return ok && number >= -32768 && number <= 32767;
    }
    if (type == KyRxValueType::Desc<KyString>::value() &&
        variant.metaType() == QMetaType::fromType<QString>()) {
        out = KyRxValue(toKyString(variant.toString()));
        return true;
    }
    return false;
}

QVariant KyDiQtValue::roleData(const KyRxValue& value, int role) {
    switch (role) {
        case Qt::DisplayRole:
            return text(value);
        case Qt::EditRole:
            return variant(value);
        case Qt::DecorationRole: {
            const QColor color = swatch(value);
            return color.isValid() ? QVariant(color) : QVariant();
        }
        case Qt::CheckStateRole: {
            const std::optional<bool> on = flag(value);
            return on.has_value() ? QVariant(static_cast<int>(*on ? Qt::Checked : Qt::Unchecked))
                                  : QVariant();
        }
        default:
            return QVariant();
    }
}

bool KyDiQtValue::write(const QVariant& variant, int role, const KyRxProperty& property,
                        KyDiDynamicObject* object) {
    if (property.isReadOnly()) {
        return false;
    }
    KyRxValue written;
    if (role == Qt::CheckStateRole) {
        if (property.type() != KyRxValueType::Desc<bool>::value()) {
            return false;
        }
        written = KyRxValue(variant.toInt() == Qt::Checked);
    } else if (role != Qt::EditRole || !toValue(variant, property, written)) {
        return false;
    }
    // What shows the value changes when the object reports the change.
    return property.setValue(object, written) == Kyro::eOk;
}
