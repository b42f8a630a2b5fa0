// KyDbLayout: a layout: a named sheet with its tab order
// (0 for Model) and its block (*Model_Space, *Paper_Space ...). The model
// layout of a drawing can't be renamed or erased.
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
};
