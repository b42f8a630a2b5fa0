#include "KyRefPlotService.h"

#include "KyRefDocumentManager.h"
#include "KyRefHost.h"
#include "KyRefReadAccess.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbDictionaryIterator.h"
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
                    KyString(L"Monochrome.ctb")} {}

KyString KyRefPlotService::currentLayout() const {
    KyRefResbufPtr value;
    if (m_host.sysVars().get(L"CTAB", value) != KyRefSysVarStatus::kOk) {
        return KyString();
    }
    return KyString(value->resval.rstring);
}

bool KyRefPlotService::colorDependent() const {
    KyDbDatabase* database = m_host.documents().currentDatabase();
    return database == nullptr || database->plotStyleMode();
}

KyRefPlotService::LayoutSettings* KyRefPlotService::currentSettings() {
    const KyDiDocument document = m_host.documents().currentDocument();
    if (document == kKyDiNoDocument) {
        return nullptr;
    }
    LayoutSettings& settings = m_layouts[{document, std::wstring(currentLayout().kwszPtr())}];
    if (settings.table.isEmpty()) {
        const std::vector<KyString>& tables = colorDependent() ? m_colorTables : m_namedTables;
        if (!tables.empty()) {
            settings.table = tables.front();
        }
    }
    return &settings;
}

bool KyRefPlotService::getPlotStyleNames(KyDbDatabase* database, KyDbObjectId& owner,
                                         KyArray<KyString>& names) {
    if (database == nullptr) {
        return false;
    }
    owner = database->plotStyleNameDictionaryId();
    KyRefReadAccess<KyDbDictionary> styles(owner);
    if (!styles) {
        return false;
    }
    for (KyDbDictionaryIterator it(styles.object()); !it.done(); it.next()) {
        names.append(KyString(it.name()));
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
