// KyDbRenderSettings: a render preset: its name and its output size
// as text ("640x480").
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbObject.h"

class KYPLATFORM_API KyDbRenderSettings : public KyDbObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbRenderSettings);
    KyDbRenderSettings();
    ~KyDbRenderSettings() override;

    const KyString& name() const { return m_name; }
    Kyro::ErrorStatus setName(const wchar_t* value);
    const KyString& outputSize() const { return m_outputSize; }
    Kyro::ErrorStatus setOutputSize(const wchar_t* value);

protected:
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyString m_name;
    KyString m_outputSize;
};
