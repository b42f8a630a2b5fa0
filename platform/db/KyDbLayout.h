// KyDbLayout: a layout: a named sheet with its tab order
// (0 for Model) and its block (*Model_Space, *Paper_Space ...). The model
// layout of a drawing can't be renamed or erased.
//
// What the layout plots with: the name of its plot style table, the name of
// the page setup its settings were taken from, and the resolution of raster
// output. Each is empty (0 for the resolution) while none is set; the host
// then plots with its own defaults.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbPlotSettings.h"

class KYPLATFORM_API KyDbLayout : public KyDbPlotSettings {
public:
    KYRX_DECLARE_MEMBERS(KyDbLayout);
    KyDbLayout();
    ~KyDbLayout() override;

    const KyString& layoutName() const { return m_layoutName; }
    Kyro::ErrorStatus setLayoutName(const wchar_t* value);
    // 0 for the model layout; eInvalidInput for a negative order.
    int tabOrder() const { return m_tabOrder; }
    Kyro::ErrorStatus setTabOrder(int value);
    // The block of the layout.
    KyDbObjectId getBlockTableRecordId() const { return m_block; }
    Kyro::ErrorStatus setBlockTableRecordId(KyDbObjectId value);
    // True for the layout of *Model_Space.
    bool modelType() const;

    // The plot style table by file name ("monochrome.stb"); empty for none.
    const KyString& plotStyleTable() const { return m_plotStyleTable; }
    Kyro::ErrorStatus setPlotStyleTable(const wchar_t* value);
    // The page setup the layout's settings come from; empty for none.
    const KyString& pageSetupName() const { return m_pageSetupName; }
    Kyro::ErrorStatus setPageSetupName(const wchar_t* value);
    // Dots per inch of raster output: 0 for none set, or kMinRasterDpi to
    // kMaxRasterDpi; eInvalidInput for anything else.
    short rasterDpi() const { return m_rasterDpi; }
    Kyro::ErrorStatus setRasterDpi(short value);
    static constexpr short kMinRasterDpi = 100;
    static constexpr short kMaxRasterDpi = 32767;

protected:
    Kyro::ErrorStatus subErase(bool erasing) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    // True for a name that a drawing keeps as it is.
    bool hasFixedName() const;
    KyString m_layoutName;
    int m_tabOrder = 0;
    KyDbObjectId m_block;
    KyString m_plotStyleTable;
    KyString m_pageSetupName;
    short m_rasterDpi = 0;
};
