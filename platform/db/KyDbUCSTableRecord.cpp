#include "db/KyDbUCSTableRecord.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kUCSTableRecordRows[] = {
    {L"Origin", kydbiAccess<&KyDbUCSTableRecord::origin, &KyDbUCSTableRecord::setOrigin>(),
     KyDbCategory::kGeometry, 1},
    {L"XAxis", kydbiAccess<&KyDbUCSTableRecord::xAxis, &KyDbUCSTableRecord::setXAxis>(),
     KyDbCategory::kGeometry, 2},
    {L"YAxis", kydbiAccess<&KyDbUCSTableRecord::yAxis, &KyDbUCSTableRecord::setYAxis>(),
     KyDbCategory::kGeometry, 3},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbUCSTableRecord, KyDbSymbolTableRecord, kUCSTableRecordRows)

KyDbUCSTableRecord::KyDbUCSTableRecord() = default;

KyDbUCSTableRecord::~KyDbUCSTableRecord() = default;

Kyro::ErrorStatus KyDbUCSTableRecord::setOrigin(const KyGePoint3d& origin) {
    return setMember(m_origin, origin);
}

Kyro::ErrorStatus KyDbUCSTableRecord::setXAxis(const KyGePoint3d& axis) {
    return axis == KyGePoint3d::kOrigin ? Kyro::eInvalidInput : setMember(m_xAxis, axis);
}

Kyro::ErrorStatus KyDbUCSTableRecord::setYAxis(const KyGePoint3d& axis) {
    return axis == KyGePoint3d::kOrigin ? Kyro::eInvalidInput : setMember(m_yAxis, axis);
}

void KyDbUCSTableRecord::subSaveState(KyDbStateFiler& filer) const {
    KyDbSymbolTableRecord::subSaveState(filer);
    filer.write(m_origin);
    filer.write(m_xAxis);
    filer.write(m_yAxis);
}

Kyro::ErrorStatus KyDbUCSTableRecord::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbSymbolTableRecord::subRestoreState(filer);
        status != Kyro::eOk) {
        return status;
    }
    filer.read(m_origin);
    filer.read(m_xAxis);
    filer.read(m_yAxis);
    return filer.status();
}
