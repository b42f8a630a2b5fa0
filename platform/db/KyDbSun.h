// KyDbSun: the sun of a view or viewport: on or off, its
// intensity, colour and the kind of shadows it casts.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyCmColor.h"
#include "db/KyDbObject.h"

class KYPLATFORM_API KyDbSun : public KyDbObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbSun);
    KyDbSun();
    ~KyDbSun() override;

    bool isOn() const { return m_on; }
    Kyro::ErrorStatus setOn(bool value);
    // Not negative (eInvalidInput).
    double intensity() const { return m_intensity; }
    Kyro::ErrorStatus setIntensity(double value);
    const KyCmColor& sunColor() const { return m_color; }
    Kyro::ErrorStatus setSunColor(const KyCmColor& value);
    int shadowType() const { return m_shadowType; }
    Kyro::ErrorStatus setShadowType(int value);

protected:
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    bool m_on = false;
    double m_intensity = 1.0;
    KyCmColor m_color;
    int m_shadowType = 0;
};
