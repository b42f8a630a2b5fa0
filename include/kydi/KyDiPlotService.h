// KyDiPlotService: the plot settings of the current layout and the host's
// plot style tables. Its operations answer true when the host could answer
// or took the change.
#pragma once

#include "base/KyArray.h"
#include "base/KyString.h"
#include "db/KyDbObjectId.h"
#include "kydi/KyDiExport.h"

class KyDbDatabase;

class KYDI_API KyDiPlotService {
public:
    virtual ~KyDiPlotService() = default;

    // Appends to `names` the styles of the current plot style table of
    // `database`; `owner` gets the dictionary of the drawing's plot styles.
    virtual bool getPlotStyleNames(KyDbDatabase* database, KyDbObjectId& owner,
                                   KyArray<KyString>& names) = 0;
    // Appends to `names` the plot style tables on offer: the named ones, the
    // colour-dependent ones, or both.
    virtual bool listPlotStyleTables(KyArray<KyString>& names, bool namedTables,
                                     bool colorDependentTables) = 0;
    // The name of the current layout's plot style table.
    virtual bool getPlotStyleTable(KyString& name) = 0;
    // Makes `name` the current layout's plot style table.
    virtual bool setPlotStyleTable(const KyString* name) = 0;
    // What the current layout's plot styles are attached to, as text.
    virtual bool getPlotAttachmentSpace(KyString& text) = 0;
    // The type of the current plot style table, as text.
    virtual bool getPlotStyleTableType(KyString& text) = 0;
    // Makes the layout named `name` current.
    virtual bool setLayoutByName(const KyString& name) = 0;
    // The name of the page setup of the current layout.
    virtual bool getPageSetupName(KyString& name) = 0;
    // The raster resolution of the current layout, in dots per inch; 0 means none set.
    virtual bool getRasterDpi(short& dpi) = 0;
    // Sets the raster resolution of the current layout.
    virtual bool setRasterDpi(short dpi) = 0;
    // True while the host is changing the view (a plot preview, say), during
    // which the current viewport is not to be followed.
    virtual bool isViewBusy() = 0;
};
