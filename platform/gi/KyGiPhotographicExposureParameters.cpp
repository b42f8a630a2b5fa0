#include "gi/KyGiPhotographicExposureParameters.h"

#include "gi/KyGiToneOperatorMembers.h"

KyGiPhotographicExposureParameters::KyGiPhotographicExposureParameters() = default;

KyGiPhotographicExposureParameters::KyGiPhotographicExposureParameters(
    const KyGiPhotographicExposureParameters& other) = default;

KyGiPhotographicExposureParameters& KyGiPhotographicExposureParameters::operator=(
    const KyGiPhotographicExposureParameters& other) = default;

KyGiPhotographicExposureParameters::~KyGiPhotographicExposureParameters() = default;

bool KyGiPhotographicExposureParameters::operator==(
    const KyGiPhotographicExposureParameters& other) const {
    return KyGiToneOperatorParameters::operator==(other) && m_exposure == other.m_exposure &&
           m_whitePoint == other.m_whitePoint;
}

bool KyGiPhotographicExposureParameters::setExposure(double exposure) {
    if (!(exposure >= kMinExposure && exposure <= kMaxExposure)) {
        return false;
    }
    m_exposure = exposure;
    return true;
}

bool KyGiPhotographicExposureParameters::setWhitePoint(double kelvin) {
    if (!(kelvin >= kMinWhitePoint && kelvin <= kMaxWhitePoint)) {
        return false;
    }
    m_whitePoint = kelvin;
    return true;
}

namespace {

using ExposureProperty = KyRxValueMemberProperty<KyGiPhotographicExposureParameters, double>;

void buildExposureMembers(KyRxMemberCollectionBuilder& builder, void*) {
    kygiAddToneOperatorMembers<KyGiPhotographicExposureParameters>(builder);
    builder.add(new ExposureProperty(
        L"Exposure", builder.owner(),
        [](const KyGiPhotographicExposureParameters& p) { return p.exposure(); },
        [](KyGiPhotographicExposureParameters& p, double value) { return p.setExposure(value); }));
    builder.add(new ExposureProperty(
        L"WhitePoint", builder.owner(),
        [](const KyGiPhotographicExposureParameters& p) { return p.whitePoint(); },
        [](KyGiPhotographicExposureParameters& p, double value) {
            return p.setWhitePoint(value);
        }));
}

}  // namespace

template <>
const KyRxValueType& KyRxValueType::Desc<KyGiPhotographicExposureParameters>::value() {
    static const KyRxValueType* const s_type =
        new KyRxNonBlittableType<KyGiPhotographicExposureParameters>(
            L"KyGiPhotographicExposureParameters", &buildExposureMembers);
    return *s_type;
}
