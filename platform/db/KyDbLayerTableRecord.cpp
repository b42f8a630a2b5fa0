#include "db/KyDbLayerTableRecord.h"

#include <algorithm>

#include "db/KyDbClassSupport.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbRecordReference.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbStateFiler.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbViewport.h"

namespace {

using Layer = KyDbLayerTableRecord;

const KyDbPropertyRow kLayerRows[] = {
    {L"Color",
     kydbiAccess<kydbiGetter<Layer, const KyCmColor&>(&Layer::color),
                 kydbiSetter<Layer, const KyCmColor&>(&Layer::setColor)>(),
     KyDbCategory::kGeneral, 1},
    {L"LinetypeObjectId",
     kydbiAccess<kydbiGetter<Layer, KyDbObjectId>(&Layer::linetypeObjectId),
                 kydbiSetter<Layer, KyDbObjectId>(&Layer::setLinetypeObjectId)>(),
     KyDbCategory::kGeneral, 2, L"/LinetypeTableId/Items"},
    {L"LineWeight",
     kydbiAccess<kydbiGetter<Layer, KyDb::LineWeight>(&Layer::lineWeight),
                 kydbiSetter<Layer, KyDb::LineWeight>(&Layer::setLineWeight)>(),
     KyDbCategory::kGeneral, 3},
    {L"Transparency",
     kydbiAccess<kydbiGetter<Layer, const KyCmTransparency&>(&Layer::transparency),
                 kydbiSetter<Layer, const KyCmTransparency&>(&Layer::setTransparency)>(),
     KyDbCategory::kGeneral, 4},
    {L"PlotStyleName",
     kydbiAccess<kydbiGetter<Layer, const KyString&>(&Layer::plotStyleName),
                 kydbiSetter<Layer, const wchar_t*>(&Layer::setPlotStyleName)>(),
     KyDbCategory::kGeneral, 5, L"/PlotStyleNameDictionaryId/Items"},
    {L"IsOff", kydbiAccess<&Layer::isOff, &Layer::setIsOff>(), KyDbCategory::kGeneral, 6},
    {L"IsFrozen", kydbiAccess<&Layer::isFrozen, &Layer::setIsFrozen>(), KyDbCategory::kGeneral, 7},
    {L"IsLocked", kydbiAccess<&Layer::isLocked, &Layer::setIsLocked>(), KyDbCategory::kGeneral, 8},
    {L"IsPlottable", kydbiAccess<&Layer::isPlottable, &Layer::setIsPlottable>(),
     KyDbCategory::kGeneral, 9},
    {L"IsFrozenInNewViewports",
     kydbiAccess<&Layer::isFrozenInNewViewports, &Layer::setIsFrozenInNewViewports>(),
     KyDbCategory::kGeneral, 10},
    {L"Description", kydbiAccess<&Layer::description, &Layer::setDescription>(),
     KyDbCategory::kGeneral, 11},
    {L"HasXrefOverrides", kydbiAccess<&Layer::hasXrefOverrides>(), KyDbCategory::kGeneral, 12},
};

// The properties of a layer that the host drawing can override on a layer of
// an external reference: the writable ones above.
const wchar_t* const kXrefOverridable[] = {
    L"Color",       L"LinetypeObjectId", L"LineWeight", L"Transparency", L"PlotStyleName",
    L"IsOff",       L"IsFrozen",         L"IsLocked",   L"IsPlottable",  L"IsFrozenInNewViewports",
    L"Description",
};

bool isXrefOverridable(const KyString& name) {
    for (const wchar_t* overridable : kXrefOverridable) {
        if (name.compare(overridable) == 0) {
            return true;
        }
    }
    return false;
}

bool isLayerColor(const KyCmColor& color) {
    return color.isByACI() || color.isByColor();
}

bool isLayerWeight(KyDb::LineWeight weight) {
    return KyDbRecordReference::isStandardWeight(weight) && weight != KyDb::kLnWtByLayer &&
           weight != KyDb::kLnWtByBlock;
}

}  // namespace

KYDB_DEFINE_CLASS(KyDbLayerTableRecord, KyDbSymbolTableRecord, kLayerRows)

KyDbLayerTableRecord::KyDbLayerTableRecord()
    : m_transparency(255), m_plotStyleName(KyDbStandardContent::kNormalPlotStyle) {
    m_color.setColorIndex(KyCmColor::kACIWhite);
}

KyDbLayerTableRecord::~KyDbLayerTableRecord() = default;

bool KyDbLayerTableRecord::isLayerZero() const {
    return name().compare(KyDbStandardContent::kLayerZero) == 0;
}

Kyro::ErrorStatus KyDbLayerTableRecord::setFlag(bool& flag, bool value,
                                                const wchar_t* propertyName) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (flag != value) {
        assertWriteEnabled();
        flag = value;
        noteXrefOverride(propertyName);
    }
    return Kyro::eOk;
}

void KyDbLayerTableRecord::noteXrefOverride(const wchar_t* propertyName) {
    if (!hasXrefOverride(propertyName) && isDependent()) {
        m_xrefOverrides.append(KyString(propertyName));
    }
}

Kyro::ErrorStatus KyDbLayerTableRecord::setColor(const KyCmColor& color) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (!isLayerColor(color)) {
        return Kyro::eInvalidInput;
    }
    if (color != m_color) {
        assertWriteEnabled();
        m_color = color;
        noteXrefOverride(L"Color");
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbLayerTableRecord::setIsOff(bool off) {
    return setFlag(m_off, off, L"IsOff");
}

Kyro::ErrorStatus KyDbLayerTableRecord::setIsFrozen(bool frozen) {
    return setFlag(m_frozen, frozen, L"IsFrozen");
}

Kyro::ErrorStatus KyDbLayerTableRecord::setIsLocked(bool locked) {
    return setFlag(m_locked, locked, L"IsLocked");
}

Kyro::ErrorStatus KyDbLayerTableRecord::setIsPlottable(bool plottable) {
    return setFlag(m_plottable, plottable, L"IsPlottable");
}

Kyro::ErrorStatus KyDbLayerTableRecord::setIsFrozenInNewViewports(bool frozen) {
    return setFlag(m_frozenInNewViewports, frozen, L"IsFrozenInNewViewports");
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
        noteXrefOverride(L"LinetypeObjectId");
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbLayerTableRecord::setLineWeight(KyDb::LineWeight weight) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (!isLayerWeight(weight)) {
        return Kyro::eInvalidInput;
    }
    if (weight != m_lineWeight) {
        assertWriteEnabled();
        m_lineWeight = weight;
        noteXrefOverride(L"LineWeight");
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
        noteXrefOverride(L"Transparency");
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
        noteXrefOverride(L"PlotStyleName");
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
        noteXrefOverride(L"Description");
    }
    return Kyro::eOk;
}

// ---- Viewport overrides

Kyro::ErrorStatus KyDbLayerTableRecord::checkOverrideWrite(KyDbObjectId viewportId) const {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (viewportId.isNull()) {
        return Kyro::eNullObjectId;
    }
    if (!KyRxClass::isDerivedFrom(viewportId.objectClass(), KyDbViewport::desc())) {
        return Kyro::eNotThatKindOfClass;
    }
    if (isDatabaseResident() && viewportId.database() != database()) {
        return Kyro::eWrongDatabase;
    }
    return Kyro::eOk;
}

const KyDbLayerTableRecord::ViewportOverride* KyDbLayerTableRecord::findOverride(
    KyDbObjectId viewportId, unsigned bit) const {
    for (const ViewportOverride& entry : m_overrides) {
        if (entry.viewport == viewportId) {
            return (entry.mask & bit) != 0 ? &entry : nullptr;
        }
    }
    return nullptr;
}

template <typename Differs, typename Assign>
Kyro::ErrorStatus KyDbLayerTableRecord::setOverride(KyDbObjectId viewportId, unsigned bit,
                                                    Differs differs, Assign assign) {
    auto it = std::find_if(
        m_overrides.begin(), m_overrides.end(),
        [viewportId](const ViewportOverride& entry) { return entry.viewport == viewportId; });
    if (it != m_overrides.end() && (it->mask & bit) != 0 && !differs(*it)) {
        return Kyro::eOk;
    }
    assertWriteEnabled();
    if (it == m_overrides.end()) {
        m_overrides.emplace_back();
        it = m_overrides.end() - 1;
        it->viewport = viewportId;
    }
    it->mask |= bit;
    assign(*it);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbLayerTableRecord::removeOverride(KyDbObjectId viewportId, unsigned bits) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    auto it = std::find_if(
        m_overrides.begin(), m_overrides.end(),
        [viewportId](const ViewportOverride& entry) { return entry.viewport == viewportId; });
    if (it == m_overrides.end() || (it->mask & bits) == 0) {
        return Kyro::eOk;
    }
    assertWriteEnabled();
    it->mask &= ~bits;
    if (it->mask == 0) {
        m_overrides.erase(it);
    }
    return Kyro::eOk;
}

KyCmColor KyDbLayerTableRecord::color(KyDbObjectId viewportId, bool& overridden) const {
    const ViewportOverride* entry = findOverride(viewportId, ViewportOverride::kColor);
    overridden = entry != nullptr;
    return entry != nullptr ? entry->color : m_color;
}

Kyro::ErrorStatus KyDbLayerTableRecord::setColor(const KyCmColor& color, KyDbObjectId viewportId) {
    if (const Kyro::ErrorStatus status = checkOverrideWrite(viewportId); status != Kyro::eOk) {
        return status;
    }
    if (!isLayerColor(color)) {
        return Kyro::eInvalidInput;
    }
    return setOverride(
        viewportId, ViewportOverride::kColor,
        [&color](const ViewportOverride& entry) { return entry.color != color; },
        [&color](ViewportOverride& entry) { entry.color = color; });
}

KyDbObjectId KyDbLayerTableRecord::linetypeObjectId(KyDbObjectId viewportId,
                                                    bool& overridden) const {
    const ViewportOverride* entry = findOverride(viewportId, ViewportOverride::kLinetype);
    overridden = entry != nullptr;
    return entry != nullptr ? entry->linetype : m_linetype;
}

Kyro::ErrorStatus KyDbLayerTableRecord::setLinetypeObjectId(KyDbObjectId linetypeId,
                                                            KyDbObjectId viewportId) {
    if (const Kyro::ErrorStatus status = checkOverrideWrite(viewportId); status != Kyro::eOk) {
        return status;
    }
    if (const Kyro::ErrorStatus status =
            KyDbRecordReference::check(this, linetypeId, KyDbLinetypeTableRecord::desc());
        status != Kyro::eOk) {
        return status;
    }
    return setOverride(
        viewportId, ViewportOverride::kLinetype,
        [linetypeId](const ViewportOverride& entry) { return entry.linetype != linetypeId; },
        [linetypeId](ViewportOverride& entry) { entry.linetype = linetypeId; });
}

KyDb::LineWeight KyDbLayerTableRecord::lineWeight(KyDbObjectId viewportId, bool& overridden) const {
    const ViewportOverride* entry = findOverride(viewportId, ViewportOverride::kLineWeight);
    overridden = entry != nullptr;
    return entry != nullptr ? entry->lineWeight : m_lineWeight;
}

Kyro::ErrorStatus KyDbLayerTableRecord::setLineWeight(KyDb::LineWeight weight,
                                                      KyDbObjectId viewportId) {
    if (const Kyro::ErrorStatus status = checkOverrideWrite(viewportId); status != Kyro::eOk) {
        return status;
    }
    if (!isLayerWeight(weight)) {
        return Kyro::eInvalidInput;
    }
    return setOverride(
        viewportId, ViewportOverride::kLineWeight,
        [weight](const ViewportOverride& entry) { return entry.lineWeight != weight; },
        [weight](ViewportOverride& entry) { entry.lineWeight = weight; });
}

KyCmTransparency KyDbLayerTableRecord::transparency(KyDbObjectId viewportId,
                                                    bool& overridden) const {
    const ViewportOverride* entry = findOverride(viewportId, ViewportOverride::kTransparency);
    overridden = entry != nullptr;
    return entry != nullptr ? entry->transparency : m_transparency;
}

Kyro::ErrorStatus KyDbLayerTableRecord::setTransparency(const KyCmTransparency& transparency,
                                                        KyDbObjectId viewportId) {
    if (const Kyro::ErrorStatus status = checkOverrideWrite(viewportId); status != Kyro::eOk) {
        return status;
    }
    if (!transparency.isByAlpha()) {
        return Kyro::eInvalidInput;
    }
    return setOverride(
        viewportId, ViewportOverride::kTransparency,
        [&transparency](const ViewportOverride& entry) {
            return entry.transparency != transparency;
        },
        [&transparency](ViewportOverride& entry) { entry.transparency = transparency; });
}

Kyro::ErrorStatus KyDbLayerTableRecord::plotStyleName(KyDbObjectId viewportId, KyString& name,
                                                      bool& overridden) const {
    const ViewportOverride* entry = findOverride(viewportId, ViewportOverride::kPlotStyle);
    overridden = entry != nullptr;
    name = entry != nullptr ? entry->plotStyle : m_plotStyleName;
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbLayerTableRecord::setPlotStyleName(const wchar_t* name,
                                                         KyDbObjectId viewportId) {
    if (const Kyro::ErrorStatus status = checkOverrideWrite(viewportId); status != Kyro::eOk) {
        return status;
    }
    if (name == nullptr || name[0] == L'\0') {
        return Kyro::eInvalidInput;
    }
    return setOverride(
        viewportId, ViewportOverride::kPlotStyle,
        [name](const ViewportOverride& entry) { return entry.plotStyle.compare(name) != 0; },
        [name](ViewportOverride& entry) { entry.plotStyle = name; });
}

bool KyDbLayerTableRecord::hasOverrides(KyDbObjectId viewportId) const {
    return std::any_of(m_overrides.begin(), m_overrides.end(),
                       [viewportId](const ViewportOverride& entry) {
                           return entry.viewport == viewportId && entry.mask != 0;
                       });
}

void KyDbLayerTableRecord::getOverriddenViewports(KyArray<KyDbObjectId>& viewportIds) const {
    viewportIds.setLogicalLength(0);
    for (const ViewportOverride& entry : m_overrides) {
        viewportIds.append(entry.viewport);
    }
}

Kyro::ErrorStatus KyDbLayerTableRecord::removeColorOverride(KyDbObjectId viewportId) {
    return removeOverride(viewportId, ViewportOverride::kColor);
}

Kyro::ErrorStatus KyDbLayerTableRecord::removeLinetypeOverride(KyDbObjectId viewportId) {
    return removeOverride(viewportId, ViewportOverride::kLinetype);
}

Kyro::ErrorStatus KyDbLayerTableRecord::removeLineWeightOverride(KyDbObjectId viewportId) {
    return removeOverride(viewportId, ViewportOverride::kLineWeight);
}

Kyro::ErrorStatus KyDbLayerTableRecord::removeTransparencyOverride(KyDbObjectId viewportId) {
    return removeOverride(viewportId, ViewportOverride::kTransparency);
}

Kyro::ErrorStatus KyDbLayerTableRecord::removePlotStyleOverride(KyDbObjectId viewportId) {
    return removeOverride(viewportId, ViewportOverride::kPlotStyle);
}

Kyro::ErrorStatus KyDbLayerTableRecord::removeViewportOverrides(KyDbObjectId viewportId) {
    return removeOverride(viewportId, ~0u);
}

Kyro::ErrorStatus KyDbLayerTableRecord::removeAllOverrides() {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (!m_overrides.empty()) {
        assertWriteEnabled();
        m_overrides.clear();
    }
    return Kyro::eOk;
}

bool KyDbLayerTableRecord::hasXrefOverride(const wchar_t* propertyName) const {
    if (propertyName == nullptr) {
        return false;
    }
    for (const KyString& name : m_xrefOverrides) {
        if (name.compareNoCase(propertyName) == 0) {
            return true;
        }
    }
    return false;
}

Kyro::ErrorStatus KyDbLayerTableRecord::setXrefOverrides(const KyStringArray& propertyNames) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (!propertyNames.isEmpty() && !isDependent()) {
        return Kyro::eInvalidInput;
    }
    for (int i = 0; i < propertyNames.length(); ++i) {
        if (!isXrefOverridable(propertyNames[i])) {
            return Kyro::eInvalidInput;
        }
        for (int j = 0; j < i; ++j) {
            if (propertyNames[j].compare(propertyNames[i]) == 0) {
                return Kyro::eInvalidInput;
            }
        }
    }
    return setMember(m_xrefOverrides, propertyNames);
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
    filer.write(static_cast<int>(m_overrides.size()));
    for (const ViewportOverride& entry : m_overrides) {
        filer.write(entry.viewport);
        filer.write(entry.mask);
        filer.write(entry.color);
        filer.write(entry.linetype);
        filer.write(entry.lineWeight);
        filer.write(entry.transparency);
        filer.writeString(entry.plotStyle);
    }
    filer.write(m_xrefOverrides);
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
    int count = 0;
    filer.read(count);
    m_overrides.clear();
    for (int i = 0; i < count && filer.status() == Kyro::eOk; ++i) {
        ViewportOverride entry;
        filer.read(entry.viewport);
        filer.read(entry.mask);
        filer.read(entry.color);
        filer.read(entry.linetype);
        filer.read(entry.lineWeight);
        filer.read(entry.transparency);
        filer.read(entry.plotStyle);
        m_overrides.push_back(entry);
    }
    filer.read(m_xrefOverrides);
    return filer.status();
}
