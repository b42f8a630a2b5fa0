// KyRefPlotService: the plot settings of the current layout and the plot
// style tables the host offers. The settings live in the drawing, on the
// layout (KyDbLayout: plot style table, page setup, raster resolution), so
// they are saved with it and taken back by undo; the service reads them from
// the current layout and writes them to it under the document lock. A layout
// that names no table plots with the first table on offer of the kind the
// drawing uses. Changes are told by the host (KyRefHost.h: plotSettingsChanged
// in both forms, then layoutChanged). Making a layout current goes through
// CTAB.
//
// A named plot style table holds styles of its own: the tables on offer are
// the host's (Default.stb, Grayscale.stb) and those its drawings name
// (monochrome.stb, standard.stb), each with its styles, unless a test sets
// others. They need not be the styles the drawing holds: the drawing's plot
// style dictionary has the styles that were used or added, the table what it
// offers.
#pragma once

#include <utility>
#include <vector>

#include "base/KyString.h"
#include "kydi/KyDiPlotService.h"

class KyDbLayout;
class KyRefHost;

class KyRefPlotService : public KyDiPlotService {
public:
    explicit KyRefPlotService(KyRefHost& host);

    // The styles of the table of the current layout of `database` (a drawing
    // with or without a document); `owner` gets the drawing's plot style
    // dictionary. False for a null database and for one with colour-dependent
    // plot styles, which has no named styles.
    bool getPlotStyleNames(KyDbDatabase* database, KyDbObjectId& owner,
                           KyArray<KyString>& names) override;
    bool listPlotStyleTables(KyArray<KyString>& names, bool namedTables,
                             bool colorDependentTables) override;
    // The current layout's own table, or the first on offer when it names none.
    bool getPlotStyleTable(KyString& name) override;
    // Only a table on offer of the kind the drawing uses; the layout keeps the
    // table's own spelling.
    bool setPlotStyleTable(const KyString* name) override;
    // "Model" in model space, "Layout" on a layout.
    bool getPlotAttachmentSpace(KyString& text) override;
    // "Color-dependent" or "Named", as the drawing's plot style mode says.
    bool getPlotStyleTableType(KyString& text) override;
    bool setLayoutByName(const KyString& name) override;
    // Empty while the layout's settings come from no named page setup.
    bool getPageSetupName(KyString& name) override;
    bool getRasterDpi(short& dpi) override;
    // 100 to 32767 dots per inch.
    bool setRasterDpi(short dpi) override;
    bool isViewBusy() override { return m_viewBusy; }

    // ---- For the host's commands
    // The tables on offer for the current drawing's kind of plot styles.
    const std::vector<KyString>& tablesOnOffer() const;
    // The table on offer named `name` in any case, in its own spelling;
    // null when none is.
    const KyString* findTable(const KyString& name) const;

    // ---- State that tests and scripts set
    void setNamedTables(std::vector<KyString> names) { m_namedTables = std::move(names); }
    void setColorDependentTables(std::vector<KyString> names) { m_colorTables = std::move(names); }
    // The styles of the named table `table`, in the table's order.
    void setTableStyles(const KyString& table, std::vector<KyString> styles);
    void setViewBusy(bool busy) { m_viewBusy = busy; }

private:
    // A named table and its styles.
    struct TableStyles {
        KyString table;
        std::vector<KyString> styles;
    };

    bool colorDependent() const;
    // The table the current layout of `database` plots with.
    KyString tableOf(KyDbDatabase* database) const;
    const std::vector<KyString>* stylesOf(const KyString& table) const;
    // Writes the current layout of the current drawing with `write`, under
    // the document lock; the host tells the change once the layout is closed.
    template <typename Write>
    bool writeCurrentLayout(Write write);

    KyRefHost& m_host;
    std::vector<KyString> m_namedTables;
    std::vector<KyString> m_colorTables;
    std::vector<TableStyles> m_tableStyles;
    bool m_viewBusy = false;
};
