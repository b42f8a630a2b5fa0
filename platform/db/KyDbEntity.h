// KyDbEntity: what every entity of a block has: a layer, a colour, a
// linetype and its scale, a lineweight, a transparency, a material, a plot
// style name, and whether it is visible. An entity appended without a layer,
// linetype or material takes the database's current ones. Entity kinds derive
// from it.
//
// Setters need a write-open (eWasNotOpenForWrite) and change nothing for an
// equal value. Ids must name a record of the right class (eNotThatKindOfClass)
// of the entity's database (eWrongDatabase) that is not erased (eWasErased).
// The setters by name look the name up (in any case) in the entity's
// database, or in the working database for an entity that is in none
// (eKeyNotFound, eNotInDatabase without a database).
//
// Every entity kind keeps its whole state through saveState and
// restoreState, which undo, copyFrom and clone go through.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyCmColor.h"
#include "db/KyCmTransparency.h"
#include "db/KyDbEnums.h"
#include "db/KyDbObject.h"
#include "ge/KyGePoint3d.h"

class KYPLATFORM_API KyDbEntity : public KyDbObject {
public:
    KYRX_DECLARE_MEMBERS(KyDbEntity);
    KyDbEntity();
    ~KyDbEntity() override;

    // The block the entity stands in; for an attribute, the block of its
    // block reference. Null for an entity in no block.
    KyDbObjectId blockId() const;

    KyDbObjectId layerId() const { return m_layer; }
    Kyro::ErrorStatus setLayer(KyDbObjectId layerId);
    Kyro::ErrorStatus setLayer(const wchar_t* layerName);
    // ByLayer for a new entity.
    const KyCmColor& color() const { return m_color; }
    Kyro::ErrorStatus setColor(const KyCmColor& color);
    // The colour's index (0 ByBlock, 256 ByLayer); setting one drops a true
    // colour. eInvalidInput above 256.
    unsigned short colorIndex() const { return m_color.colorIndex(); }
    Kyro::ErrorStatus setColorIndex(unsigned short index);
    KyDbObjectId linetypeId() const { return m_linetype; }
    Kyro::ErrorStatus setLinetype(KyDbObjectId linetypeId);
    Kyro::ErrorStatus setLinetype(const wchar_t* linetypeName);
    // Positive (eInvalidInput otherwise); 1 for a new entity.
    double linetypeScale() const { return m_linetypeScale; }
    Kyro::ErrorStatus setLinetypeScale(double scale);
    // ByLayer for a new entity.
    KyDb::LineWeight lineWeight() const { return m_lineWeight; }
    Kyro::ErrorStatus setLineWeight(KyDb::LineWeight weight);
    // ByLayer for a new entity; the error value is refused.
    const KyCmTransparency& transparency() const { return m_transparency; }
    Kyro::ErrorStatus setTransparency(const KyCmTransparency& transparency);
    KyDbObjectId materialId() const { return m_material; }
    Kyro::ErrorStatus setMaterial(KyDbObjectId materialId);
    Kyro::ErrorStatus setMaterial(const wchar_t* materialName);
    // "ByLayer" for a new entity.
    const KyString& plotStyleName() const { return m_plotStyleName; }
    Kyro::ErrorStatus setPlotStyleName(const wchar_t* name);
    bool visibility() const { return m_visible; }
    Kyro::ErrorStatus setVisibility(bool visible);

    // Takes the database's current layer, colour, linetype, lineweight,
    // transparency and material.
    Kyro::ErrorStatus setDatabaseDefaults(const KyDbDatabase* database);

protected:
    // A reference an entity kind keeps (a text style, a block): the checks of
    // the entity's own references, then the member is set.
    Kyro::ErrorStatus setReference(KyDbObjectId& member, KyDbObjectId id,
                                   const KyRxClass* recordClass);
    // The same by name, looked up in the table or dictionary `container`.
    Kyro::ErrorStatus setReference(KyDbObjectId& member, const wchar_t* name,
                                   KyDbObjectId (KyDbDatabase::*container)() const,
                                   const KyRxClass* recordClass);

    // Sets point `index` of a list of the entity's points: eInvalidIndex out
    // of range.
    Kyro::ErrorStatus setPointIn(KyArray<KyGePoint3d>& points, int index, const KyGePoint3d& point);

    void subAppended(KyDbDatabase* database) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyDbObjectId m_layer;
    KyDbObjectId m_linetype;
    KyDbObjectId m_material;
    KyCmColor m_color;
    KyCmTransparency m_transparency;
    KyString m_plotStyleName;
    double m_linetypeScale = 1.0;
    KyDb::LineWeight m_lineWeight = KyDb::kLnWtByLayer;
    bool m_visible = true;
};
