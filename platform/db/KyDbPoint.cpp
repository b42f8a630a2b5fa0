#include "db/KyDbPoint.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kPointRows[] = {
    {L"Position", kydbiAccess<&KyDbPoint::position, &KyDbPoint::setPosition>(),
     KyDbCategory::kGeometry, 1},
};

}  // namespace

KYDB_DEFINE_ENTITY(KyDbPoint, KyDbEntity, kPointRows, L"POINT")

KyDbPoint::KyDbPoint() = default;

KyDbPoint::KyDbPoint(const KyGePoint3d& position) : m_position(position) {}

KyDbPoint::~KyDbPoint() = default;

Kyro::ErrorStatus KyDbPoint::setPosition(const KyGePoint3d& position) {
    return setMember(m_position, position);
}

void KyDbPoint::subSaveState(KyDbStateFiler& filer) const {
    KyDbEntity::subSaveState(filer);
    filer.write(m_position);
}

Kyro::ErrorStatus KyDbPoint::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbEntity::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_position);
    return filer.status();
}
