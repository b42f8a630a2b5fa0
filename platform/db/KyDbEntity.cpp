#include "db/KyDbEntity.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbMaterial.h"
#include "db/KyDbRecordReference.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbStateFiler.h"

KYDB_DEFINE_MEMBERS(KyDbEntity, KyDbObject)

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
