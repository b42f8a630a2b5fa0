// KyDbLayerTableRecord: a layer. Layer "0" can't be renamed or erased, nor
// can the current layer be erased. A layer's colour is an index or a true
// colour (never ByLayer or ByBlock), its transparency an alpha.
//
// Every setter needs a write-open (eWasNotOpenForWrite), answers eOk without
// a change for the value the layer has, and eInvalidInput for a value a layer
// can't take.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyCmColor.h"
#include "db/KyCmTransparency.h"
#include "db/KyDbEnums.h"
#include "db/KyDbSymbolTableRecord.h"

class KYPLATFORM_API KyDbLayerTableRecord : public KyDbSymbolTableRecord {
public:
    KYRX_DECLARE_MEMBERS(KyDbLayerTableRecord);
    KyDbLayerTableRecord();
    ~KyDbLayerTableRecord() override;

    // Colour 7 for a new layer.
    const KyCmColor& color() const { return m_color; }
    Kyro::ErrorStatus setColor(const KyCmColor& color);

    bool isOff() const { return m_off; }
    Kyro::ErrorStatus setIsOff(bool off);
    bool isFrozen() const { return m_frozen; }
    Kyro::ErrorStatus setIsFrozen(bool frozen);
    bool isLocked() const { return m_locked; }
    Kyro::ErrorStatus setIsLocked(bool locked);
    bool isPlottable() const { return m_plottable; }
    Kyro::ErrorStatus setIsPlottable(bool plottable);
    // Frozen in viewports made from now on.
    bool isFrozenInNewViewports() const { return m_frozenInNewViewports; }
    Kyro::ErrorStatus setIsFrozenInNewViewports(bool frozen);

    // A linetype record of the same database; a layer added without one gets
    // Continuous. eNotThatKindOfClass, eWrongDatabase, eWasErased.
    KyDbObjectId linetypeObjectId() const { return m_linetype; }
    Kyro::ErrorStatus setLinetypeObjectId(KyDbObjectId linetypeId);

    // A standard weight or Default (-3); not ByLayer or ByBlock.
    KyDb::LineWeight lineWeight() const { return m_lineWeight; }
    Kyro::ErrorStatus setLineWeight(KyDb::LineWeight weight);

    // An alpha; opaque (255) for a new layer.
    const KyCmTransparency& transparency() const { return m_transparency; }
    Kyro::ErrorStatus setTransparency(const KyCmTransparency& transparency);

    // The named plot style; "Normal" for a new layer.
    const KyString& plotStyleName() const { return m_plotStyleName; }
    Kyro::ErrorStatus setPlotStyleName(const wchar_t* name);

    const KyString& description() const { return m_description; }
    Kyro::ErrorStatus setDescription(const wchar_t* description);

protected:
    Kyro::ErrorStatus subCheckRename(const wchar_t* newName) const override;
    Kyro::ErrorStatus subErase(bool erasing) override;
    void subAppended(KyDbDatabase* database) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    bool isLayerZero() const;
    Kyro::ErrorStatus setFlag(bool& flag, bool value);

    KyCmColor m_color;
    KyDbObjectId m_linetype;
    KyCmTransparency m_transparency;
    KyString m_plotStyleName;
    KyString m_description;
    KyDb::LineWeight m_lineWeight = KyDb::kLnWtByLwDefault;
    bool m_off = false;
    bool m_frozen = false;
    bool m_locked = false;
    bool m_plottable = true;
    bool m_frozenInNewViewports = false;
};
