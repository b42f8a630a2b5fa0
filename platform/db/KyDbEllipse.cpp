#include "db/KyDbEllipse.h"

#include <cmath>

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kEllipseRows[] = {
    {L"Center", kydbiAccess<&KyDbEllipse::center, &KyDbEllipse::setCenter>(),
     KyDbCategory::kGeometry, 1},
    {L"MajorAxis", kydbiAccess<&KyDbEllipse::majorAxis, &KyDbEllipse::setMajorAxis>(),
     KyDbCategory::kGeometry, 2},
    {L"RadiusRatio", kydbiAccess<&KyDbEllipse::radiusRatio, &KyDbEllipse::setRadiusRatio>(),
     KyDbCategory::kGeometry, 3},
    {L"StartAngle", kydbiAccess<&KyDbEllipse::startAngle, &KyDbEllipse::setStartAngle>(),
     KyDbCategory::kGeometry, 4},
    {L"EndAngle", kydbiAccess<&KyDbEllipse::endAngle, &KyDbEllipse::setEndAngle>(),
     KyDbCategory::kGeometry, 5},
};

}  // namespace

KYDB_DEFINE_ENTITY(KyDbEllipse, KyDbEntity, kEllipseRows, L"ELLIPSE")

KyDbEllipse::KyDbEllipse() = default;

KyDbEllipse::~KyDbEllipse() = default;

Kyro::ErrorStatus KyDbEllipse::setCenter(const KyGePoint3d& center) {
    return setMember(m_center, center);
}

Kyro::ErrorStatus KyDbEllipse::setMajorAxis(const KyGePoint3d& axis) {
    return axis.distanceTo(KyGePoint3d::kOrigin) > 0.0 ? setMember(m_majorAxis, axis)
                                                       : Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDbEllipse::setRadiusRatio(double ratio) {
    return ratio > 0.0 && ratio <= 1.0 ? setMember(m_radiusRatio, ratio) : Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDbEllipse::setStartAngle(double degrees) {
    return std::isfinite(degrees) ? setMember(m_startAngle, degrees) : Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDbEllipse::setEndAngle(double degrees) {
    return std::isfinite(degrees) ? setMember(m_endAngle, degrees) : Kyro::eInvalidInput;
}

void KyDbEllipse::subSaveState(KyDbStateFiler& filer) const {
    KyDbEntity::subSaveState(filer);
    filer.write(m_center);
    filer.write(m_majorAxis);
    filer.write(m_radiusRatio);
    filer.write(m_startAngle);
    filer.write(m_endAngle);
}

Kyro::ErrorStatus KyDbEllipse::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbEntity::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_center);
    filer.read(m_majorAxis);
    filer.read(m_radiusRatio);
    filer.read(m_startAngle);
    filer.read(m_endAngle);
    return filer.status();
}
