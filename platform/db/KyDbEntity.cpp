#include "db/KyDbEntity.h"

#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbClassSupport.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbMaterial.h"
#include "db/KyDbRecordReference.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbStateFiler.h"

namespace {

using Entity = KyDbEntity;

// What every entity shows in the palette's "General" group, in its order.
const KyDbPropertyRow kEntityRows[] = {
    {L"Color", kydbiAccess<&Entity::color, &Entity::setColor>(), KyDbCategory::kGeneral, 0},
    {L"LayerId",
     kydbiAccess<&Entity::layerId, kydbiSetter<Entity, KyDbObjectId>(&Entity::setLayer)>(),
     KyDbCategory::kGeneral, 1, L"/LayerTableId/Items"},
    {L"LinetypeId",
     kydbiAccess<&Entity::linetypeId, kydbiSetter<Entity, KyDbObjectId>(&Entity::setLinetype)>(),
     KyDbCategory::kGeneral, 2, L"/LinetypeTableId/Items"},
    {L"LinetypeScale", kydbiAccess<&Entity::linetypeScale, &Entity::setLinetypeScale>(),
     KyDbCategory::kGeneral, 3},
    {L"PlotStyle", kydbiAccess<&Entity::plotStyleName, &Entity::setPlotStyleName>(),
     KyDbCategory::kGeneral, 4, L"/PlotStyleNameDictionaryId/Items"},
    {L"LineWeight", kydbiAccess<&Entity::lineWeight, &Entity::setLineWeight>(),
     KyDbCategory::kGeneral, 5},
    {L"Transparency", kydbiAccess<&Entity::transparency, &Entity::setTransparency>(),
     KyDbCategory::kGeneral, 6},
    {L"MaterialId",
     kydbiAccess<&Entity::materialId, kydbiSetter<Entity, KyDbObjectId>(&Entity::setMaterial)>(),
     KyDbCategory::kGeneral, 8, L"/MaterialDictionaryId/Items"},
    {L"Visible", kydbiAccess<&Entity::visibility, &Entity::setVisibility>(), KyDbCategory::kMisc,
     0},
    {L"BlockId", kydbiAccess<&Entity::blockId>()},
};

}  // namespace

KYDB_DEFINE_BASE_CLASS(KyDbEntity, KyDbObject, kEntityRows)

KyDbEntity::KyDbEntity() : m_plotStyleName(KyDbStandardContent::kByLayer) {}

KyDbEntity::~KyDbEntity() = default;

Kyro::ErrorStatus KyDbEntity::setReference(KyDbObjectId& member, KyDbObjectId id,
                                           const KyRxClass* recordClass) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (const Kyro::ErrorStatus status = KyDbRecordReference::check(this, id, recordClass);
        status != Kyro::eOk) {
        return status;
    }
    return setMember(member, id);
}

Kyro::ErrorStatus KyDbEntity::setReference(KyDbObjectId& member, const wchar_t* name,
                                           KyDbObjectId (KyDbDatabase::*container)() const,
                                           const KyRxClass* recordClass) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    KyDbObjectId id;
    if (const Kyro::ErrorStatus status = KyDbRecordReference::findNamed(this, container, name, id);
        status != Kyro::eOk) {
        return status;
    }
    return setReference(member, id, recordClass);
}

KyDbObjectId KyDbEntity::blockId() const {
    // An attribute stands in its block reference: go up to a block.
    KyDbObjectId owner = ownerId();
    while (owner.isValid() &&
           !KyRxClass::isDerivedFrom(owner.objectClass(), KyDbBlockTableRecord::desc())) {
        owner = owner.stub()->object->ownerId();
    }
    return owner;
}

Kyro::ErrorStatus KyDbEntity::setLayer(const wchar_t* layerName) {
    return setReference(m_layer, layerName, &KyDbDatabase::layerTableId,
                        KyDbLayerTableRecord::desc());
}

Kyro::ErrorStatus KyDbEntity::setLinetype(const wchar_t* linetypeName) {
    return setReference(m_linetype, linetypeName, &KyDbDatabase::linetypeTableId,
                        KyDbLinetypeTableRecord::desc());
}

Kyro::ErrorStatus KyDbEntity::setMaterial(const wchar_t* materialName) {
    return setReference(m_material, materialName, &KyDbDatabase::materialDictionaryId,
                        KyDbMaterial::desc());
}

Kyro::ErrorStatus KyDbEntity::setColorIndex(unsigned short index) {
    KyCmColor color;
    if (index > KyCmColor::kACIbyLayer || color.setColorIndex(index) != Kyro::eOk) {
        return Kyro::eInvalidInput;
    }
    return setColor(color);
}

Kyro::ErrorStatus KyDbEntity::setPointIn(KyArray<KyGePoint3d>& points, int index,
                                         const KyGePoint3d& point) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (!points.isValid(index)) {
        return Kyro::eInvalidIndex;
    }
    return setMember(points[index], point);
}

Kyro::ErrorStatus KyDbEntity::setLayer(KyDbObjectId layerId) {
    return setReference(m_layer, layerId, KyDbLayerTableRecord::desc());
}

Kyro::ErrorStatus KyDbEntity::setColor(const KyCmColor& color) {
    return color.isNone() ? Kyro::eInvalidInput : setMember(m_color, color);
}

Kyro::ErrorStatus KyDbEntity::setLinetype(KyDbObjectId linetypeId) {
    return setReference(m_linetype, linetypeId, KyDbLinetypeTableRecord::desc());
}

Kyro::ErrorStatus KyDbEntity::setLinetypeScale(double scale) {
    return scale <= 0.0 ? Kyro::eInvalidInput : setMember(m_linetypeScale, scale);
}

Kyro::ErrorStatus KyDbEntity::setLineWeight(KyDb::LineWeight weight) {
    return KyDbRecordReference::isStandardWeight(weight) ? setMember(m_lineWeight, weight)
                                                         : Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyDbEntity::setTransparency(const KyCmTransparency& transparency) {
    return transparency.isInvalid() ? Kyro::eInvalidInput : setMember(m_transparency, transparency);
}

Kyro::ErrorStatus KyDbEntity::setMaterial(KyDbObjectId materialId) {
    return setReference(m_material, materialId, KyDbMaterial::desc());
}

Kyro::ErrorStatus KyDbEntity::setPlotStyleName(const wchar_t* name) {
    if (name == nullptr || name[0] == L'\0') {
        return Kyro::eInvalidInput;
    }
    return setMember(m_plotStyleName, KyString(name));
}

Kyro::ErrorStatus KyDbEntity::setVisibility(bool visible) {
    return setMember(m_visible, visible);
}

Kyro::ErrorStatus KyDbEntity::setDatabaseDefaults(const KyDbDatabase* database) {
    if (database == nullptr) {
        return Kyro::eNullObjectPointer;
    }
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (!database->clayer().isNull()) {
        setLayer(database->clayer());
    }
    if (!database->celtype().isNull()) {
        setLinetype(database->celtype());
    }
    if (!database->cmaterial().isNull()) {
        setMaterial(database->cmaterial());
    }
    setColor(database->cecolor());
    setLineWeight(database->celweight());
    setTransparency(database->cetransparency());
    return Kyro::eOk;
}

void KyDbEntity::subAppended(KyDbDatabase* database) {
    KyDbObject::subAppended(database);
    if (m_layer.isNull()) {
        m_layer = database->clayer();
    }
    if (m_linetype.isNull()) {
        m_linetype = database->celtype();
    }
    if (m_material.isNull()) {
        m_material = database->cmaterial();
    }
}

void KyDbEntity::subSaveState(KyDbStateFiler& filer) const {
    KyDbObject::subSaveState(filer);
    filer.write(m_layer);
    filer.write(m_linetype);
    filer.write(m_material);
    filer.write(m_color);
    filer.write(m_transparency);
    filer.writeString(m_plotStyleName);
    filer.write(m_linetypeScale);
    filer.write(m_lineWeight);
    filer.write(m_visible);
}

Kyro::ErrorStatus KyDbEntity::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbObject::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_layer);
    filer.read(m_linetype);
    filer.read(m_material);
    filer.read(m_color);
    filer.read(m_transparency);
    filer.read(m_plotStyleName);
    filer.read(m_linetypeScale);
    filer.read(m_lineWeight);
    filer.read(m_visible);
    return filer.status();
}
