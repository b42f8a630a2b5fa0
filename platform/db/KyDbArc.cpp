#include "db/KyDbArc.h"

#include <cmath>
#include <numbers>

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kArcRows[] = {
    {L"Center", kydbiAccess<&KyDbArc::center, &KyDbArc::setCenter>(), KyDbCategory::kGeometry, 1},
    {L"Radius", kydbiAccess<&KyDbArc::radius, &KyDbArc::setRadius>(), KyDbCategory::kGeometry, 2},
    {L"StartAngle", kydbiAccess<&KyDbArc::startAngle, &KyDbArc::setStartAngle>(),
     KyDbCategory::kGeometry, 3},
    {L"EndAngle", kydbiAccess<&KyDbArc::endAngle, &KyDbArc::setEndAngle>(), KyDbCategory::kGeometry,
     4},
    {L"Length", kydbiAccess<&KyDbArc::length>(), KyDbCategory::kGeometry, 5},
};

}  // namespace

KYDB_DEFINE_ENTITY(KyDbArc, KyDbEntity, kArcRows, L"ARC")

KyDbArc::KyDbArc() = default;

KyDbArc::KyDbArc(const KyGePoint3d& center, double radius, double startAngle, double endAngle)
    : m_center(center),
      m_radius(radius > 0.0 ? radius : 1.0),
      m_startAngle(startAngle),
      m_endAngle(endAngle) {}

KyDbArc::~KyDbArc() = default;

Kyro::ErrorStatus KyDbArc::setCenter(const KyGePoint3d& center) {
    return setMember(m_center, center);
}

Kyro::ErrorStatus KyDbArc::setRadius(double radius) {
    return radius > 0.0 ? setMember(m_radius, radius) : Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDbArc::setStartAngle(double degrees) {
    return std::isfinite(degrees) ? setMember(m_startAngle, degrees) : Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDbArc::setEndAngle(double degrees) {
    return std::isfinite(degrees) ? setMember(m_endAngle, degrees) : Kyro::eInvalidInput;
}

double KyDbArc::totalAngle() const {
    const double sweep = std::fmod(m_endAngle - m_startAngle, 360.0);
    return sweep <= 0.0 ? sweep + 360.0 : sweep;
}

double KyDbArc::length() const {
    return m_radius * totalAngle() * std::numbers::pi / 180.0;
}

void KyDbArc::subSaveState(KyDbStateFiler& filer) const {
    KyDbEntity::subSaveState(filer);
    filer.write(m_center);
    filer.write(m_radius);
    filer.write(m_startAngle);
    filer.write(m_endAngle);
}

Kyro::ErrorStatus KyDbArc::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbEntity::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_center);
    filer.read(m_radius);
    filer.read(m_startAngle);
    filer.read(m_endAngle);
    return filer.status();
}
