// KyDbLayerTableRecord: a layer. Layer "0" can't be renamed or erased, nor
// can the current layer be erased. A layer's colour is an index or a true
// colour (never ByLayer or ByBlock), its transparency an alpha.
//
// Every setter needs a write-open (eWasNotOpenForWrite), answers eOk without
// a change for the value the layer has, and eInvalidInput for a value a layer
// can't take.
//
// Viewport overrides. In a paper space viewport a layer can show another
// colour, linetype, lineweight, transparency or plot style than its own. The
// forms with a viewport id read and write them; the id is that of the
// viewport entity (KyDbViewport) of the same database (eNullObjectId,
// eNotThatKindOfClass, eWrongDatabase). A read answers the override and
// `overridden` true, or the layer's own value and false. An override takes
// the values the layer's own setter takes, and stays until it is removed,
// also when it equals the layer's own value. Overrides are part of the
// layer's state: changing them is a change of the layer, with its undo and
// its notifications.
//
// External reference overrides. A layer of an external reference
// (isDependent: "XREF|name") can have properties that the host drawing
// changed; the layer keeps the names of those properties (the reflected
// names: "Color", "IsOff" ...) in the order they were first changed. Every
// setter above that changes the value of such a layer in its database notes
// its property, whoever calls it; a layer that is not in a database yet (one
// being read or brought in from the reference) notes nothing, and a layer of
// the drawing itself never has any. The names are part of the layer's state,
// so undo takes a change and its note back together. The reflected
// "HasXrefOverrides" tells whether there are any
// (KyXRefLayerPropertyOverride reads them by id).
#pragma once

#include <vector>

#include "KyPlatformExport.h"
#include "db/KyCmColor.h"
#include "db/KyCmTransparency.h"
#include "db/KyDbEnums.h"
#include "db/KyDbSymbolTableRecord.h"
#include "rx/KyRxValue.h"

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

    // ---- Viewport overrides

    KyCmColor color(KyDbObjectId viewportId, bool& overridden) const;
    Kyro::ErrorStatus setColor(const KyCmColor& color, KyDbObjectId viewportId);
    KyDbObjectId linetypeObjectId(KyDbObjectId viewportId, bool& overridden) const;
    Kyro::ErrorStatus setLinetypeObjectId(KyDbObjectId linetypeId, KyDbObjectId viewportId);
    KyDb::LineWeight lineWeight(KyDbObjectId viewportId, bool& overridden) const;
    Kyro::ErrorStatus setLineWeight(KyDb::LineWeight weight, KyDbObjectId viewportId);
    KyCmTransparency transparency(KyDbObjectId viewportId, bool& overridden) const;
    Kyro::ErrorStatus setTransparency(const KyCmTransparency& transparency,
                                      KyDbObjectId viewportId);
    // eOk; the name and the flag as the other reads give them.
    Kyro::ErrorStatus plotStyleName(KyDbObjectId viewportId, KyString& name,
                                    bool& overridden) const;
    Kyro::ErrorStatus setPlotStyleName(const wchar_t* name, KyDbObjectId viewportId);

    // True when the layer has any override in the viewport.
    bool hasOverrides(KyDbObjectId viewportId) const;
    // True when the layer has an override in any viewport.
    bool hasViewportOverrides() const { return !m_overrides.empty(); }
    // The viewports in which the layer has overrides, in the order they got
    // their first one.
    void getOverriddenViewports(KyArray<KyDbObjectId>& viewportIds) const;

    // Removing an override that is not there changes nothing and answers eOk.
    Kyro::ErrorStatus removeColorOverride(KyDbObjectId viewportId);
    Kyro::ErrorStatus removeLinetypeOverride(KyDbObjectId viewportId);
    Kyro::ErrorStatus removeLineWeightOverride(KyDbObjectId viewportId);
    Kyro::ErrorStatus removeTransparencyOverride(KyDbObjectId viewportId);
    Kyro::ErrorStatus removePlotStyleOverride(KyDbObjectId viewportId);
    // Every override of the layer in the viewport.
    Kyro::ErrorStatus removeViewportOverrides(KyDbObjectId viewportId);
    // Every override of the layer in every viewport.
    Kyro::ErrorStatus removeAllOverrides();

    // ---- External reference overrides

    // The names of the properties overridden in the host drawing.
    const KyStringArray& xrefOverrides() const { return m_xrefOverrides; }
    bool hasXrefOverrides() const { return !m_xrefOverrides.isEmpty(); }
    // Without regard to case; false for null.
    bool hasXrefOverride(const wchar_t* propertyName) const;
    // Replaces the names (a reader's call). eInvalidInput for a name that is
    // no writable property of a layer, a name given twice, or any name on a
    // layer that is not dependent.
    Kyro::ErrorStatus setXrefOverrides(const KyStringArray& propertyNames);

protected:
    Kyro::ErrorStatus subCheckRename(const wchar_t* newName) const override;
    Kyro::ErrorStatus subErase(bool erasing) override;
    void subAppended(KyDbDatabase* database) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    // The overrides of one viewport; `mask` tells which members hold one.
    struct ViewportOverride {
        enum Bit : unsigned {
            kColor = 0x1,
            kLinetype = 0x2,
            kLineWeight = 0x4,
            kTransparency = 0x8,
            kPlotStyle = 0x10,
        };
        KyDbObjectId viewport;
        unsigned mask = 0;
        KyCmColor color;
        KyDbObjectId linetype;
        KyDb::LineWeight lineWeight = KyDb::kLnWtByLwDefault;
        KyCmTransparency transparency;
        KyString plotStyle;
    };

    bool isLayerZero() const;
    Kyro::ErrorStatus setFlag(bool& flag, bool value, const wchar_t* propertyName);
    // After a change of the property: notes it as overridden on a layer of an
    // external reference.
    void noteXrefOverride(const wchar_t* propertyName);
    // The checks of a write of an override: the record is open for write and
    // the id is that of a viewport of its database.
    Kyro::ErrorStatus checkOverrideWrite(KyDbObjectId viewportId) const;
    // The override of the viewport when it holds `bit`, null otherwise.
    const ViewportOverride* findOverride(KyDbObjectId viewportId, unsigned bit) const;
    // Sets one override: `differs` tells whether the value differs from the
    // one held, `assign` stores it.
    template <typename Differs, typename Assign>
    Kyro::ErrorStatus setOverride(KyDbObjectId viewportId, unsigned bit, Differs differs,
                                  Assign assign);
    Kyro::ErrorStatus removeOverride(KyDbObjectId viewportId, unsigned bits);

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
    std::vector<ViewportOverride> m_overrides;
    KyStringArray m_xrefOverrides;
};
