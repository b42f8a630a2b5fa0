#include "db/KyDbAbstractViewTableRecord.h"

#include <cmath>

#include "db/KyDbClassSupport.h"
#include "db/KyDbRecordReference.h"
#include "db/KyDbStateFiler.h"
#include "db/KyDbSun.h"
#include "db/KyDbVisualStyle.h"
#include "rx/KyRxClass.h"

namespace {

const KyDbPropertyRow kAbstractViewTableRecordRows[] = {
    {L"Center",
     kydbiAccess<&KyDbAbstractViewTableRecord::centerPoint,
                 &KyDbAbstractViewTableRecord::setCenterPoint>(),
     KyDbCategory::kGeometry, 1},
    {L"Height",
     kydbiAccess<&KyDbAbstractViewTableRecord::height, &KyDbAbstractViewTableRecord::setHeight>(),
     KyDbCategory::kGeometry, 2},
    {L"Width",
     kydbiAccess<&KyDbAbstractViewTableRecord::width, &KyDbAbstractViewTableRecord::setWidth>(),
     KyDbCategory::kGeometry, 3},
    {L"Target",
     kydbiAccess<&KyDbAbstractViewTableRecord::target, &KyDbAbstractViewTableRecord::setTarget>(),
     KyDbCategory::kGeometry, 4},
    {L"Direction",
     kydbiAccess<&KyDbAbstractViewTableRecord::viewDirection,
                 &KyDbAbstractViewTableRecord::setViewDirection>(),
     KyDbCategory::kGeometry, 5},
    {L"LensLength",
     kydbiAccess<&KyDbAbstractViewTableRecord::lensLength,
                 &KyDbAbstractViewTableRecord::setLensLength>(),
     KyDbCategory::kGeometry, 7},
    {L"SunId",
     kydbiAccess<&KyDbAbstractViewTableRecord::sunId, &KyDbAbstractViewTableRecord::setSun>()},
    {L"VisualStyleId",
     kydbiAccess<&KyDbAbstractViewTableRecord::visualStyleId,
                 &KyDbAbstractViewTableRecord::setVisualStyle>(),
     KyDbCategory::kMisc, 3, L"/VisualStyleDictionaryId/Items"},
};

}  // namespace

KYDB_DEFINE_BASE_CLASS(KyDbAbstractViewTableRecord, KyDbSymbolTableRecord,
                       kAbstractViewTableRecordRows)

KyDbAbstractViewTableRecord::KyDbAbstractViewTableRecord() = default;

KyDbAbstractViewTableRecord::~KyDbAbstractViewTableRecord() = default;

Kyro::ErrorStatus KyDbAbstractViewTableRecord::setCenterPoint(const KyGePoint3d& center) {
    return setMember(m_center, center);
}

Kyro::ErrorStatus KyDbAbstractViewTableRecord::setHeight(double height) {
    return height <= 0.0 ? Kyro::eInvalidInput : setMember(m_height, height);
}

Kyro::ErrorStatus KyDbAbstractViewTableRecord::setWidth(double width) {
    return width <= 0.0 ? Kyro::eInvalidInput : setMember(m_width, width);
}

Kyro::ErrorStatus KyDbAbstractViewTableRecord::setTarget(const KyGePoint3d& target) {
    return setMember(m_target, target);
}

Kyro::ErrorStatus KyDbAbstractViewTableRecord::setViewDirection(const KyGePoint3d& direction) {
    if (direction == KyGePoint3d::kOrigin) {
        return Kyro::eInvalidInput;
    }
    return setMember(m_direction, direction);
}

Kyro::ErrorStatus KyDbAbstractViewTableRecord::setLensLength(double length) {
    return length > 0.0 && std::isfinite(length) ? setMember(m_lensLength, length)
                                                 : Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDbAbstractViewTableRecord::setOptionalReference(KyDbObjectId& member,
                                                                    KyDbObjectId id,
                                                                    const KyRxClass* objectClass) {
    if (!id.isNull()) {
        if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
            return status;
        }
        if (const Kyro::ErrorStatus status = KyDbRecordReference::check(this, id, objectClass);
            status != Kyro::eOk) {
            return status;
        }
    }
    return setMember(member, id);
}

Kyro::ErrorStatus KyDbAbstractViewTableRecord::setSun(KyDbObjectId sunId) {
    return setOptionalReference(m_sun, sunId, KyDbSun::desc());
}

Kyro::ErrorStatus KyDbAbstractViewTableRecord::setVisualStyle(KyDbObjectId visualStyleId) {
    return setOptionalReference(m_visualStyle, visualStyleId, KyDbVisualStyle::desc());
}

void KyDbAbstractViewTableRecord::subSaveState(KyDbStateFiler& filer) const {
    KyDbSymbolTableRecord::subSaveState(filer);
    filer.write(m_center);
    filer.write(m_target);
    filer.write(m_direction);
    filer.write(m_sun);
    filer.write(m_visualStyle);
    filer.write(m_height);
    filer.write(m_width);
    filer.write(m_lensLength);
}

Kyro::ErrorStatus KyDbAbstractViewTableRecord::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbSymbolTableRecord::subRestoreState(filer);
        status != Kyro::eOk) {
        return status;
    }
    filer.read(m_center);
    filer.read(m_target);
    filer.read(m_direction);
    filer.read(m_sun);
    filer.read(m_visualStyle);
    filer.read(m_height);
    filer.read(m_width);
    filer.read(m_lensLength);
    return filer.status();
}
