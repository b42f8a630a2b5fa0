#include "KyRefLayerAnswers.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <iterator>

#include "KyRefColorText.h"
#include "KyRefCommandContext.h"
#include "KyRefLayerNameList.h"
#include "KyRefLineweightText.h"
#include "KyRefReadAccess.h"
#include "KyRefTransparencyText.h"
#include "db/KyCmColorBook.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbSymbolTable.h"
#include "rx/KyRxValue.h"

namespace {

const KyRefKeyword kColorKeywords[] = {
    {L"Truecolor", L"Echtfarbe"},
    {L"COlorbook", L"FArbbuch"},
};
constexpr int kTrueColor = 0;
constexpr int kColorBook = 1;

// "__WORD" is read as "_WORD": a text may put the global mark before an
// argument that carries one already.
KyString singleGlobalMark(const KyString& answer) {
    KyString text = KyString(answer).trim();
    while (text.length() >= 2 && text.kwszPtr()[0] == L'_' && text.kwszPtr()[1] == L'_') {
        text = text.mid(1);
    }
    return text;
}

// Millimetres as a user types them: "0.25", "0,25", with or without "mm".
bool readMillimetres(const KyString& answer, double& millimetres) {
    KyString text = KyString(answer).trim();
    if (text.length() >= 2 && text.right(2).compareNoCase(L"mm") == 0) {
        text = text.left(text.length() - 2).trim();
    }
    std::wstring number(text.kwszPtr());
    for (wchar_t& c : number) {
        if (c == L',') {
            c = L'.';
        }
    }
    if (number.empty()) {
        return false;
    }
    wchar_t* end = nullptr;
    millimetres = std::wcstod(number.c_str(), &end);
    return end != nullptr && *end == L'\0' && std::isfinite(millimetres);
}

}  // namespace

int KyRefLayerAnswers::readOption(const wchar_t* prompt, std::span<const KyRefKeyword> keywords) {
    for (;;) {
        const KyString answer = singleGlobalMark(m_context.readWord(prompt));
        if (answer.isEmpty() || answer == L"_") {
            return -1;
        }
        const int index = KyRefKeywords::match(keywords, answer);
        if (index >= 0) {
            return index;
        }
        m_context.message(L"Invalid option keyword.");
    }
}

bool KyRefLayerAnswers::readColor(KyCmColor& color) {
    const KyString prompt = KyString::formatted(L"Enter color name or number (1-255) or %ls: ",
                                                KyRefKeywords::options(kColorKeywords).kwszPtr());
    const KyString answer = m_context.readLine(prompt);
    if (answer.isEmpty()) {
        return false;
    }
    switch (KyRefKeywords::match(kColorKeywords, singleGlobalMark(answer))) {
        case kTrueColor:
            return readTrueColor(color);
        case kColorBook:
            return readBookColor(color);
        default:
            break;
    }
    KyCmColor parsed;
    const bool read =
        KyRefColorText::parse(answer, parsed) && (parsed.isByACI() || parsed.isByColor());
    if (!read &&
        KyCmColorBook::findColor(KyRefCommandContext::literal(answer), parsed) != Kyro::eOk) {
        m_context.fail(
            L"Invalid color \"%ls\": requires a color number from 1 to 255 or a color name.",
            answer.kwszPtr());
    }
    color = parsed;
    return true;
}

bool KyRefLayerAnswers::readTrueColor(KyCmColor& color) {
    const KyString answer = m_context.readLine(L"Red, Green, Blue: ");
    if (answer.isEmpty()) {
        return false;
    }
    KyCmColor parsed;
    if (!KyRefColorText::parse(answer, parsed) || !parsed.isByColor()) {
        m_context.fail(L"Invalid true color \"%ls\": requires red, green and blue from 0 to 255.",
                       answer.kwszPtr());
    }
    color = parsed;
    return true;
}

bool KyRefLayerAnswers::readBookColor(KyCmColor& color) {
    const KyString book =
        KyRefCommandContext::literal(m_context.readLine(L"Enter Color Book name: "));
    if (book.isEmpty()) {
        return false;
    }
    const KyString name = KyRefCommandContext::literal(m_context.readLine(L"Enter color name: "));
    if (name.isEmpty()) {
        return false;
    }
    KyCmColor found;
    if (KyCmColorBook::findColor(book, name, found) != Kyro::eOk) {
        m_context.fail(L"Cannot find color \"%ls\" in color book \"%ls\".", name.kwszPtr(),
                       book.kwszPtr());
    }
    color = found;
    return true;
}

bool KyRefLayerAnswers::readLinetype(KyDbObjectId& linetype) {
    const KyString name =
        KyRefCommandContext::literal(m_context.readLine(L"Enter a loaded linetype name: "));
    if (name.isEmpty()) {
        return false;
    }
    KyDbObjectId id;
    {
        KyRefReadAccess<KyDbSymbolTable> linetypes(m_context.database()->linetypeTableId());
        if (!linetypes || linetypes->getAt(name, id) != Kyro::eOk) {
            m_context.fail(L"Cannot find linetype \"%ls\".", name.kwszPtr());
        }
    }
    KyRefReadAccess<KyDbLinetypeTableRecord> record(id);
    if (!record || (record->isStandardLinetype() &&
                    record->name().compareNoCase(KyDbStandardContent::kContinuous) != 0)) {
        m_context.fail(L"A layer can't take the linetype \"%ls\".", name.kwszPtr());
    }
    linetype = id;
    return true;
}

bool KyRefLayerAnswers::readLineWeight(KyDb::LineWeight& weight) {
    const KyString answer = m_context.readLine(L"Enter lineweight (0.0mm - 2.11mm): ");
    if (answer.isEmpty()) {
        return false;
    }
    const KyString defaultWord = lineWeightText(KyDb::kLnWtByLwDefault);
    const KyString localDefault =
        KyRxValue(KyDb::kLnWtByLwDefault).text(KyRxValueType::kStringFormatLocalized);
    if (answer.compareNoCase(defaultWord) == 0 || answer.compareNoCase(localDefault) == 0) {
        weight = KyDb::kLnWtByLwDefault;
        return true;
    }
    double millimetres = 0.0;
    const bool number = readMillimetres(answer, millimetres);
    const long hundredths = number ? std::lround(millimetres * 100.0) : -1;
    if (!number || hundredths < 0 ||
        std::fabs(millimetres * 100.0 - static_cast<double>(hundredths)) > 1e-6 ||
        !KyRefLineweightText::isStandard(hundredths)) {
        m_context.fail(
            L"Invalid lineweight \"%ls\": requires a standard lineweight in millimeters.",
            answer.kwszPtr());
    }
    weight = static_cast<KyDb::LineWeight>(hundredths);
    return true;
}

bool KyRefLayerAnswers::readTransparency(KyCmTransparency& transparency) {
    const KyString answer = m_context.readLine(L"Enter transparency value (0-90): ");
    if (answer.isEmpty()) {
        return false;
    }
    KyCmTransparency parsed;
    if (!KyRefTransparencyText::parse(answer, parsed) || !parsed.isByAlpha()) {
        m_context.fail(L"Invalid transparency \"%ls\": requires a whole percentage from 0 to %d.",
                       answer.kwszPtr(), KyRefTransparencyText::kMaximumPercent);
    }
    transparency = parsed;
    return true;
}

bool KyRefLayerAnswers::readPlotStyle(KyString& name) {
    const KyString answer = KyRefCommandContext::literal(m_context.readLine(L"Enter plot style: "));
    if (answer.isEmpty()) {
        return false;
    }
    KyDbDatabase* database = m_context.database();
    if (database->plotStyleMode()) {
        m_context.fail(L"The drawing uses color-dependent plot styles: layers have no plot style.");
    }
    KyRefReadAccess<KyDbDictionary> styles(database->plotStyleNameDictionaryId());
    KyDbObjectId id;
    if (!styles || styles->getAt(answer, id) != Kyro::eOk) {
        m_context.fail(L"Cannot find plot style \"%ls\".", answer.kwszPtr());
    }
    name = answer;
    return true;
}

bool KyRefLayerAnswers::readLayers(const wchar_t* prompt, std::vector<KyDbObjectId>& layers) {
    const KyString answer = m_context.readLine(prompt);
    if (answer.isEmpty()) {
        return false;
    }
    layers = KyRefLayerNameList::resolve(m_context, answer);
    return true;
}

KyString KyRefLayerAnswers::lineWeightText(KyDb::LineWeight weight) {
    return KyRxValue(weight).text();
}

KyString KyRefLayerAnswers::linetypeName(KyDbObjectId linetype) {
    KyRefReadAccess<KyDbLinetypeTableRecord> record(linetype);
    return record ? record->name() : KyString();
}
