// KyDbPlotSettings: a named page setup. Its settings are kept as
// the text a reader gave them (a JSON object in a drawing file), unread.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbObject.h"

class KYPLATFORM_API KyDbPlotSettings : public KyDbObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbPlotSettings);
    KyDbPlotSettings();
    ~KyDbPlotSettings() override;

    const KyString& plotSettingsName() const { return m_name; }
    Kyro::ErrorStatus setPlotSettingsName(const wchar_t* value);
    // The settings as text; empty for none.
    const KyString& settings() const { return m_settings; }
    Kyro::ErrorStatus setSettings(const wchar_t* value);

protected:
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyString m_name;
    KyString m_settings;
};
