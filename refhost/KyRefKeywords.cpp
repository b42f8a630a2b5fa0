#include "KyRefKeywords.h"

#include <cwctype>

#include "KyRefLanguage.h"

namespace {

bool abbreviates(const wchar_t* keyword, const KyString& answer) {
    const KyString word(keyword);
    const int length = answer.length();
    if (length == 0 || length > word.length() || word.left(length).compareNoCase(answer) != 0) {
        return false;
    }
    int capitals = 0;
    while (capitals < word.length() &&
           std::iswupper(static_cast<wint_t>(word.kwszPtr()[capitals]))) {
        ++capitals;
    }
    return length >= (capitals > 0 ? capitals : 1) || length == word.length();
}

}  // namespace

int KyRefKeywords::match(std::span<const KyRefKeyword> keywords, const wchar_t* answer) {
    KyString text = KyString(answer).trim();
    const bool global = text.kwszPtr()[0] == L'_';
    if (global) {
        text = text.mid(1);
    }
    int first = -1;
    for (std::size_t index = 0; index < keywords.size(); ++index) {
        const wchar_t* keyword =
            global ? keywords[index].global
                   : KyRefLanguage::pick(keywords[index].global, keywords[index].local);
        if (KyString(keyword).compareNoCase(text) == 0) {
            return static_cast<int>(index);
        }
        if (first < 0 && abbreviates(keyword, text)) {
            first = static_cast<int>(index);
        }
    }
    return first;
}

KyString KyRefKeywords::options(std::span<const KyRefKeyword> keywords) {
    KyString text(L"[");
    for (std::size_t index = 0; index < keywords.size(); ++index) {
        if (index > 0) {
            text.append(L'/');
        }
        text.append(KyRefLanguage::pick(keywords[index].global, keywords[index].local));
    }
    text.append(L']');
    return text;
}
