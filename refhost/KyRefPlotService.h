// KyRefPlotService: the plot settings of the current layout and the plot
// style tables the host offers. Each layout keeps its own plot style table
// (by default the first table of the kind the drawing uses) and raster
// resolution; changing either is told to the host's reactors
// (plotSettingsChanged). Making a layout current goes through CTAB.
//
// A named plot style table holds styles of its own ("Default.stb": Normal,
// Style 1; "Grayscale.stb": Normal, Light, Dark, unless a test sets others).
// They need not be the styles the drawing holds: the drawing's plot style
// dictionary has the styles that were used or added, the table what it
// offers.
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

    // The styles of the table of the current layout of `database`'s
    // document (the first named table for a database without a document);
    // `owner` gets the drawing's plot style dictionary. False for a null
    // database and for one with colour-dependent plot styles, which has no
    // named styles.
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
    // The styles of the named table `table`, in the table's order.
    void setTableStyles(const KyString& table, std::vector<KyString> styles);
    void setViewBusy(bool busy) { m_viewBusy = busy; }

private:
    // The settings of one layout.
    struct LayoutSettings {
        KyString table;
        short rasterDpi = 0;
    };
    // A named table and its styles.
    struct TableStyles {
        KyString table;
        std::vector<KyString> styles;
    };

    bool colorDependent() const;
    // The settings of the current layout of `database`'s document; null for
    // a database without a document.
    LayoutSettings* settingsOf(KyDbDatabase* database);
    LayoutSettings* currentSettings();
    const std::vector<KyString>* stylesOf(const KyString& table) const;

    KyRefHost& m_host;
    std::vector<KyString> m_namedTables;
    std::vector<KyString> m_colorTables;
    std::vector<TableStyles> m_tableStyles;
    // By document and layout name. (The name is kept as a standard string:
    // a KyString converts to a pointer, and a pair of them would compare the
    // addresses of the texts.)
    std::map<std::pair<KyDiDocument, std::wstring>, LayoutSettings> m_layouts;
    bool m_viewBusy = false;
};
