#include "db/KyDbLine.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kLineRows[] = {
    {L"StartPoint", kydbiAccess<&KyDbLine::startPoint, &KyDbLine::setStartPoint>(),
     KyDbCategory::kGeometry, 1},
    {L"EndPoint", kydbiAccess<&KyDbLine::endPoint, &KyDbLine::setEndPoint>(),
     KyDbCategory::kGeometry, 2},
    {L"Length", kydbiAccess<&KyDbLine::length>(), KyDbCategory::kGeometry, 3},
};

}  // namespace

KYDB_DEFINE_ENTITY(KyDbLine, KyDbEntity, kLineRows, L"LINE")

KyDbLine::KyDbLine() = default;

KyDbLine::KyDbLine(const KyGePoint3d& start, const KyGePoint3d& end) : m_start(start), m_end(end) {}

KyDbLine::~KyDbLine() = default;

Kyro::ErrorStatus KyDbLine::setStartPoint(const KyGePoint3d& point) {
    return setMember(m_start, point);
}

Kyro::ErrorStatus KyDbLine::setEndPoint(const KyGePoint3d& point) {
    return setMember(m_end, point);
}

void KyDbLine::subSaveState(KyDbStateFiler& filer) const {
    KyDbEntity::subSaveState(filer);
    filer.write(m_start);
    filer.write(m_end);
}

Kyro::ErrorStatus KyDbLine::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbEntity::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_start);
    filer.read(m_end);
    return filer.status();
}
