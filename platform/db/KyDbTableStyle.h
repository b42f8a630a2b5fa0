// KyDbTableStyle: a table style: its name and the names of its
// cell styles ("Title", "Header", "Data" for a new one). The style "Standard"
// of a drawing can't be renamed or erased.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbObject.h"
#include "rx/KyRxValue.h"

class KYPLATFORM_API KyDbTableStyle : public KyDbObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbTableStyle);
    KyDbTableStyle();
    ~KyDbTableStyle() override;

    const KyString& name() const { return m_name; }
    Kyro::ErrorStatus setName(const wchar_t* value);
    const KyStringArray& cellStyles() const { return m_cellStyles; }
    Kyro::ErrorStatus setCellStyles(const KyStringArray& value);
    // True when `name` is one of the style's cell styles (in any case).
    bool hasCellStyle(const wchar_t* name) const;

protected:
    Kyro::ErrorStatus subErase(bool erasing) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    // True for a name that a drawing keeps as it is.
    bool hasFixedName() const;
    KyString m_name;
    KyStringArray m_cellStyles;
};
