// KyDbVisualStyle: a visual style: its name, its kind (the
// host's classification) and whether it is for internal use only.
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
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyString m_name;
    int m_kind = 0;
    bool m_internal = false;
};
