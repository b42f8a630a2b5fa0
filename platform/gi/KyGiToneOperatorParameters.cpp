#include "gi/KyGiToneOperatorParameters.h"

#include "gi/KyGiToneOperatorMembers.h"

KyGiToneOperatorParameters::KyGiToneOperatorParameters() {
    m_whiteColor.setColorIndex(KyCmColor::kACIWhite);
}

KyGiToneOperatorParameters::KyGiToneOperatorParameters(const KyGiToneOperatorParameters& other) =
    default;

KyGiToneOperatorParameters& KyGiToneOperatorParameters::operator=(
    const KyGiToneOperatorParameters& other) = default;

KyGiToneOperatorParameters::~KyGiToneOperatorParameters() = default;

bool KyGiToneOperatorParameters::operator==(const KyGiToneOperatorParameters& other) const {
    return m_isActive == other.m_isActive && m_chromaticAdaptation == other.m_chromaticAdaptation &&
           m_colorDifferentiation == other.m_colorDifferentiation &&
           m_processBackground == other.m_processBackground && m_whiteColor == other.m_whiteColor &&
           m_brightness == other.m_brightness && m_contrast == other.m_contrast &&
           m_midTones == other.m_midTones && m_exteriorDaylight == other.m_exteriorDaylight;
}

bool KyGiToneOperatorParameters::setBrightness(double brightness) {
    if (!(brightness >= kMinBrightness && brightness <= kMaxBrightness)) {
        return false;
    }
    m_brightness = brightness;
    return true;
}

bool KyGiToneOperatorParameters::setContrast(double contrast) {
    if (!(contrast >= kMinContrast && contrast <= kMaxContrast)) {
        return false;
    }
    m_contrast = contrast;
    return true;
}

bool KyGiToneOperatorParameters::setMidTones(double midTones) {
    if (!(midTones >= kMinMidTones && midTones <= kMaxMidTones)) {
        return false;
    }
    m_midTones = midTones;
    return true;
}

bool KyGiToneOperatorParameters::setExteriorDaylight(ExteriorDaylightMode mode) {
    if (mode < kDaylightOff || mode > kDaylightAuto) {
        return false;
    }
    m_exteriorDaylight = mode;
    return true;
}

namespace {

void buildToneMembers(KyRxMemberCollectionBuilder& builder, void*) {
    kygiAddToneOperatorMembers<KyGiToneOperatorParameters>(builder);
}

}  // namespace

template <>
const KyRxValueType& KyRxValueType::Desc<KyGiToneOperatorParameters>::value() {
    static const KyRxValueType* const s_type = new KyRxNonBlittableType<KyGiToneOperatorParameters>(
        L"KyGiToneOperatorParameters", &buildToneMembers);
    return *s_type;
}
