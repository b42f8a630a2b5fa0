#include "db/KyDbLayerTableRecord.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbRecordReference.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbStateFiler.h"
#include "db/KyDbSymbolTable.h"

KYDB_DEFINE_MEMBERS(KyDbLayerTableRecord, KyDbSymbolTableRecord)

KyDbLayerTableRecord::KyDbLayerTableRecord()
    : m_transparency(255), m_plotStyleName(KyDbStandardContent::kNormalPlotStyle) {
    m_color.setColorIndex(KyCmColor::kACIWhite);
}

KyDbLayerTableRecord::~KyDbLayerTableRecord() = default;

bool KyDbLayerTableRecord::isLayerZero() const {
    return name().compare(KyDbStandardContent::kLayerZero) == 0;
}

Kyro::ErrorStatus KyDbLayerTableRecord::setFlag(bool& flag, bool value) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (flag != value) {
        assertWriteEnabled();
        flag = value;
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbLayerTableRecord::setColor(const KyCmColor& color) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (!color.isByACI() && !color.isByColor()) {
        return Kyro::eInvalidInput;
    }
    if (color != m_color) {
        assertWriteEnabled();
        m_color = color;
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbLayerTableRecord::setIsOff(bool off) {
    return setFlag(m_off, off);
}

Kyro::ErrorStatus KyDbLayerTableRecord::setIsFrozen(bool frozen) {
    return setFlag(m_frozen, frozen);
}

Kyro::ErrorStatus KyDbLayerTableRecord::setIsLocked(bool locked) {
    return setFlag(m_locked, locked);
}

Kyro::ErrorStatus KyDbLayerTableRecord::setIsPlottable(bool plottable) {
    return setFlag(m_plottable, plottable);
}

Kyro::ErrorStatus KyDbLayerTableRecord::setIsFrozenInNewViewports(bool frozen) {
    return setFlag(m_frozenInNewViewports, frozen);
}

Kyro::ErrorStatus KyDbLayerTableRecord::setLinetypeObjectId(KyDbObjectId linetypeId) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (const Kyro::ErrorStatus status =
            KyDbRecordReference::check(this, linetypeId, KyDbLinetypeTableRecord::desc());
        status != Kyro::eOk) {
        return status;
    }
    if (linetypeId != m_linetype) {
        assertWriteEnabled();
        m_linetype = linetypeId;
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbLayerTableRecord::setLineWeight(KyDb::LineWeight weight) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (!KyDbRecordReference::isStandardWeight(weight) || weight == KyDb::kLnWtByLayer ||
        weight == KyDb::kLnWtByBlock) {
        return Kyro::eInvalidInput;
    }
    if (weight != m_lineWeight) {
        assertWriteEnabled();
        m_lineWeight = weight;
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbLayerTableRecord::setTransparency(const KyCmTransparency& transparency) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (!transparency.isByAlpha()) {
        return Kyro::eInvalidInput;
    }
    if (transparency != m_transparency) {
        assertWriteEnabled();
        m_transparency = transparency;
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbLayerTableRecord::setPlotStyleName(const wchar_t* name) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (name == nullptr || name[0] == L'\0') {
        return Kyro::eInvalidInput;
    }
    if (m_plotStyleName.compare(name) != 0) {
        assertWriteEnabled();
        m_plotStyleName = name;
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbLayerTableRecord::setDescription(const wchar_t* description) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (m_description.compare(description) != 0) {
        assertWriteEnabled();
        m_description = description;
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbLayerTableRecord::subCheckRename(const wchar_t* newName) const {
    if (isLayerZero()) {
        return Kyro::eCannotBeRenamed;
    }
    return KyDbSymbolTableRecord::subCheckRename(newName);
}

Kyro::ErrorStatus KyDbLayerTableRecord::subErase(bool erasing) {
    if (erasing && isLayerZero()) {
        return Kyro::eCannotBeErasedByCaller;
    }
    return KyDbSymbolTableRecord::subErase(erasing);
}

void KyDbLayerTableRecord::subAppended(KyDbDatabase* database) {
    KyDbSymbolTableRecord::subAppended(database);
    if (m_linetype.isNull()) {
        m_linetype = KyDbRecordReference::recordNamed(database, database->linetypeTableId(),
                                                      KyDbStandardContent::kContinuous);
    }
}

void KyDbLayerTableRecord::subSaveState(KyDbStateFiler& filer) const {
    KyDbSymbolTableRecord::subSaveState(filer);
    filer.write(m_color);
    filer.write(m_linetype);
    filer.write(m_transparency);
    filer.writeString(m_plotStyleName);
    filer.writeString(m_description);
    filer.write(m_lineWeight);
    filer.write(m_off);
    filer.write(m_frozen);
    filer.write(m_locked);
    filer.write(m_plottable);
    filer.write(m_frozenInNewViewports);
}

Kyro::ErrorStatus KyDbLayerTableRecord::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbSymbolTableRecord::subRestoreState(filer);
        status != Kyro::eOk) {
        return status;
    }
    filer.read(m_color);
    filer.read(m_linetype);
    filer.read(m_transparency);
    filer.read(m_plotStyleName);
    filer.read(m_description);
    filer.read(m_lineWeight);
    filer.read(m_off);
    filer.read(m_frozen);
    filer.read(m_locked);
    filer.read(m_plottable);
    filer.read(m_frozenInNewViewports);
    return filer.status();
}
