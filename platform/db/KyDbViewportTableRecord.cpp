#include "db/KyDbViewportTableRecord.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kViewportTableRecordRows[] = {
    {L"ViewCenter",
     kydbiAccess<&KyDbViewportTableRecord::viewCenter, &KyDbViewportTableRecord::setViewCenter>(),
     KyDbCategory::kGeometry, 6},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbViewportTableRecord, KyDbAbstractViewTableRecord, kViewportTableRecordRows)

KyDbViewportTableRecord::KyDbViewportTableRecord() = default;

KyDbViewportTableRecord::~KyDbViewportTableRecord() = default;

Kyro::ErrorStatus KyDbViewportTableRecord::setViewCenter(const KyGePoint3d& center) {
    return setMember(m_viewCenter, center);
}

void KyDbViewportTableRecord::subSaveState(KyDbStateFiler& filer) const {
    KyDbAbstractViewTableRecord::subSaveState(filer);
    filer.write(m_viewCenter);
}

Kyro::ErrorStatus KyDbViewportTableRecord::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbAbstractViewTableRecord::subRestoreState(filer);
        status != Kyro::eOk) {
        return status;
    }
    filer.read(m_viewCenter);
    return filer.status();
}
