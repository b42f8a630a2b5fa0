#include "db/KyDbNames.h"

KyString KyDbNames::folded(const wchar_t* name) {
    KyString key(name);
    key.makeUpper();
    key.makeLower();
    return key;
}

Kyro::ErrorStatus KyDbNames::checkRecordName(const wchar_t* name) {
    if (name == nullptr || name[0] == L'\0') {
        return Kyro::eInvalidName;
    }
    const std::size_t length = std::wcslen(name);
    if (length > 255) {
        return Kyro::eInvalidName;
    }
    for (std::size_t i = 0; i < length; ++i) {
        const wchar_t ch = name[i];
        if (ch < 0x20 || std::wcschr(L"<>/\":;?,=`", ch) != nullptr || (ch == L'*' && i > 0)) {
            return Kyro::eInvalidName;
        }
    }
    return Kyro::eOk;
}

std::size_t KyDbNames::Hash::operator()(const KyString& key) const {
    // FNV-1a over the characters.
    std::size_t hash = static_cast<std::size_t>(14695981039346656037ull);
    for (const wchar_t* p = key.kwszPtr(); *p != L'\0'; ++p) {
        hash ^= static_cast<std::size_t>(*p);
        hash *= static_cast<std::size_t>(1099511628211ull);
    }
    return hash;
}
