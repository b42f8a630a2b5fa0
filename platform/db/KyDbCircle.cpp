#include "db/KyDbCircle.h"

#include <numbers>

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kCircleRows[] = {
    {L"Center", kydbiAccess<&KyDbCircle::center, &KyDbCircle::setCenter>(), KyDbCategory::kGeometry,
     1},
    {L"Radius", kydbiAccess<&KyDbCircle::radius, &KyDbCircle::setRadius>(), KyDbCategory::kGeometry,
     2},
    {L"Area", kydbiAccess<&KyDbCircle::area>(), KyDbCategory::kGeometry, 3},
};

}  // namespace

KYDB_DEFINE_ENTITY(KyDbCircle, KyDbEntity, kCircleRows, L"CIRCLE")

KyDbCircle::KyDbCircle() = default;

KyDbCircle::KyDbCircle(const KyGePoint3d& center, double radius)
    : m_center(center), m_radius(radius > 0.0 ? radius : 1.0) {}

KyDbCircle::~KyDbCircle() = default;

Kyro::ErrorStatus KyDbCircle::setCenter(const KyGePoint3d& center) {
    return setMember(m_center, center);
}

Kyro::ErrorStatus KyDbCircle::setRadius(double radius) {
    return radius > 0.0 ? setMember(m_radius, radius) : Kyro::eInvalidInput;
}

double KyDbCircle::area() const {
    return std::numbers::pi * m_radius * m_radius;
}

void KyDbCircle::subSaveState(KyDbStateFiler& filer) const {
    KyDbEntity::subSaveState(filer);
    filer.write(m_center);
    filer.write(m_radius);
}

Kyro::ErrorStatus KyDbCircle::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbEntity::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_center);
    filer.read(m_radius);
    return filer.status();
}
