#include "db/KyDbReservedStrings.h"

#include <array>
#include <map>
#include <string>

#include "base/KyRxResourceInstance.h"
#include "base/KyString.h"
#include "rx/KyRxStandardAttributes.h"

namespace {

constexpr int kCount = KyDb::kReservedStringCount;
// The local form of kind k is the resource text kFirstText + k.
constexpr unsigned kFirstText = 9300;

// The global forms, by kind.
const wchar_t* const kGlobalForms[kCount] = {
    L"ByLayer",        L"ByBlock",   L"None",   L"Continuous",
    L"Standard",       L"Normal",    L"Layout", L"Default",
    L"Unnamed",        L"ByColor",   L"Model",  L"Global",
    L"2dWireframe",    L"Wireframe", L"Hidden", L"Realistic",
    L"Conceptual",     L"Title",     L"Header", L"Data",
    L"Shades of Gray", L"Sketchy",   L"X-Ray",  L"Shaded with edges",
    L"Shaded",
};

using LocalForms = std::array<KyString, kCount>;

// The local forms of each language met so far. A language's texts do not
// change while the process runs, so each is read once; the strings stay for
// the rest of the process, as callers keep the pointers.
const LocalForms& localForms() {
    static auto* s_byLanguage = new std::map<std::wstring, LocalForms>();
    const wchar_t* language = KyRxResourceInstance::language();
    const std::wstring key = language != nullptr ? language : L"";
    auto found = s_byLanguage->find(key);
    if (found == s_byLanguage->end()) {
        LocalForms forms;
        for (int kind = 0; kind < kCount; ++kind) {
            KyString text = KyRxResourceTables::text(0, kFirstText + static_cast<unsigned>(kind));
            forms[static_cast<std::size_t>(kind)] =
                text.isEmpty() ? KyString(kGlobalForms[kind]) : text;
        }
        found = s_byLanguage->emplace(key, std::move(forms)).first;
    }
    return found->second;
}

bool isKind(int kind) {
    return kind >= 0 && kind < kCount;
}

bool matches(const wchar_t* text, int kind) {
    return KyString(kGlobalForms[kind]).compareNoCase(text) == 0 ||
           localForms()[static_cast<std::size_t>(kind)].compareNoCase(text) == 0;
}

}  // namespace

const wchar_t* kydbGetReservedString(KyDb::ReservedStringEnumType kind, bool localized) {
    if (!isKind(kind)) {
        return nullptr;
    }
    return localized ? localForms()[static_cast<std::size_t>(kind)].kwszPtr() : kGlobalForms[kind];
}

bool kydbIsReservedString(const wchar_t* text, KyDb::ReservedStringEnumType kind) {
    return text != nullptr && isKind(kind) && matches(text, kind);
}

const wchar_t* kydbXlateReservedString(const wchar_t* text, bool toLocal) {
    if (text == nullptr || text[0] == L'\0') {
        return nullptr;
    }
    for (int kind = 0; kind < kCount; ++kind) {
        if (matches(text, kind)) {
            return kydbGetReservedString(static_cast<KyDb::ReservedStringEnumType>(kind), toLocal);
        }
    }
    return nullptr;
}
