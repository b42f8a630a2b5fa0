#include "KyRefPlotService.h"

#include "KyRefDocumentManager.h"
#include "KyRefHost.h"
#include "KyRefReadAccess.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLayout.h"

namespace {

bool listed(const std::vector<KyString>& names, const KyString& name) {
    for (const KyString& known : names) {
        if (known.compareNoCase(name) == 0) {
            return true;
        }
    }
    return false;
}

}  // namespace

KyRefPlotService::KyRefPlotService(KyRefHost& host)
    : m_host(host),
      m_namedTables{KyString(L"Default.stb"), KyString(L"Grayscale.stb")},
      m_colorTables{KyString(L"Default.ctb"), KyString(L"Grayscale.ctb"),
                    KyString(L"Monochrome.ctb")},
      m_tableStyles{{KyString(L"Default.stb"), {KyString(L"Normal"), KyString(L"Style 1")}},
                    {KyString(L"Grayscale.stb"),
                     {KyString(L"Normal"), KyString(L"Light"), KyString(L"Dark")}}} {}

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

KyRefPlotService::LayoutSettings* KyRefPlotService::settingsOf(KyDbDatabase* database) {
    const KyDiDocument document = m_host.documents().documentOf(database);
    if (document == kKyDiNoDocument) {
        return nullptr;
    }
    KyRefReadAccess<KyDbLayout> layout(kydbCurrentLayoutId(database));
    const std::wstring layoutName = layout ? layout->layoutName().kwszPtr() : L"";
    LayoutSettings& settings = m_layouts[{document, layoutName}];
    if (settings.table.isEmpty()) {
        const std::vector<KyString>& tables =
            database->plotStyleMode() ? m_colorTables : m_namedTables;
        if (!tables.empty()) {
            settings.table = tables.front();
        }
    }
    return &settings;
}

KyRefPlotService::LayoutSettings* KyRefPlotService::currentSettings() {
    return settingsOf(m_host.documents().currentDatabase());
}

bool KyRefPlotService::getPlotStyleNames(KyDbDatabase* database, KyDbObjectId& owner,
                                         KyArray<KyString>& names) {
    if (database == nullptr || database->plotStyleMode()) {
        return false;
    }
    owner = database->plotStyleNameDictionaryId();
    const LayoutSettings* settings = settingsOf(database);
    const KyString table = settings != nullptr     ? settings->table
                           : m_namedTables.empty() ? KyString()
                                                   : m_namedTables.front();
    // A table of another kind (the drawing's plot styles were converted) or
    // one the host knows no styles of offers none.
    if (const std::vector<KyString>* styles = stylesOf(table)) {
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
    const LayoutSettings* settings = currentSettings();
    if (settings == nullptr) {
        return false;
    }
    name = settings->table;
    return true;
}

bool KyRefPlotService::setPlotStyleTable(const KyString* name) {
    LayoutSettings* settings = currentSettings();
    if (settings == nullptr || name == nullptr ||
        !listed(colorDependent() ? m_colorTables : m_namedTables, *name)) {
        return false;
    }
    if (settings->table.compareNoCase(*name) != 0) {
        settings->table = *name;
        m_host.events().raisePlotSettingsChanged();
    }
    return true;
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
    KyDbDatabase* database = m_host.documents().currentDatabase();
    if (database == nullptr) {
        return false;
    }
    KyRefReadAccess<KyDbLayout> layout(kydbCurrentLayoutId(database));
    if (!layout) {
        return false;
    }
    name = layout->plotSettingsName();
    return true;
}

bool KyRefPlotService::getRasterDpi(short& dpi) {
    const LayoutSettings* settings = currentSettings();
    if (settings == nullptr) {
        return false;
    }
    dpi = settings->rasterDpi;
    return true;
}

bool KyRefPlotService::setRasterDpi(short dpi) {
    LayoutSettings* settings = currentSettings();
    if (settings == nullptr || dpi < 100) {
        return false;
    }
    if (settings->rasterDpi != dpi) {
        settings->rasterDpi = dpi;
        m_host.events().raisePlotSettingsChanged();
    }
    return true;
}
