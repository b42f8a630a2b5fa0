#include "KyRefPlotService.h"

#include <iterator>
#include <span>

#include "KyRefDocumentManager.h"
#include "KyRefHost.h"
#include "KyRefReadAccess.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLayout.h"
#include "db/KyDbObjectPointer.h"

namespace {

// A named plot style table on offer and its styles.
struct NamedTableRow {
    const wchar_t* table;
    std::span<const wchar_t* const> styles;
};

constexpr const wchar_t* kDefaultStyles[] = {L"Normal", L"Style 1"};
constexpr const wchar_t* kGrayscaleStyles[] = {L"Normal", L"Light", L"Dark"};
// The tables the bundled sample names.
constexpr const wchar_t* kMonochromeStyles[] = {L"Normal", L"Thin", L"Bold", L"Screened"};
constexpr const wchar_t* kStandardStyles[] = {L"Normal", L"Thin", L"Bold"};

const NamedTableRow kNamedTables[] = {
    {L"Default.stb", kDefaultStyles},
    {L"Grayscale.stb", kGrayscaleStyles},
    {L"monochrome.stb", kMonochromeStyles},
    {L"standard.stb", kStandardStyles},
};

constexpr const wchar_t* kColorTables[] = {L"Default.ctb", L"Grayscale.ctb", L"Monochrome.ctb"};

const KyString* listed(const std::vector<KyString>& names, const KyString& name) {
    for (const KyString& known : names) {
        if (known.compareNoCase(name) == 0) {
            return &known;
        }
    }
    return nullptr;
}

}  // namespace

KyRefPlotService::KyRefPlotService(KyRefHost& host) : m_host(host) {
    for (const NamedTableRow& row : kNamedTables) {
        m_namedTables.emplace_back(row.table);
        std::vector<KyString> styles(row.styles.begin(), row.styles.end());
        m_tableStyles.push_back(TableStyles{KyString(row.table), std::move(styles)});
    }
    m_colorTables.assign(std::begin(kColorTables), std::end(kColorTables));
}

void KyRefPlotService::setTableStyles(const KyString& table, std::vector<KyString> styles) {
    for (TableStyles& known : m_tableStyles) {
        if (known.table.compareNoCase(table) == 0) {
            known.styles = std::move(styles);
            return;
        }
    }
    m_tableStyles.push_back(TableStyles{table, std::move(styles)});
}

const std::vector<KyString>* KyRefPlotService::stylesOf(const KyString& table) const {
    for (const TableStyles& known : m_tableStyles) {
        if (known.table.compareNoCase(table) == 0) {
            return &known.styles;
        }
    }
    return nullptr;
}

bool KyRefPlotService::colorDependent() const {
    KyDbDatabase* database = m_host.documents().currentDatabase();
    return database == nullptr || database->plotStyleMode();
}

const std::vector<KyString>& KyRefPlotService::tablesOnOffer() const {
    return colorDependent() ? m_colorTables : m_namedTables;
}

const KyString* KyRefPlotService::findTable(const KyString& name) const {
    return listed(tablesOnOffer(), name);
}

KyString KyRefPlotService::tableOf(KyDbDatabase* database) const {
    KyRefReadAccess<KyDbLayout> layout(kydbCurrentLayoutId(database));
    if (layout && !layout->plotStyleTable().isEmpty()) {
        return layout->plotStyleTable();
    }
    const std::vector<KyString>& tables = database->plotStyleMode() ? m_colorTables : m_namedTables;
    return tables.empty() ? KyString() : tables.front();
}

template <typename Write>
bool KyRefPlotService::writeCurrentLayout(Write write) {
    KyDbDatabase* database = m_host.documents().currentDatabase();
    if (database == nullptr) {
        return false;
    }
    Kyro::ErrorStatus status = Kyro::eOk;
    m_host.beginChangeReport();
    {
        const KyAxDocLock lock(database);
        status = lock.lockStatus();
        if (status == Kyro::eOk) {
            KyDbObjectPointer<KyDbLayout> layout(kydbCurrentLayoutId(database), KyDb::kForWrite);
            status = layout ? write(*layout.object()) : layout.openStatus();
        }
    }
    m_host.raiseVariableChanges(m_host.endChangeReport());
    return status == Kyro::eOk;
}

bool KyRefPlotService::getPlotStyleNames(KyDbDatabase* database, KyDbObjectId& owner,
                                         KyArray<KyString>& names) {
    if (database == nullptr || database->plotStyleMode()) {
        return false;
    }
    owner = database->plotStyleNameDictionaryId();
    // A table of another kind (the drawing's plot styles were converted) or
    // one the host knows no styles of offers none.
    if (const std::vector<KyString>* styles = stylesOf(tableOf(database))) {
        for (const KyString& style : *styles) {
            names.append(style);
        }
    }
    return true;
}

bool KyRefPlotService::listPlotStyleTables(KyArray<KyString>& names, bool namedTables,
                                           bool colorDependentTables) {
    if (namedTables) {
        for (const KyString& name : m_namedTables) {
            names.append(name);
        }
    }
    if (colorDependentTables) {
        for (const KyString& name : m_colorTables) {
            names.append(name);
        }
    }
    return true;
}

bool KyRefPlotService::getPlotStyleTable(KyString& name) {
    KyDbDatabase* database = m_host.documents().currentDatabase();
    if (database == nullptr) {
        return false;
    }
    name = tableOf(database);
    return true;
}

bool KyRefPlotService::setPlotStyleTable(const KyString* name) {
    const KyString* table = name != nullptr ? findTable(*name) : nullptr;
    if (table == nullptr) {
        return false;
    }
    return writeCurrentLayout(
        [table](KyDbLayout& layout) { return layout.setPlotStyleTable(*table); });
}

bool KyRefPlotService::getPlotAttachmentSpace(KyString& text) {
    KyDbDatabase* database = m_host.documents().currentDatabase();
    if (database == nullptr) {
        return false;
    }
    text = database->tilemode() ? L"Model" : L"Layout";
    return true;
}

bool KyRefPlotService::getPlotStyleTableType(KyString& text) {
    if (m_host.documents().currentDatabase() == nullptr) {
        return false;
    }
    text = colorDependent() ? L"Color-dependent" : L"Named";
    return true;
}

bool KyRefPlotService::setLayoutByName(const KyString& name) {
    // The host switches layouts itself, under its own lock of the drawing.
    const KyAxDocLock lock(m_host.documents().currentDatabase());
    const KyRefResbufPtr value = KyRefResbuf::makeString(name);
    return m_host.setVariable(L"CTAB", *value) == KyRefSysVarStatus::kOk;
}

bool KyRefPlotService::getPageSetupName(KyString& name) {
    KyRefReadAccess<KyDbLayout> layout(kydbCurrentLayoutId(m_host.documents().currentDatabase()));
    if (!layout) {
        return false;
    }
    name = layout->pageSetupName();
    return true;
}

bool KyRefPlotService::getRasterDpi(short& dpi) {
    KyRefReadAccess<KyDbLayout> layout(kydbCurrentLayoutId(m_host.documents().currentDatabase()));
    if (!layout) {
        return false;
    }
    dpi = layout->rasterDpi();
    return true;
}

bool KyRefPlotService::setRasterDpi(short dpi) {
    if (dpi < KyDbLayout::kMinRasterDpi) {
        return false;
    }
    return writeCurrentLayout([dpi](KyDbLayout& layout) { return layout.setRasterDpi(dpi); });
}
