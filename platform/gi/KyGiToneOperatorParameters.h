// KyGiToneOperatorParameters: how a rendered image maps the light it computed
// to the brightness of the screen. The settings a user changes are
// brightness, contrast, mid-tones and the daylight of exterior scenes; the
// others switch the operator and its corrections on or off.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyCmColor.h"
#include "rx/KyRxValueType.h"

class KYPLATFORM_API KyGiToneOperatorParameters {
public:
    // Whether exterior daylight is taken into account.
    enum ExteriorDaylightMode : int {
        kDaylightOff = 0,
        kDaylightOn = 1,
        kDaylightAuto = 2,  // on when the scene has a sun or a sky
    };

    // The ranges that the setters accept.
    static constexpr double kMinBrightness = 0.0;
    static constexpr double kMaxBrightness = 200.0;
    static constexpr double kMinContrast = 0.0;
    static constexpr double kMaxContrast = 100.0;
    static constexpr double kMinMidTones = 0.01;
    static constexpr double kMaxMidTones = 20.0;

    // Active, brightness 50, contrast 50, mid-tones 1, no chromatic adaptation
    // or colour differentiation, white colour index 7, the background not
    // processed, daylight automatic.
    KyGiToneOperatorParameters();
    KyGiToneOperatorParameters(const KyGiToneOperatorParameters& other);
    KyGiToneOperatorParameters& operator=(const KyGiToneOperatorParameters& other);
    virtual ~KyGiToneOperatorParameters();

    bool operator==(const KyGiToneOperatorParameters& other) const;
    bool operator!=(const KyGiToneOperatorParameters& other) const { return !(*this == other); }

    bool isActive() const { return m_isActive; }
    void setIsActive(bool active) { m_isActive = active; }
    bool chromaticAdaptation() const { return m_chromaticAdaptation; }
    void setChromaticAdaptation(bool on) { m_chromaticAdaptation = on; }
    bool colorDifferentiation() const { return m_colorDifferentiation; }
    void setColorDifferentiation(bool on) { m_colorDifferentiation = on; }
    // The colour that shows as white.
    const KyCmColor& whiteColor() const { return m_whiteColor; }
    void setWhiteColor(const KyCmColor& color) { m_whiteColor = color; }
    bool processBackground() const { return m_processBackground; }
    void setProcessBackground(bool on) { m_processBackground = on; }

    // The setters answer false and change nothing for a value out of range.
    double brightness() const { return m_brightness; }
    bool setBrightness(double brightness);
    double contrast() const { return m_contrast; }
    bool setContrast(double contrast);
    double midTones() const { return m_midTones; }
    bool setMidTones(double midTones);
    ExteriorDaylightMode exteriorDaylight() const { return m_exteriorDaylight; }
    bool setExteriorDaylight(ExteriorDaylightMode mode);

private:
    bool m_isActive = true;
    bool m_chromaticAdaptation = false;
    bool m_colorDifferentiation = false;
    bool m_processBackground = false;
    KyCmColor m_whiteColor;
    double m_brightness = 50.0;
    double m_contrast = 50.0;
    double m_midTones = 1.0;
    ExteriorDaylightMode m_exteriorDaylight = kDaylightAuto;
};

// Named "KyGiToneOperatorParameters"; non-blittable, held in a heap block.
// Members "Brightness", "Contrast", "MidTones" (double) and "ExteriorDaylight"
// (int 0 to 2) read and write the boxed parameters; a write out of range is
// refused with eInvalidInput. Equality: ==. No text.
template <>
KYPLATFORM_API const KyRxValueType& KyRxValueType::Desc<KyGiToneOperatorParameters>::value();
