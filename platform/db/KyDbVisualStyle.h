// KyDbVisualStyle: a visual style: its name, its kind (the
// host's classification) and whether it is for internal use only. The
// standard visual styles of a drawing can't be renamed or erased.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbObject.h"

class KYPLATFORM_API KyDbVisualStyle : public KyDbObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbVisualStyle);
    KyDbVisualStyle();
    ~KyDbVisualStyle() override;

    const KyString& name() const { return m_name; }
    Kyro::ErrorStatus setName(const wchar_t* value);
    int type() const { return m_kind; }
    Kyro::ErrorStatus setType(int value);
    bool isInternalUseOnly() const { return m_internal; }
    Kyro::ErrorStatus setInternalUseOnly(bool value);

protected:
    Kyro::ErrorStatus subErase(bool erasing) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    // True for a name that a drawing keeps as it is.
    bool hasFixedName() const;
    KyString m_name;
    int m_kind = 0;
    bool m_internal = false;
};
