#include "KyRefReservedWords.h"

#include "base/KyRxResourceInstance.h"

namespace {

// Numbers of the texts in the platform's resource module.
constexpr unsigned kWordTexts[] = {9200, 9201, 9203};
constexpr unsigned kFirstColorText = 9210;
const wchar_t* const kGlobalWords[] = {L"ByLayer", L"ByBlock", L"None"};
const wchar_t* const kGlobalColorNames[] = {L"red",  L"yellow",  L"green", L"cyan",
                                            L"blue", L"magenta", L"white"};

const KyRxResourceInstance& platformTexts() {
    static const KyRxResourceInstance texts(L"kyplatform");
    return texts;
}

KyString localText(unsigned id, const wchar_t* fallback) {
    const wchar_t* text = platformTexts().text(id);
    return KyString(text != nullptr ? text : fallback);
}

bool sameNoCase(const wchar_t* a, const KyString& b) {
    return !b.isEmpty() && b.compareNoCase(a) == 0;
}

}  // namespace

const wchar_t* KyRefReservedWords::global(Word word) {
    return kGlobalWords[word];
}

KyString KyRefReservedWords::local(Word word) {
    return localText(kWordTexts[word], kGlobalWords[word]);
}

bool KyRefReservedWords::matches(const wchar_t* text, Word word) {
    return text != nullptr &&
           (sameNoCase(text, KyString(global(word))) || sameNoCase(text, local(word)));
}

const wchar_t* KyRefReservedWords::globalColorName(int index) {
    return index >= 1 && index <= 7 ? kGlobalColorNames[index - 1] : L"";
}

KyString KyRefReservedWords::localColorName(int index) {
    if (index < 1 || index > 7) {
        return KyString();
    }
    return localText(kFirstColorText + static_cast<unsigned>(index), globalColorName(index));
}

int KyRefReservedWords::colorIndexNamed(const wchar_t* text) {
    for (int index = 1; index <= 7; ++index) {
        if (sameNoCase(text, KyString(globalColorName(index))) ||
            sameNoCase(text, localColorName(index))) {
            return index;
        }
    }
    return 0;
}
