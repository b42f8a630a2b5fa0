#include "db/KyDbViewport.h"

#include <cmath>
#include <memory>

#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbBlockTableRecordIterator.h"
#include "db/KyDbClassSupport.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbRecordReference.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbStateFiler.h"
#include "db/KyDbSun.h"
#include "db/KyDbVisualStyle.h"

namespace {

using Viewport = KyDbViewport;

Kyro::ErrorStatus listFrozenLayers(const KyRxObject* object, KyDbIdList& ids) {
    const Viewport* viewport = kyrxCast<Viewport>(object);
    return viewport != nullptr ? viewport->getFrozenLayerList(ids) : Kyro::eNotThatKindOfClass;
}

const KyDbPropertyRow kViewportRows[] = {
    {L"Center", kydbiAccess<&Viewport::centerPoint, &Viewport::setCenterPoint>(),
     KyDbCategory::kGeometry, 1},
    {L"Width", kydbiAccess<&Viewport::width, &Viewport::setWidth>(), KyDbCategory::kGeometry, 2},
    {L"Height", kydbiAccess<&Viewport::height, &Viewport::setHeight>(), KyDbCategory::kGeometry, 3},
    {L"ViewCenter", kydbiAccess<&Viewport::viewCenter, &Viewport::setViewCenter>(),
     KyDbCategory::kGeometry, 4},
    {L"ViewHeight", kydbiAccess<&Viewport::viewHeight, &Viewport::setViewHeight>(),
     KyDbCategory::kGeometry, 5},
    {L"Target", kydbiAccess<&Viewport::viewTarget, &Viewport::setViewTarget>(),
     KyDbCategory::kGeometry, 6},
    {L"Direction", kydbiAccess<&Viewport::viewDirection, &Viewport::setViewDirection>(),
     KyDbCategory::kGeometry, 7},
    {L"LensLength", kydbiAccess<&Viewport::lensLength, &Viewport::setLensLength>(),
     KyDbCategory::kGeometry, 8},
    {L"IsOn", kydbiAccess<&Viewport::isOn, &Viewport::setOn>(), KyDbCategory::kMisc, 1},
    {L"IsLocked", kydbiAccess<&Viewport::isLocked, &Viewport::setLocked>(), KyDbCategory::kMisc, 2},
    {L"VisualStyleId", kydbiAccess<&Viewport::visualStyleId, &Viewport::setVisualStyle>(),
     KyDbCategory::kMisc, 3, L"/VisualStyleDictionaryId/Items"},
    {L"IsNonRectClipOn", kydbiAccess<&Viewport::isNonRectClipOn>(), KyDbCategory::kMisc, 4},
    {L"Number", kydbiAccess<&Viewport::number>(), KyDbCategory::kMisc, 5},
    {L"SunId", kydbiAccess<&Viewport::sunId>()},
    {L"FrozenLayers", {}, nullptr, 0, nullptr, &kydbiIdCollection<&listFrozenLayers>},
};

}  // namespace

KYDB_DEFINE_ENTITY(KyDbViewport, KyDbEntity, kViewportRows, L"VIEWPORT")

KyDbViewport::KyDbViewport() = default;

KyDbViewport::~KyDbViewport() = default;

Kyro::ErrorStatus KyDbViewport::setCenterPoint(const KyGePoint3d& center) {
    return setMember(m_center, center);
}

Kyro::ErrorStatus KyDbViewport::setWidth(double width) {
    return width > 0.0 ? setMember(m_width, width) : Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDbViewport::setHeight(double height) {
    return height > 0.0 ? setMember(m_height, height) : Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDbViewport::setViewCenter(const KyGePoint3d& center) {
    return setMember(m_viewCenter, center);
}

Kyro::ErrorStatus KyDbViewport::setViewHeight(double height) {
    return height > 0.0 ? setMember(m_viewHeight, height) : Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDbViewport::setViewTarget(const KyGePoint3d& target) {
    return setMember(m_viewTarget, target);
}

Kyro::ErrorStatus KyDbViewport::setViewDirection(const KyGePoint3d& direction) {
    return direction == KyGePoint3d::kOrigin ? Kyro::eInvalidInput
                                             : setMember(m_viewDirection, direction);
}

Kyro::ErrorStatus KyDbViewport::setLensLength(double length) {
    return length > 0.0 && std::isfinite(length) ? setMember(m_lensLength, length)
                                                 : Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDbViewport::setOn(bool on) {
    return setMember(m_on, on);
}

Kyro::ErrorStatus KyDbViewport::setLocked(bool locked) {
    return setMember(m_locked, locked);
}

int KyDbViewport::number() const {
    const KyDbObjectId blockId = ownerId();
    if (isErased() || !blockId.isValid()) {
        return 0;
    }
    const auto* block = kyrxCast<KyDbBlockTableRecord>(blockId.stub()->object);
    if (block == nullptr || !block->isLayout() ||
        block->name().compareNoCase(KyDbStandardContent::kModelSpaceName) == 0) {
        return 0;
    }
    // Counted through the ids, without opening: the others may be open.
    KyDbBlockTableRecordIterator it(block);
    int count = 0;
    for (it.start(true, true); !it.done(); it.step(true, true)) {
        KyDbObjectId id;
        it.getEntityId(id);
        if (KyRxClass::isDerivedFrom(id.objectClass(), KyDbViewport::desc())) {
            ++count;
            if (id == objectId()) {
                return count;
            }
        }
    }
    return 0;
}

Kyro::ErrorStatus KyDbViewport::getFrozenLayerList(KyArray<KyDbObjectId>& layerIds) const {
    layerIds.setLogicalLength(0);
    for (const KyDbObjectId& id : m_frozenLayers) {
        if (!id.isErased()) {
            layerIds.append(id);
        }
    }
    return Kyro::eOk;
}

bool KyDbViewport::isLayerFrozenInViewport(KyDbObjectId layerId) const {
    return !layerId.isNull() && m_frozenLayers.contains(layerId);
}

Kyro::ErrorStatus KyDbViewport::freezeLayersInViewport(const KyArray<KyDbObjectId>& layerIds) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    KyArray<KyDbObjectId> added;
    for (const KyDbObjectId& id : layerIds) {
        if (const Kyro::ErrorStatus status =
                KyDbRecordReference::check(this, id, KyDbLayerTableRecord::desc());
            status != Kyro::eOk) {
            return status;
        }
        if (!m_frozenLayers.contains(id) && !added.contains(id)) {
            added.append(id);
        }
    }
    if (!added.isEmpty()) {
        assertWriteEnabled();
        m_frozenLayers.append(added);
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbViewport::thawLayersInViewport(const KyArray<KyDbObjectId>& layerIds) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    KyArray<KyDbObjectId> remaining;
    for (const KyDbObjectId& id : m_frozenLayers) {
        if (!layerIds.contains(id)) {
            remaining.append(id);
        }
    }
    if (remaining.length() != m_frozenLayers.length()) {
        assertWriteEnabled();
        m_frozenLayers = remaining;
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbViewport::thawAllLayersInViewport() {
    return setMember(m_frozenLayers, KyArray<KyDbObjectId>());
}

Kyro::ErrorStatus KyDbViewport::setNonRectClipPoints(const KyArray<KyGePoint3d>& points) {
    if (!points.isEmpty() && points.length() < 3) {
        return Kyro::eInvalidInput;
    }
    return setMember(m_clip, points);
}

Kyro::ErrorStatus KyDbViewport::setOptionalReference(KyDbObjectId& member, KyDbObjectId id,
                                                     const KyRxClass* objectClass) {
    if (id.isNull()) {
        return setMember(member, id);
    }
    return setReference(member, id, objectClass);
}

Kyro::ErrorStatus KyDbViewport::setVisualStyle(KyDbObjectId visualStyleId) {
    return setOptionalReference(m_visualStyle, visualStyleId, KyDbVisualStyle::desc());
}

Kyro::ErrorStatus KyDbViewport::setSun(KyDbObjectId sunId) {
    return setOptionalReference(m_sun, sunId, KyDbSun::desc());
}

void KyDbViewport::subSaveState(KyDbStateFiler& filer) const {
    KyDbEntity::subSaveState(filer);
    filer.write(m_center);
    filer.write(m_viewCenter);
    filer.write(m_width);
    filer.write(m_height);
    filer.write(m_viewHeight);
    filer.write(m_viewTarget);
    filer.write(m_viewDirection);
    filer.write(m_lensLength);
    filer.write(m_on);
    filer.write(m_locked);
    filer.writeArray(m_frozenLayers);
    filer.writeArray(m_clip);
    filer.write(m_visualStyle);
    filer.write(m_sun);
}

Kyro::ErrorStatus KyDbViewport::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbEntity::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_center);
    filer.read(m_viewCenter);
    filer.read(m_width);
    filer.read(m_height);
    filer.read(m_viewHeight);
    filer.read(m_viewTarget);
    filer.read(m_viewDirection);
    filer.read(m_lensLength);
    filer.read(m_on);
    filer.read(m_locked);
    filer.readArray(m_frozenLayers);
    filer.readArray(m_clip);
    filer.read(m_visualStyle);
    filer.read(m_sun);
    return filer.status();
}
