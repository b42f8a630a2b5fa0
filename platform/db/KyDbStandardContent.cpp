#include "db/KyDbStandardContent.h"

#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDetailViewStyle.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbDictionaryWithDefault.h"
#include "db/KyDbDimStyleTableRecord.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbLayout.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbMLeaderStyle.h"
#include "db/KyDbMaterial.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbPlaceHolder.h"
#include "db/KyDbRecordReference.h"
#include "db/KyDbScale.h"
#include "db/KyDbSectionViewStyle.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbTableStyle.h"
#include "db/KyDbTextStyleTableRecord.h"
#include "db/KyDbVisualStyle.h"

const wchar_t* const KyDbStandardContent::kLayerZero = L"0";
const wchar_t* const KyDbStandardContent::kByBlock = L"ByBlock";
const wchar_t* const KyDbStandardContent::kByLayer = L"ByLayer";
const wchar_t* const KyDbStandardContent::kContinuous = L"Continuous";
const wchar_t* const KyDbStandardContent::kStandard = L"Standard";
const wchar_t* const KyDbStandardContent::kGlobal = L"Global";
const wchar_t* const KyDbStandardContent::kModelSpaceName = L"*Model_Space";
const wchar_t* const KyDbStandardContent::kPaperSpaceName = L"*Paper_Space";
const wchar_t* const KyDbStandardContent::kModelLayoutName = L"Model";
const wchar_t* const KyDbStandardContent::kFirstLayoutName = L"Layout1";
const wchar_t* const KyDbStandardContent::kNormalPlotStyle = L"Normal";

const wchar_t* const KyDbStandardContent::kLayoutKey = L"KYRO_LAYOUT";
const wchar_t* const KyDbStandardContent::kPlotSettingsKey = L"KYRO_PLOTSETTINGS";
const wchar_t* const KyDbStandardContent::kMaterialKey = L"KYRO_MATERIAL";
const wchar_t* const KyDbStandardContent::kVisualStyleKey = L"KYRO_VISUALSTYLE";
const wchar_t* const KyDbStandardContent::kMLeaderStyleKey = L"KYRO_MLEADERSTYLE";
const wchar_t* const KyDbStandardContent::kTableStyleKey = L"KYRO_TABLESTYLE";
const wchar_t* const KyDbStandardContent::kSectionViewStyleKey = L"KYRO_SECTIONVIEWSTYLE";
const wchar_t* const KyDbStandardContent::kDetailViewStyleKey = L"KYRO_DETAILVIEWSTYLE";
const wchar_t* const KyDbStandardContent::kScaleListKey = L"KYRO_SCALELIST";
const wchar_t* const KyDbStandardContent::kPlotStyleNameKey = L"KYRO_PLOTSTYLENAME";
const wchar_t* const KyDbStandardContent::kRenderSettingsKey = L"KYRO_RENDER_SETTINGS";
const wchar_t* const KyDbStandardContent::kVariableKey = L"KyDbVariableDictionary";

namespace {

using Std = KyDbStandardContent;

// The standard visual styles: name, kind, internal use only.
struct VisualStyleRow {
    const wchar_t* name;
    int kind;
    bool internal;
};
const VisualStyleRow kVisualStyles[] = {
    {L"2dWireframe", 4, false},
    {L"Basic", 7, true},
    {L"Brighten", 12, true},
    {L"ColorChange", 16, true},
    {L"Conceptual", 9, false},
    {L"Dim", 11, true},
    {L"EdgeColorOff", 22, true},
    {L"Facepattern", 15, true},
    {L"Flat", 0, true},
    {L"FlatWithEdges", 1, true},
    {L"Gouraud", 2, true},
    {L"GouraudWithEdges", 3, true},
    {L"Hidden", 6, false},
    {L"JitterOff", 20, true},
    {L"Linepattern", 14, true},
    {L"Modeling", 10, false},
    {L"OverhangOff", 21, true},
    {L"Realistic", 8, false},
    {L"Shaded", 27, false},
    {L"Shaded with edges", 26, false},
    {L"Shades of Gray", 23, false},
    {L"Sketchy", 24, false},
    {L"Thicken", 13, true},
    {L"Wireframe", 5, false},
    {L"X-Ray", 25, false},
};

// The standard scale list: name, paper units, drawing units. The name is the
// entry's key too.
struct ScaleRow {
    const wchar_t* name;
    double paper;
    double drawing;
};
const ScaleRow kScales[] = {
    {L"1:1", 1, 1},   {L"1:2", 1, 2},     {L"1:4", 1, 4},   {L"1:5", 1, 5},   {L"1:8", 1, 8},
    {L"1:10", 1, 10}, {L"1:16", 1, 16},   {L"1:20", 1, 20}, {L"1:30", 1, 30}, {L"1:40", 1, 40},
    {L"1:50", 1, 50}, {L"1:100", 1, 100}, {L"2:1", 2, 1},   {L"4:1", 4, 1},   {L"8:1", 8, 1},
    {L"10:1", 10, 1}, {L"100:1", 100, 1},
};

// Adds what is missing, and keeps the first failure.
class Builder {
public:
    explicit Builder(KyDbDatabase* database) : m_db(database) {}

    Kyro::ErrorStatus status() const { return m_status; }

    // The record `name` of a table, made by `fill` when the table lacks it.
    template <typename Record, typename Fill>
    KyDbObjectId record(KyDbObjectId tableId, const wchar_t* name, Fill fill) {
        KyDbObjectId id = KyDbRecordReference::recordNamed(m_db, tableId, name);
        if (!id.isNull()) {
            return id;
        }
        KyDbObjectPointer<KyDbSymbolTable> table(tableId, KyDb::kForWrite);
        if (!keep(table.openStatus())) {
            return KyDbObjectId();
        }
        auto* record = new Record();
        record->setName(name);
        fill(record);
        if (!keep(table->add(id, record))) {
            delete record;
            return KyDbObjectId();
        }
        record->close();
        return id;
    }

    // The entry `key` of a dictionary, made by `fill` when the dictionary
    // lacks it.
    template <typename Object, typename Fill>
    KyDbObjectId entry(KyDbObjectId dictionaryId, const wchar_t* key, Fill fill) {
        if (dictionaryId.isNull()) {
            return KyDbObjectId();
        }
        KyDbObjectPointer<KyDbDictionary> dictionary(dictionaryId, KyDb::kForRead);
        if (!keep(dictionary.openStatus())) {
            return KyDbObjectId();
        }
        KyDbObjectId id;
        if (dictionary->getAt(key, id) == Kyro::eOk) {
            return id;
        }
        if (!keep(dictionary->upgradeOpen())) {
            return KyDbObjectId();
        }
        auto* object = new Object();
        fill(object);
        if (!keep(dictionary->setAt(key, object, id))) {
            delete object;
            return KyDbObjectId();
        }
        object->close();
        return id;
    }

    // A dictionary under `key` in the named objects dictionary.
    template <typename Dictionary = KyDbDictionary>
    KyDbObjectId dictionary(const wchar_t* key) {
        return entry<Dictionary>(m_db->namedObjectsDictionaryId(), key, [](Dictionary*) {});
    }

    // Opens `id` for write, runs `change` on it, closes it.
    template <typename Object, typename Change>
    void change(KyDbObjectId id, Change change) {
        if (id.isNull()) {
            return;
        }
        KyDbObjectPointer<Object> object(id, KyDb::kForWrite);
        if (keep(object.openStatus())) {
            keep(change(object.object()));
        }
    }

    // Sets a header variable that is not set yet.
    void header(const wchar_t* name, const KyRxValue& value) {
        KyRxValue current;
        if (m_db->getHeaderVar(name, current) != Kyro::eOk) {
            keep(m_db->setHeaderVar(name, value));
        }
    }
    void headerId(const wchar_t* name, KyDbObjectId id) {
        if (!id.isNull()) {
            header(name, KyRxValue(id));
        }
    }

private:
    bool keep(Kyro::ErrorStatus status) {
        if (m_status == Kyro::eOk) {
            m_status = status;
        }
        return status == Kyro::eOk;
    }

    KyDbDatabase* m_db;
    Kyro::ErrorStatus m_status = Kyro::eOk;
};

void addTables(Builder& build, KyDbDatabase* db, unsigned parts) {
    if ((parts & Std::kLinetypes) != 0) {
        for (const wchar_t* name : {Std::kByBlock, Std::kByLayer, Std::kContinuous}) {
            build.record<KyDbLinetypeTableRecord>(db->linetypeTableId(), name,
                                                  [name](KyDbLinetypeTableRecord* linetype) {
                                                      if (name == Std::kContinuous) {
                                                          linetype->setComments(L"Solid line");
                                                      }
                                                  });
        }
    }
    if ((parts & Std::kLayers) != 0) {
        build.record<KyDbLayerTableRecord>(db->layerTableId(), Std::kLayerZero,
                                           [](KyDbLayerTableRecord*) {});
    }
    if ((parts & Std::kTextStyles) != 0) {
        build.record<KyDbTextStyleTableRecord>(
            db->textStyleTableId(), Std::kStandard,
            [](KyDbTextStyleTableRecord* style) { style->setFileName(L"txt"); });
    }
    if ((parts & Std::kDimStyles) != 0) {
        build.record<KyDbDimStyleTableRecord>(db->dimStyleTableId(), Std::kStandard,
                                              [](KyDbDimStyleTableRecord*) {});
    }
    if ((parts & Std::kBlocks) != 0) {
        for (const wchar_t* name : {Std::kModelSpaceName, Std::kPaperSpaceName}) {
            build.record<KyDbBlockTableRecord>(db->blockTableId(), name,
                                               [](KyDbBlockTableRecord*) {});
        }
    }
}

void addDictionaries(Builder& build, KyDbDatabase* db) {
    build.dictionary(Std::kLayoutKey);
    build.dictionary(Std::kPlotSettingsKey);

    const KyDbObjectId materials = build.dictionary(Std::kMaterialKey);
    for (const wchar_t* name : {Std::kByLayer, Std::kByBlock, Std::kGlobal}) {
        build.entry<KyDbMaterial>(materials, name,
                                  [name](KyDbMaterial* material) { material->setName(name); });
    }

    const KyDbObjectId visualStyles = build.dictionary(Std::kVisualStyleKey);
    for (const VisualStyleRow& row : kVisualStyles) {
        build.entry<KyDbVisualStyle>(visualStyles, row.name, [&row](KyDbVisualStyle* style) {
            style->setName(row.name);
            style->setType(row.kind);
            style->setInternalUseOnly(row.internal);
        });
    }

    const KyDbObjectId textStyle =
        KyDbRecordReference::recordNamed(db, db->textStyleTableId(), Std::kStandard);
    build.entry<KyDbMLeaderStyle>(build.dictionary(Std::kMLeaderStyleKey), Std::kStandard,
                                  [textStyle](KyDbMLeaderStyle* style) {
                                      style->setName(Std::kStandard);
                                      style->setTextStyleId(textStyle);
                                  });
    build.entry<KyDbTableStyle>(build.dictionary(Std::kTableStyleKey), Std::kStandard,
                                [](KyDbTableStyle* style) { style->setName(Std::kStandard); });
    build.entry<KyDbSectionViewStyle>(
        build.dictionary(Std::kSectionViewStyleKey), Std::kStandard,
        [](KyDbSectionViewStyle* style) { style->setName(Std::kStandard); });
    build.entry<KyDbDetailViewStyle>(
        build.dictionary(Std::kDetailViewStyleKey), Std::kStandard,
        [](KyDbDetailViewStyle* style) { style->setName(Std::kStandard); });

    const KyDbObjectId scales = build.dictionary(Std::kScaleListKey);
    for (const ScaleRow& row : kScales) {
        build.entry<KyDbScale>(scales, row.name, [&row](KyDbScale* scale) {
            scale->setScaleName(row.name);
            scale->setPaperUnits(row.paper);
            scale->setDrawingUnits(row.drawing);
        });
    }

    const KyDbObjectId plotStyles =
        build.dictionary<KyDbDictionaryWithDefault>(Std::kPlotStyleNameKey);
    const KyDbObjectId normal =
        build.entry<KyDbPlaceHolder>(plotStyles, Std::kNormalPlotStyle, [](KyDbPlaceHolder*) {});
    build.change<KyDbDictionaryWithDefault>(plotStyles, [normal](KyDbDictionaryWithDefault* names) {
        return names->defaultId().isNull() ? names->setDefaultId(normal) : Kyro::eOk;
    });

    build.dictionary(Std::kRenderSettingsKey);
    build.dictionary(Std::kVariableKey);
}

// Ties a space block to a layout of its own, made when the block has none.
void addLayout(Builder& build, KyDbDatabase* db, const wchar_t* blockName,
               const wchar_t* layoutName, int tabOrder) {
    const KyDbObjectId blockId =
        KyDbRecordReference::recordNamed(db, db->blockTableId(), blockName);
    const KyDbObjectId layouts = db->layoutDictionaryId();
    if (blockId.isNull() || layouts.isNull()) {
        return;
    }
    if (!static_cast<const KyDbBlockTableRecord*>(blockId.stub()->object)->getLayoutId().isNull()) {
        return;
    }
    const KyDbObjectId layoutId =
        build.entry<KyDbLayout>(layouts, layoutName, [&](KyDbLayout* layout) {
            layout->setLayoutName(layoutName);
            layout->setPlotSettingsName(layoutName);
            layout->setTabOrder(tabOrder);
            layout->setBlockTableRecordId(blockId);
        });
    build.change<KyDbBlockTableRecord>(
        blockId, [layoutId](KyDbBlockTableRecord* block) { return block->setLayoutId(layoutId); });
}

void addHeader(Builder& build, KyDbDatabase* db) {
    auto named = [db](KyDbObjectId container, const wchar_t* name) {
        KyDbObjectId id = KyDbRecordReference::recordNamed(db, container, name);
        if (id.isNull() && container.isValid()) {
            if (const auto* dictionary = kyrxCast<KyDbDictionary>(container.stub()->object)) {
                dictionary->getAt(name, id);
            }
        }
        return id;
    };
    build.headerId(L"CLAYER", named(db->layerTableId(), Std::kLayerZero));
    build.headerId(L"CELTYPE", named(db->linetypeTableId(), Std::kByLayer));
    build.headerId(L"TEXTSTYLE", named(db->textStyleTableId(), Std::kStandard));
    build.headerId(L"DIMSTYLE", named(db->dimStyleTableId(), Std::kStandard));
    build.headerId(L"CTABLESTYLE", named(db->tableStyleDictionaryId(), Std::kStandard));
    build.headerId(L"CMLEADERSTYLE", named(db->mleaderStyleDictionaryId(), Std::kStandard));
    build.headerId(L"CMATERIAL", named(db->materialDictionaryId(), Std::kByLayer));
    build.headerId(L"CVIEWDETAILSTYLE", named(db->detailViewStyleDictionaryId(), Std::kStandard));
    build.headerId(L"CVIEWSECTIONSTYLE", named(db->sectionViewStyleDictionaryId(), Std::kStandard));
    build.header(L"CECOLOR", KyRxValue(KyCmColor()));
    build.header(L"CETRANSPARENCY", KyRxValue(KyCmTransparency()));
    build.header(L"CELWEIGHT", KyRxValue(KyDb::kLnWtByLayer));
    build.header(L"CSHADOW", KyRxValue(KyDb::kShadowsCastAndReceive));
    build.header(L"TILEMODE", KyRxValue(true));
    build.header(L"PSTYLEMODE", KyRxValue(true));
}

}  // namespace

bool KyDbStandardContent::isStandardMaterial(const wchar_t* name) {
    const KyString text(name);
    for (const wchar_t* standard : {kByLayer, kByBlock, kGlobal}) {
        if (text.compareNoCase(standard) == 0) {
            return true;
        }
    }
    return false;
}

bool KyDbStandardContent::isStandardVisualStyle(const wchar_t* name) {
    const KyString text(name);
    for (const VisualStyleRow& row : kVisualStyles) {
        if (text.compareNoCase(row.name) == 0) {
            return true;
        }
    }
    return false;
}

Kyro::ErrorStatus KyDbStandardContent::add(KyDbDatabase* database, unsigned parts) {
    if (database == nullptr) {
        return Kyro::eNullObjectPointer;
    }
    Builder build(database);
    addTables(build, database, parts);
    if ((parts & kDictionaries) != 0) {
        addDictionaries(build, database);
    }
    if ((parts & kLayouts) != 0) {
        addLayout(build, database, kModelSpaceName, kModelLayoutName, 0);
        addLayout(build, database, kPaperSpaceName, kFirstLayoutName, 1);
    }
    if ((parts & kHeader) != 0) {
        addHeader(build, database);
    }
    return build.status();
}
