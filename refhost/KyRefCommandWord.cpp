#include "KyRefCommandWord.h"

KyRefCommandWord KyRefCommandWord::parse(const wchar_t* typed) {
    KyRefCommandWord word;
    const wchar_t* at = typed != nullptr ? typed : L"";
    if (*at == L'\'') {
        word.transparent = true;
        ++at;
    }
    for (int prefix = 0; prefix < 2; ++prefix) {
        if (*at == L'_' && !word.global) {
            word.global = true;
            ++at;
        } else if (*at == L'.' && !word.builtIn) {
            word.builtIn = true;
            ++at;
        }
    }
    word.name = at;
    return word;
}
