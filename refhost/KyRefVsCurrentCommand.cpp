#include "KyRefVsCurrentCommand.h"

#include <iterator>
#include <vector>

#include "KyRefCommandContext.h"
#include "KyRefHost.h"
#include "KyRefNamedItem.h"
#include "KyRefReadAccess.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbReservedStrings.h"
#include "db/KyDbVisualStyle.h"

namespace {

// The standard visual styles, in the order the prompt offers them.
constexpr KyDb::ReservedStringEnumType kStandardStyles[] = {
    KyDb::kVS2DWireframe,     KyDb::kVSWireframe,    KyDb::kVSHidden,  KyDb::kVSRealistic,
    KyDb::kVSConceptual,      KyDb::kVSShadesOfGray, KyDb::kVSSketchy, KyDb::kVSXRay,
    KyDb::kVSShadedWithEdges, KyDb::kVSShaded,
};
constexpr KyRefKeyword kOther{L"Other", L"Andere"};
constexpr int kOtherOption = static_cast<int>(std::size(kStandardStyles));

KyString withoutBlanks(const wchar_t* text) {
    KyString word;
    for (const wchar_t* at = text; *at != L'\0'; ++at) {
        if (*at != L' ') {
            word.append(*at);
        }
    }
    return word;
}

// The keywords of the prompt: a standard style is typed as one word, its name
// without blanks, in the global or the local form.
class StyleKeywords {
public:
    StyleKeywords() {
        for (const KyDb::ReservedStringEnumType kind : kStandardStyles) {
            m_words.push_back(withoutBlanks(kydbGetReservedString(kind, false)));
            m_words.push_back(withoutBlanks(kydbGetReservedString(kind, true)));
        }
        for (std::size_t index = 0; index < m_words.size(); index += 2) {
            m_keywords.push_back({m_words[index].kwszPtr(), m_words[index + 1].kwszPtr()});
        }
        m_keywords.push_back(kOther);
    }
    const std::vector<KyRefKeyword>& keywords() const { return m_keywords; }

private:
    std::vector<KyString> m_words;
    std::vector<KyRefKeyword> m_keywords;
};

KyDbObjectId chosenStyle(KyRefCommandContext& context, int option) {
    const KyDbObjectId styles = context.database()->visualStyleDictionaryId();
    const KyString name = option == kOtherOption
                              ? context.readName(L"Enter a visual style name: ")
                              : KyString(kydbGetReservedString(kStandardStyles[option], false));
    const KyDbObjectId id = KyRefNamedItem::find(styles, name);
    KyRefReadAccess<KyDbVisualStyle> style(id);
    if (!style) {
        context.fail(L"Cannot find visual style \"%ls\".", name.kwszPtr());
    }
    if (style->isInternalUseOnly()) {
        context.fail(L"The visual style \"%ls\" is for internal use.", name.kwszPtr());
    }
    return id;
}

}  // namespace

void KyRefVsCurrentCommand::run(KyRefCommandContext& context) {
    KyDbDatabase* database = context.database();
    const StyleKeywords words;
    // The current style as the user reads it: a standard style in the local form.
    KyString current = KyRefVisualStyleService::kDefaultStyle;
    if (KyRefReadAccess<KyDbVisualStyle> style(KyRefVisualStyleService::shownStyle(database));
        style) {
        current = style->name();
    }
    if (const wchar_t* local = kydbXlateReservedString(current, true)) {
        current = local;
    }
    const KyString prompt =
        KyString::formatted(L"Enter an option %ls <%ls>: ",
                            KyRefKeywords::options(words.keywords()).kwszPtr(), current.kwszPtr());
    const int option = context.readKeyword(prompt, words.keywords(), true);
    if (option < 0) {
        return;
    }
    const KyDbObjectId styleId = chosenStyle(context, option);
    bool changed = false;
    if (KyRefVisualStyleService::showStyle(database, styleId, changed) != Kyro::eOk) {
        context.fail(L"No viewport shows a visual style.");
    }
    // Another style redraws what the viewport shows.
    if (changed) {
        context.host().regenerateAll();
    }
}
