// KyGiPhotographicExposureParameters: tone operator parameters of a
// photographic renderer, which adds the camera's exposure and the colour
// temperature that shows as white.
#pragma once

#include "KyPlatformExport.h"
#include "gi/KyGiToneOperatorParameters.h"

class KYPLATFORM_API KyGiPhotographicExposureParameters : public KyGiToneOperatorParameters {
public:
    // Exposure values (EV) and colour temperatures (Kelvin) the setters accept.
    static constexpr double kMinExposure = -6.0;
    static constexpr double kMaxExposure = 21.0;
    static constexpr double kMinWhitePoint = 1000.0;
    static constexpr double kMaxWhitePoint = 20000.0;

    // The tone defaults, exposure 8.8 and white point 6500 K (daylight).
    KyGiPhotographicExposureParameters();
    KyGiPhotographicExposureParameters(const KyGiPhotographicExposureParameters& other);
    KyGiPhotographicExposureParameters& operator=(const KyGiPhotographicExposureParameters& other);
    ~KyGiPhotographicExposureParameters() override;

    // The tone parameters and both own settings are equal.
    bool operator==(const KyGiPhotographicExposureParameters& other) const;
    bool operator!=(const KyGiPhotographicExposureParameters& other) const {
        return !(*this == other);
    }

    // The setters answer false and change nothing for a value out of range.
    double exposure() const { return m_exposure; }
    bool setExposure(double exposure);
    double whitePoint() const { return m_whitePoint; }
    bool setWhitePoint(double kelvin);

private:
    double m_exposure = 8.8;
    double m_whitePoint = 6500.0;
};

// Named "KyGiPhotographicExposureParameters"; non-blittable, held in a heap
// block. Members: those of the tone parameters ("Brightness", "Contrast",
// "MidTones", "ExteriorDaylight") and "Exposure", "WhitePoint" (double), all
// on a boxed KyGiPhotographicExposureParameters: each type's members serve
// values of that type only. Equality: ==. No text.
template <>
KYPLATFORM_API const KyRxValueType&
KyRxValueType::Desc<KyGiPhotographicExposureParameters>::value();
