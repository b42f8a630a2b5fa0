// KyRefPlotService: the plot settings of the current layout and the plot
// style tables the host offers. Each layout keeps its own plot style table
// (by default the first table of the kind the drawing uses) and raster
// resolution; changing either is told to the host's reactors
// (plotSettingsChanged). Making a layout current goes through CTAB.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "base/KyString.h"
#include "kydi/KyDiPlotService.h"
#include "kydi/KyDiTypes.h"

class KyRefHost;

class KyRefPlotService : public KyDiPlotService {
public:
    explicit KyRefPlotService(KyRefHost& host);

    // The names of the drawing's plot style dictionary.
    bool getPlotStyleNames(KyDbDatabase* database, KyDbObjectId& owner,
                           KyArray<KyString>& names) override;
    bool listPlotStyleTables(KyArray<KyString>& names, bool namedTables,
                             bool colorDependentTables) override;
    bool getPlotStyleTable(KyString& name) override;
    // Only a table on offer of the kind the drawing uses.
    bool setPlotStyleTable(const KyString* name) override;
    // "Model" in model space, "Layout" on a layout.
    bool getPlotAttachmentSpace(KyString& text) override;
    // "Color-dependent" or "Named", as the drawing's plot style mode says.
    bool getPlotStyleTableType(KyString& text) override;
    bool setLayoutByName(const KyString& name) override;
    bool getPageSetupName(KyString& name) override;
    bool getRasterDpi(short& dpi) override;
    // 100 to 32767 dots per inch.
    bool setRasterDpi(short dpi) override;
    bool isViewBusy() override { return m_viewBusy; }

    // ---- State that tests and scripts set
    void setNamedTables(std::vector<KyString> names) { m_namedTables = std::move(names); }
    void setColorDependentTables(std::vector<KyString> names) { m_colorTables = std::move(names); }
    void setViewBusy(bool busy) { m_viewBusy = busy; }

private:
    // The settings of one layout.
    struct LayoutSettings {
        KyString table;
        short rasterDpi = 0;
    };
    // The current layout's name; empty without a drawing.
    KyString currentLayout() const;
    bool colorDependent() const;
    LayoutSettings* currentSettings();

    KyRefHost& m_host;
    std::vector<KyString> m_namedTables;
    std::vector<KyString> m_colorTables;
    // By document and layout name. (The name is kept as a standard string:
    // a KyString converts to a pointer, and a pair of them would compare the
    // addresses of the texts.)
    std::map<std::pair<KyDiDocument, std::wstring>, LayoutSettings> m_layouts;
    bool m_viewBusy = false;
};
