#include "KyRefPageSetupCommand.h"

#include <cwchar>
#include <iterator>

#include "KyRefCommandContext.h"
#include "KyRefHost.h"
#include "KyRefLanguage.h"
#include "KyRefReadAccess.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLayout.h"
#include "db/KyDbObjectPointer.h"

namespace {

const KyRefKeyword kOptions[] = {
    {L"Name", L"Name"},
    {L"Table", L"Tabelle"},
    {L"Resolution", L"Aufloesung"},
};
constexpr int kName = 0;
constexpr int kTable = 1;

const KyRefKeyword kNone[] = {{L"None", L"Keine"}};
const KyRefKeyword kTableWords[] = {{L"?", L"?"}, {L"None", L"Keine"}};
constexpr int kListTables = 0;

// An answer to a name prompt: empty to keep the value, None to clear it, or
// a name ("=" first takes it as it stands, also "=None").
enum class NameAnswer { kKeep, kNone, kName };

NameAnswer readNameAnswer(KyRefCommandContext& context, const wchar_t* prompt, KyString& name) {
    const KyString answer = context.readLine(prompt);
    if (answer.isEmpty()) {
        return NameAnswer::kKeep;
    }
    if (answer.kwszPtr()[0] != L'=' && KyRefKeywords::match(kNone, answer) >= 0) {
        return NameAnswer::kNone;
    }
    name = KyRefCommandContext::literal(answer);
    return name.isEmpty() ? NameAnswer::kKeep : NameAnswer::kName;
}

// The value as a prompt shows it: the text, or None in the user's language.
const wchar_t* shown(const KyString& value) {
    return value.isEmpty() ? KyRefLanguage::pick(kNone[0].global, kNone[0].local) : value.kwszPtr();
}

class PageSetupRun {
public:
    explicit PageSetupRun(KyRefCommandContext& context)
        : m_context(context), m_layoutId(kydbCurrentLayoutId(context.database())) {}

    KyString layoutName() const {
        KyRefReadAccess<KyDbLayout> layout(m_layoutId);
        return layout ? layout->layoutName() : KyString();
    }

    void pageSetup() {
        KyString current;
        {
            KyRefReadAccess<KyDbLayout> layout(m_layoutId);
            current = layout ? layout->pageSetupName() : KyString();
        }
        const KyString prompt =
            KyString::formatted(L"Enter a page setup name or %ls <%ls>: ",
                                KyRefKeywords::options(kNone).kwszPtr(), shown(current));
        KyString name;
        const NameAnswer answer = readNameAnswer(m_context, prompt, name);
        if (answer != NameAnswer::kKeep) {
            write([&name](KyDbLayout& layout) { return layout.setPageSetupName(name); });
        }
    }

    void table() {
        const KyRefPlotService* plot = m_context.host().plotService();
        if (plot == nullptr) {
            m_context.fail(L"This host offers no plot style tables.");
        }
        KyString current;
        {
            KyRefReadAccess<KyDbLayout> layout(m_layoutId);
            current = layout ? layout->plotStyleTable() : KyString();
        }
        const KyString prompt =
            KyString::formatted(L"Enter a plot style table name or %ls <%ls>: ",
                                KyRefKeywords::options(kTableWords).kwszPtr(), shown(current));
        for (;;) {
            const KyString answer = m_context.readLine(prompt);
            if (answer.isEmpty()) {
                return;
            }
            const int word =
                answer.kwszPtr()[0] == L'=' ? -1 : KyRefKeywords::match(kTableWords, answer);
            if (word == kListTables) {
                listTables(*plot);
                continue;
            }
            KyString chosen;
            if (word < 0) {
                const KyString name = KyRefCommandContext::literal(answer);
                const KyString* table = plot->findTable(name);
                if (table == nullptr) {
                    m_context.fail(
                        L"The plot style table \"%ls\" is not on offer for this drawing.",
                        name.kwszPtr());
                }
                chosen = *table;
            }
            write([&chosen](KyDbLayout& layout) { return layout.setPlotStyleTable(chosen); });
            return;
        }
    }

    void resolution() {
        short current = 0;
        {
            KyRefReadAccess<KyDbLayout> layout(m_layoutId);
            current = layout ? layout->rasterDpi() : 0;
        }
        const KyString prompt = KyString::formatted(
            L"Enter the raster resolution in dots per inch (%d to %d, 0 for none) <%d>: ",
            KyDbLayout::kMinRasterDpi, KyDbLayout::kMaxRasterDpi, current);
        const KyString answer = m_context.readWord(prompt);
        if (answer.isEmpty()) {
            return;
        }
        wchar_t* end = nullptr;
        const long value = std::wcstol(answer.kwszPtr(), &end, 10);
        if (end == nullptr || *end != L'\0' ||
            (value != 0 &&
             (value < KyDbLayout::kMinRasterDpi || value > KyDbLayout::kMaxRasterDpi))) {
            m_context.fail(
                L"Invalid raster resolution \"%ls\": expected 0 or %d to %d dots per inch.",
                answer.kwszPtr(), KyDbLayout::kMinRasterDpi, KyDbLayout::kMaxRasterDpi);
        }
        const auto dpi = static_cast<short>(value);
        write([dpi](KyDbLayout& layout) { return layout.setRasterDpi(dpi); });
    }

private:
    void listTables(const KyRefPlotService& plot) {
        KyString names;
        for (const KyString& table : plot.tablesOnOffer()) {
            names.append(names.isEmpty() ? L"" : L", ");
            names.append(table);
        }
        m_context.message(L"Plot style tables on offer: %ls", names.kwszPtr());
    }

    template <typename Set>
    void write(Set set) {
        KyDbObjectPointer<KyDbLayout> layout(m_layoutId, KyDb::kForWrite);
        if (!layout || set(*layout.object()) != Kyro::eOk) {
            m_context.fail(L"The layout \"%ls\" can't be changed.", layoutName().kwszPtr());
        }
    }

    KyRefCommandContext& m_context;
    KyDbObjectId m_layoutId;
};

}  // namespace

void KyRefPageSetupCommand::run(KyRefCommandContext& context) {
    PageSetupRun run(context);
    context.message(L"Current layout: \"%ls\"", run.layoutName().kwszPtr());
    const KyString prompt =
        KyString::formatted(L"Enter an option %ls: ", KyRefKeywords::options(kOptions).kwszPtr());
    for (;;) {
        const int option = context.readKeyword(prompt, kOptions, true);
        if (option < 0) {
            return;
        }
        if (option == kName) {
            run.pageSetup();
        } else if (option == kTable) {
            run.table();
        } else {
            run.resolution();
        }
    }
}
