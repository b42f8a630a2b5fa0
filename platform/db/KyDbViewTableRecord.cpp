#include "db/KyDbViewTableRecord.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kViewTableRecordRows[] = {
    {L"IsPaperspaceView",
     kydbiAccess<&KyDbViewTableRecord::isPaperspaceView,
                 &KyDbViewTableRecord::setIsPaperspaceView>(),
     KyDbCategory::kMisc, 1},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbViewTableRecord, KyDbAbstractViewTableRecord, kViewTableRecordRows)

KyDbViewTableRecord::KyDbViewTableRecord() = default;

KyDbViewTableRecord::~KyDbViewTableRecord() = default;

Kyro::ErrorStatus KyDbViewTableRecord::setIsPaperspaceView(bool paperSpace) {
    return setMember(m_paperSpace, paperSpace);
}

void KyDbViewTableRecord::subSaveState(KyDbStateFiler& filer) const {
    KyDbAbstractViewTableRecord::subSaveState(filer);
    filer.write(m_paperSpace);
}

Kyro::ErrorStatus KyDbViewTableRecord::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbAbstractViewTableRecord::subRestoreState(filer);
        status != Kyro::eOk) {
        return status;
    }
    filer.read(m_paperSpace);
    return filer.status();
}
