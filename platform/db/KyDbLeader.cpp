#include "db/KyDbLeader.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDimStyleTableRecord.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kLeaderRows[] = {
    {L"DimensionStyleId",
     kydbiAccess<&KyDbLeader::dimensionStyle,
                 kydbiSetter<KyDbLeader, KyDbObjectId>(&KyDbLeader::setDimensionStyle)>(),
     KyDbCategory::kMisc, 0, L"/DimStyleTableId/Items"},
    {L"Points",
     {},
     KyDbCategory::kGeometry,
     1,
     nullptr,
     &kydbiPointList<KyDbLeader, &KyDbLeader::points, &KyDbLeader::setPointAt>},
};

}  // namespace

KYDB_DEFINE_ENTITY(KyDbLeader, KyDbEntity, kLeaderRows, L"LEADER")

KyDbLeader::KyDbLeader() = default;

KyDbLeader::~KyDbLeader() = default;

Kyro::ErrorStatus KyDbLeader::setPoints(const KyArray<KyGePoint3d>& points) {
    return setMember(m_points, points);
}

Kyro::ErrorStatus KyDbLeader::setPointAt(int index, const KyGePoint3d& point) {
    return setPointIn(m_points, index, point);
}

Kyro::ErrorStatus KyDbLeader::setDimensionStyle(KyDbObjectId styleId) {
    return setReference(m_style, styleId, KyDbDimStyleTableRecord::desc());
}

Kyro::ErrorStatus KyDbLeader::setDimensionStyle(const wchar_t* styleName) {
    return setReference(m_style, styleName, &KyDbDatabase::dimStyleTableId,
                        KyDbDimStyleTableRecord::desc());
}

void KyDbLeader::subAppended(KyDbDatabase* database) {
    KyDbEntity::subAppended(database);
    if (m_style.isNull()) {
        m_style = database->dimstyle();
    }
}

void KyDbLeader::subSaveState(KyDbStateFiler& filer) const {
    KyDbEntity::subSaveState(filer);
    filer.writeArray(m_points);
    filer.write(m_style);
}

Kyro::ErrorStatus KyDbLeader::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbEntity::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.readArray(m_points);
    filer.read(m_style);
    return filer.status();
}
