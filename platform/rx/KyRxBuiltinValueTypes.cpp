// The value types of the language's own types, of KyString and of the array of
// texts, and the step that makes every value type of the platform known by
// name. Each type is a singleton made at its first use and never freed, so
// that values and the class dictionary can point at it for the whole run.
//
// Type names: "void", "bool", "short", "int", "unsigned int", "double",
// "const wchar_t*", "KyString", "KyStringArray"; the other value types of the
// platform are named next to their payloads.
#include <cwchar>
#include <string>

#include "db/KyCmColor.h"
#include "db/KyCmTransparency.h"
#include "db/KyDbEnums.h"
#include "db/KyDbObjectId.h"
#include "ge/KyGePoint3d.h"
#include "gi/KyGiPhotographicExposureParameters.h"
#include "gi/KyGiToneOperatorParameters.h"
#include "rx/KyRxBoxedValue.h"
#include "rx/KyRxPlatformInit.h"
#include "rx/KyRxValue.h"
#include "rx/KyRxValueText.h"

namespace {

// The type of the empty value: no payload, and every two empty values are
// equal. Its text is empty.
class KyRxVoidValueType : public KyRxValueType {
public:
    KyRxVoidValueType() : KyRxValueType(L"void", 0, nullptr, nullptr) {}
};

// A plain payload whose text is made by `Text`.
template <typename T, std::wstring (*Text)(const T&)>
class KyRxPlainValueType : public KyRxValueTypePOD<T> {
public:
    explicit KyRxPlainValueType(const wchar_t* name) : KyRxValueTypePOD<T>(name, nullptr) {}

    int subToString(const void* instance, wchar_t* buffer, size_t size,
                    KyRxValueType::StringFormat) const override {
        return KyRxValueType::putText(Text(*static_cast<const T*>(instance)).c_str(), buffer, size);
    }
};

std::wstring boolText(const bool& value) {
    return value ? L"true" : L"false";
}
std::wstring shortText(const short& value) {
    return std::to_wstring(value);
}
std::wstring intText(const int& value) {
    return std::to_wstring(value);
}
std::wstring unsignedText(const unsigned int& value) {
    return std::to_wstring(value);
}
std::wstring doubleText(const double& value) {
    return kyrxDoubleText(value);
}

// A borrowed text: the value holds the pointer, not a copy, so the caller
// keeps the text alive. Texts compare by content, a null pointer as "".
class KyRxWideTextValueType : public KyRxValueTypePOD<const wchar_t*> {
public:
    KyRxWideTextValueType() : KyRxValueTypePOD<const wchar_t*>(L"const wchar_t*", nullptr) {}

    int subToString(const void* instance, wchar_t* buffer, size_t size,
                    StringFormat) const override {
        return putText(textOf(instance), buffer, size);
    }
    bool subEqualTo(const void* a, const void* b) const override {
        return std::wcscmp(textOf(a), textOf(b)) == 0;
    }

private:
    static const wchar_t* textOf(const void* instance) {
        const wchar_t* text = *static_cast<const wchar_t* const*>(instance);
        return text != nullptr ? text : L"";
    }
};

// Equality is KyString's own: case-sensitive.
class KyStringValueType : public KyRxNonBlittableType<KyString> {
public:
    KyStringValueType() : KyRxNonBlittableType<KyString>(L"KyString", nullptr) {}

    int subToString(const void* instance, wchar_t* buffer, size_t size,
                    StringFormat) const override {
        return putText(static_cast<const KyString*>(instance)->kwszPtr(), buffer, size);
    }
};

// Equal when the items are equal in order. The text joins the items with
// ", ", as a list reads in a single line.
class KyStringArrayValueType : public KyRxNonBlittableType<KyStringArray> {
public:
    KyStringArrayValueType() : KyRxNonBlittableType<KyStringArray>(L"KyStringArray", nullptr) {}

    int subToString(const void* instance, wchar_t* buffer, size_t size,
                    StringFormat) const override {
        const auto& items = *static_cast<const KyStringArray*>(instance);
        std::wstring text;
        for (int i = 0; i < items.length(); ++i) {
            if (i > 0) {
                text += L", ";
            }
            text += items[i].kwszPtr();
        }
        return putText(text.c_str(), buffer, size);
    }
};

}  // namespace

template <>
const KyRxValueType& KyRxValueType::Desc<void>::value() {
    static const KyRxValueType* const s_type = new KyRxVoidValueType();
    return *s_type;
}

template <>
const KyRxValueType& KyRxValueType::Desc<bool>::value() {
    static const KyRxValueType* const s_type = new KyRxPlainValueType<bool, boolText>(L"bool");
    return *s_type;
}

template <>
const KyRxValueType& KyRxValueType::Desc<short>::value() {
    static const KyRxValueType* const s_type = new KyRxPlainValueType<short, shortText>(L"short");
    return *s_type;
}

template <>
const KyRxValueType& KyRxValueType::Desc<int>::value() {
    static const KyRxValueType* const s_type = new KyRxPlainValueType<int, intText>(L"int");
    return *s_type;
}

template <>
const KyRxValueType& KyRxValueType::Desc<unsigned int>::value() {
    static const KyRxValueType* const s_type =
        new KyRxPlainValueType<unsigned int, unsignedText>(L"unsigned int");
    return *s_type;
}

template <>
const KyRxValueType& KyRxValueType::Desc<double>::value() {
    static const KyRxValueType* const s_type =
        new KyRxPlainValueType<double, doubleText>(L"double");
    return *s_type;
}

template <>
const KyRxValueType& KyRxValueType::Desc<const wchar_t*>::value() {
    static const KyRxValueType* const s_type = new KyRxWideTextValueType();
    return *s_type;
}

template <>
const KyRxValueType& KyRxValueType::Desc<KyString>::value() {
    static const KyRxValueType* const s_type = new KyStringValueType();
    return *s_type;
}

template <>
const KyRxValueType& KyRxValueType::Desc<KyStringArray>::value() {
    static const KyRxValueType* const s_type = new KyStringArrayValueType();
    return *s_type;
}

void kyrxRegisterValueTypes() {
    KyRxValueType::desc();
    KyRxBoxedValue::desc();
    KyRxBoxedValueOnStack::desc();

    KyRxValue::empty();
    KyRxValue::varies();
    KyRxValueType::Desc<bool>::value();
    KyRxValueType::Desc<short>::value();
    KyRxValueType::Desc<int>::value();
    KyRxValueType::Desc<unsigned int>::value();
    KyRxValueType::Desc<double>::value();
    KyRxValueType::Desc<const wchar_t*>::value();
    KyRxValueType::Desc<KyString>::value();
    KyRxValueType::Desc<KyStringArray>::value();
    KyRxValueType::Desc<KyDbObjectId>::value();
    KyRxValueType::Desc<KyCmColor>::value();
    KyRxValueType::Desc<KyCmTransparency>::value();
    KyRxValueType::Desc<KyDb::LineWeight>::value();
    KyRxValueType::Desc<KyDb::ShadowFlags>::value();
    KyRxValueType::Desc<KyGePoint3d>::value();
    KyRxValueType::Desc<KyGiToneOperatorParameters>::value();
    KyRxValueType::Desc<KyGiPhotographicExposureParameters>::value();
}
