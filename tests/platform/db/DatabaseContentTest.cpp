// What a new drawing holds, the defaults a style takes when it is added, the
// header's current items with the checks of their setters, the generic header
// store, the empty database a reader fills, and the database classes known by
// name.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <tuple>

#include "DbTestSupport.h"
#include "db/KyDbBlockTable.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDictionaryIterator.h"
#include "db/KyDbDictionaryWithDefault.h"
#include "db/KyDbDimStyleTableRecord.h"
#include "db/KyDbLayerStateManager.h"
#include "db/KyDbLayout.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbMLeaderStyle.h"
#include "db/KyDbMaterial.h"
#include "db/KyDbScale.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbStateFiler.h"
#include "db/KyDbSymbolTableIterator.h"
#include "db/KyDbTableStyle.h"
#include "db/KyDbTextStyleTableRecord.h"
#include "db/KyDbVisualStyle.h"
#include "ge/KyGePoint3d.h"

namespace dbtest {
namespace {

// The names of a table's records, in order.
Lines tableNames(KyDbObjectId tableId) {
    KyDbObjectPointer<KyDbSymbolTable> table(tableId, KyDb::kForRead);
    KyDbSymbolTableIterator* raw = nullptr;
    table->newIterator(raw);
    std::unique_ptr<KyDbSymbolTableIterator> it(raw);
    Lines names;
    for (; !it->done(); it->step()) {
        KyDbObjectId id;
        it->getRecordId(id);
        names.push_back(labelOf(id));
    }
    return names;
}

// The keys of a dictionary, in order.
Lines dictionaryKeys(KyDbObjectId dictionaryId) {
    KyDbObjectPointer<KyDbDictionary> dictionary(dictionaryId, KyDb::kForRead);
    Lines keys;
    if (!dictionary) {
        return keys;
    }
    std::unique_ptr<KyDbDictionaryIterator> it(dictionary->newIterator());
    for (; !it->done(); it->next()) {
        keys.push_back(KyString(it->name()).utf8());
    }
    return keys;
}

KyDbObjectId entryOf(KyDbObjectId dictionaryId, const wchar_t* key) {
    KyDbObjectPointer<KyDbDictionary> dictionary(dictionaryId, KyDb::kForRead);
    KyDbObjectId id;
    dictionary->getAt(key, id);
    return id;
}

using NewDrawingTest = DbTest;

TEST_F(NewDrawingTest, TheTablesHoldTheStandardRecords) {
    EXPECT_EQ(tableNames(db->layerTableId()), (Lines{"0"}));
    EXPECT_EQ(tableNames(db->linetypeTableId()), (Lines{"ByBlock", "ByLayer", "Continuous"}));
    EXPECT_EQ(tableNames(db->textStyleTableId()), (Lines{"Standard"}));
    EXPECT_EQ(tableNames(db->dimStyleTableId()), (Lines{"Standard"}));
    EXPECT_EQ(tableNames(db->blockTableId()), (Lines{"*Model_Space", "*Paper_Space"}));
    EXPECT_TRUE(tableNames(db->viewTableId()).empty());
    EXPECT_TRUE(tableNames(db->viewportTableId()).empty());
    EXPECT_TRUE(tableNames(db->UCSTableId()).empty());
}

TEST_F(NewDrawingTest, TheTwoSpacesHaveTheirLayouts) {
    EXPECT_EQ(dictionaryKeys(db->layoutDictionaryId()), (Lines{"Model", "Layout1"}));
    KyDbObjectPointer<KyDbBlockTable> blocks(db->blockTableId(), KyDb::kForRead);
    for (const auto& [blockName, layoutKey, tabOrder] :
         {std::tuple{L"*Model_Space", L"Model", 0}, std::tuple{L"*Paper_Space", L"Layout1", 1}}) {
        KyDbObjectId blockId;
        blocks->getAt(blockName, blockId);
        const KyDbObjectId layoutId = entryOf(db->layoutDictionaryId(), layoutKey);
        KyDbObjectPointer<KyDbLayout> layout(layoutId, KyDb::kForRead);
        EXPECT_EQ(layout->layoutName(), KyString(layoutKey));
        EXPECT_EQ(layout->tabOrder(), tabOrder);
        EXPECT_EQ(layout->getBlockTableRecordId(), blockId);
        KyDbObjectPointer<KyDbBlockTableRecord> block(blockId, KyDb::kForRead);
        EXPECT_EQ(block->getLayoutId(), layoutId);
    }
    EXPECT_EQ(kydbCurrentLayoutId(db), entryOf(db->layoutDictionaryId(), L"Model"));
    db->setTilemode(false);
    EXPECT_EQ(kydbCurrentLayoutId(db), entryOf(db->layoutDictionaryId(), L"Layout1"));
    EXPECT_TRUE(kydbCurrentLayoutId(nullptr).isNull());
}

TEST_F(NewDrawingTest, TheNamedObjectsDictionaryHoldsTheStandardEntries) {
    EXPECT_EQ(dictionaryKeys(db->namedObjectsDictionaryId()),
              (Lines{"KYRO_LAYOUT", "KYRO_PLOTSETTINGS", "KYRO_MATERIAL", "KYRO_VISUALSTYLE",
                     "KYRO_MLEADERSTYLE", "KYRO_TABLESTYLE", "KYRO_SECTIONVIEWSTYLE",
                     "KYRO_DETAILVIEWSTYLE", "KYRO_SCALELIST", "KYRO_PLOTSTYLENAME",
                     "KYRO_RENDER_SETTINGS", "KyDbVariableDictionary"}));
    EXPECT_EQ(dictionaryKeys(db->materialDictionaryId()), (Lines{"ByLayer", "ByBlock", "Global"}));
    EXPECT_EQ(dictionaryKeys(db->plotStyleNameDictionaryId()), (Lines{"Normal"}));
    EXPECT_TRUE(dictionaryKeys(db->plotSettingsDictionaryId()).empty());

    const Lines styles = dictionaryKeys(db->visualStyleDictionaryId());
    for (const char* name :
         {"2dWireframe", "Conceptual", "Hidden", "Realistic", "Shaded", "Shaded with edges",
          "Shades of Gray", "Sketchy", "Wireframe", "X-Ray"}) {
        EXPECT_NE(std::find(styles.begin(), styles.end(), name), styles.end()) << name;
    }
    KyDbObjectPointer<KyDbVisualStyle> basic(entryOf(db->visualStyleDictionaryId(), L"Basic"),
                                             KyDb::kForRead);
    EXPECT_TRUE(basic->isInternalUseOnly());

    const Lines scales = dictionaryKeys(db->scaleListDictionaryId());
    ASSERT_FALSE(scales.empty());
    EXPECT_EQ(scales.front(), "1:1");
    EXPECT_EQ(scales.size(), 17u);
    KyDbObjectPointer<KyDbScale> first(entryOf(db->scaleListDictionaryId(), L"1:1"),
                                       KyDb::kForRead);
    ASSERT_TRUE(first);
    EXPECT_EQ(first->scaleName(), KyString(L"1:1"));
    EXPECT_DOUBLE_EQ(first->scale(), 1.0);

    KyDbObjectPointer<KyDbTableStyle> table(db->tablestyle(), KyDb::kForRead);
    EXPECT_EQ(table->name(), KyString(L"Standard"));
    EXPECT_TRUE(table->hasCellStyle(L"title"));
    EXPECT_EQ(table->cellStyles().length(), 3);
    KyDbObjectPointer<KyDbMLeaderStyle> leader(db->mleaderstyle(), KyDb::kForRead);
    EXPECT_EQ(labelOf(leader->textStyleId()), "Standard");
}

TEST_F(NewDrawingTest, StylesAddedWithoutATextStyleTakeTheStandardOneAndOthersKeepTheirs) {
    KyDbObjectId mono;
    {
        KyDbObjectPointer<KyDbSymbolTable> styles(db->textStyleTableId(), KyDb::kForWrite);
        auto* style = new KyDbTextStyleTableRecord();
        style->setName(L"Mono");
        ASSERT_EQ(styles->add(mono, style), Kyro::eOk);
        style->close();
    }
    KyDbObjectId arch;
    {
        KyDbObjectPointer<KyDbSymbolTable> dimStyles(db->dimStyleTableId(), KyDb::kForWrite);
        auto* style = new KyDbDimStyleTableRecord();
        style->setName(L"Arch");
        ASSERT_EQ(dimStyles->add(arch, style), Kyro::eOk);
        style->close();
    }
    KyDbObjectId tag;
    KyDbObjectId note;
    {
        KyDbObjectPointer<KyDbDictionary> leaders(db->mleaderStyleDictionaryId(), KyDb::kForWrite);
        auto* style = new KyDbMLeaderStyle();
        style->setName(L"Tag");
        ASSERT_EQ(leaders->setAt(L"Tag", style, tag), Kyro::eOk);
        style->close();
        style = new KyDbMLeaderStyle();
        style->setName(L"Note");
        ASSERT_EQ(style->setTextStyleId(mono), Kyro::eOk);
        ASSERT_EQ(leaders->setAt(L"Note", style, note), Kyro::eOk);
        style->close();
    }
    KyDbObjectPointer<KyDbDimStyleTableRecord> dimStyle(arch, KyDb::kForRead);
    EXPECT_EQ(labelOf(dimStyle->dimtxsty()), "Standard");
    KyDbObjectPointer<KyDbMLeaderStyle> tagStyle(tag, KyDb::kForRead);
    EXPECT_EQ(labelOf(tagStyle->textStyleId()), "Standard");
    KyDbObjectPointer<KyDbMLeaderStyle> noteStyle(note, KyDb::kForRead);
    EXPECT_EQ(labelOf(noteStyle->textStyleId()), "Mono");
}

TEST_F(NewDrawingTest, TheHeaderNamesTheStandardItemsAsCurrent) {
    EXPECT_EQ(labelOf(db->clayer()), "0");
    EXPECT_EQ(labelOf(db->celtype()), "ByLayer");
    EXPECT_EQ(labelOf(db->textstyle()), "Standard");
    EXPECT_EQ(labelOf(db->dimstyle()), "Standard");
    EXPECT_EQ(db->cmaterial(), entryOf(db->materialDictionaryId(), L"ByLayer"));
    EXPECT_EQ(db->detailViewStyle(), entryOf(db->detailViewStyleDictionaryId(), L"Standard"));
    EXPECT_EQ(db->sectionViewStyle(), entryOf(db->sectionViewStyleDictionaryId(), L"Standard"));
    EXPECT_TRUE(db->cecolor().isByLayer());
    EXPECT_TRUE(db->cetransparency().isByLayer());
    EXPECT_EQ(db->celweight(), KyDb::kLnWtByLayer);
    EXPECT_EQ(db->cshadow(), KyDb::kShadowsCastAndReceive);
    EXPECT_TRUE(db->tilemode());
    EXPECT_TRUE(db->plotStyleMode());
    EXPECT_TRUE(db->ucsBase().isNull());
    ASSERT_NE(db->getLayerStateManager(), nullptr);
    EXPECT_TRUE(db->getLayerStateManager()->layerStatesDictionaryId(false).isNull())
        << "a new drawing has no layer states";
    EXPECT_FALSE(undo()->hasUndo()) << "the new drawing's content can't be taken back";
}

TEST_F(NewDrawingTest, SettersRefuseIdsOfTheWrongTableOrDatabase) {
    const KyDbObjectId walls = addLayer(L"Walls");
    KyDbDatabase other;
    EXPECT_EQ(db->setClayer(KyDbObjectId()), Kyro::eNullObjectId);
    EXPECT_EQ(db->setClayer(db->celtype()), Kyro::eNotThatKindOfClass);
    EXPECT_EQ(db->setClayer(other.clayer()), Kyro::eWrongDatabase);
    EXPECT_EQ(db->setTextstyle(db->dimstyle()), Kyro::eNotThatKindOfClass);
    EXPECT_EQ(db->setCmaterial(db->tablestyle()), Kyro::eNotThatKindOfClass);
    setErased(walls, true);
    EXPECT_EQ(db->setClayer(walls), Kyro::eWasErased);
    EXPECT_EQ(labelOf(db->clayer()), "0");

    EXPECT_EQ(db->setCelweight(static_cast<KyDb::LineWeight>(7)), Kyro::eInvalidInput);
    KyCmTransparency broken;
    broken.setMethod(KyCmTransparency::kErrorValue);
    EXPECT_EQ(db->setCetransparency(broken), Kyro::eInvalidInput);
    EXPECT_EQ(db->setCshadow(static_cast<KyDb::ShadowFlags>(9)), Kyro::eInvalidInput);
    EXPECT_EQ(db->setUcsBase(KyDbObjectId()), Kyro::eOk) << "null is the world";

    KyCmColor blue;
    blue.setColorIndex(KyCmColor::kACIBlue);
    ASSERT_EQ(db->setCecolor(blue), Kyro::eOk);
    EXPECT_EQ(db->cecolor(), blue);
    ASSERT_EQ(db->setCetransparency(KyCmTransparency(100)), Kyro::eOk);
    EXPECT_EQ(db->cetransparency().alpha(), 100);
}

TEST_F(NewDrawingTest, AnyDrawingVariableLivesInTheHeader) {
    ASSERT_EQ(db->setHeaderVar(L"LUNITS", KyRxValue(2)), Kyro::eOk);
    ASSERT_EQ(db->setHeaderVar(L"PROJECTNAME", KyRxValue(KyString(L"Tower"))), Kyro::eOk);
    KyRxValue value;
    ASSERT_EQ(db->getHeaderVar(L"lunits", value), Kyro::eOk);
    EXPECT_EQ(*valueCast<int>(&value), 2);
    ASSERT_EQ(db->getHeaderVar(L"ProjectName", value), Kyro::eOk);
    EXPECT_EQ(*valueCast<KyString>(&value), KyString(L"Tower"));
    EXPECT_EQ(db->getHeaderVar(L"NOSUCHVAR", value), Kyro::eKeyNotFound);
    EXPECT_EQ(db->setHeaderVar(L"CLAYER", KyRxValue(KyString(L"0"))), Kyro::eInvalidInput)
        << "a typed variable takes its own type only";
    ASSERT_EQ(db->setHeaderVar(L"celweight", KyRxValue(KyDb::kLnWt050)), Kyro::eOk);
    EXPECT_EQ(db->celweight(), KyDb::kLnWt050);
    ASSERT_EQ(db->getHeaderVar(L"CLAYER", value), Kyro::eOk);
    EXPECT_EQ(*valueCast<KyDbObjectId>(&value), db->clayer());

    const KyStringArray names = db->headerVarNames();
    EXPECT_TRUE(names.contains(KyString(L"LUNITS")));
    EXPECT_TRUE(names.contains(KyString(L"CLAYER")));

    // A point keeps what it is given, also within the tolerance of points.
    ASSERT_EQ(db->setHeaderVar(L"INSBASE", KyRxValue(KyGePoint3d(1.0, 2.0, 0.0))), Kyro::eOk);
    const KyGePoint3d near(1.0 + 1e-12, 2.0, 0.0);
    ASSERT_EQ(db->setHeaderVar(L"INSBASE", KyRxValue(near)), Kyro::eOk);
    ASSERT_EQ(db->getHeaderVar(L"INSBASE", value), Kyro::eOk);
    ASSERT_NE(valueCast<KyGePoint3d>(&value), nullptr);
    EXPECT_EQ(valueCast<KyGePoint3d>(&value)->x, near.x);
}

TEST(EmptyDrawingTest, AnEmptyDatabaseHasItsTablesAndNothingElse) {
    KyDbDatabase db(false);
    for (const KyDbObjectId& table :
         {db.blockTableId(), db.layerTableId(), db.linetypeTableId(), db.textStyleTableId(),
          db.dimStyleTableId(), db.viewTableId(), db.viewportTableId(), db.UCSTableId()}) {
        EXPECT_TRUE(table.isValid());
        EXPECT_TRUE(tableNames(table).empty());
    }
    EXPECT_TRUE(dictionaryKeys(db.namedObjectsDictionaryId()).empty());
    EXPECT_TRUE(db.layoutDictionaryId().isNull());
    EXPECT_TRUE(db.clayer().isNull());
    EXPECT_EQ(kydbCurrentLayoutId(&db), KyDbObjectId());
}

TEST(EmptyDrawingTest, AReaderAddsWhatAFileLeftOut) {
    KyDbDatabase db(false);
    ASSERT_EQ(KyDbStandardContent::add(
                  &db, KyDbStandardContent::kLayers | KyDbStandardContent::kLinetypes),
              Kyro::eOk);
    EXPECT_EQ(tableNames(db.layerTableId()), (Lines{"0"}));
    EXPECT_TRUE(tableNames(db.blockTableId()).empty());
    ASSERT_EQ(KyDbStandardContent::add(&db, KyDbStandardContent::kAll), Kyro::eOk);
    EXPECT_EQ(tableNames(db.layerTableId()), (Lines{"0"})) << "nothing is added twice";
    EXPECT_EQ(dictionaryKeys(db.layoutDictionaryId()), (Lines{"Model", "Layout1"}));
    EXPECT_EQ(labelOf(db.clayer()), "0");
    KyDbObjectPointer<KyDbDimStyleTableRecord> standard(db.dimstyle(), KyDb::kForRead);
    EXPECT_EQ(labelOf(standard->dimtxsty()), "Standard");
}

TEST(DatabaseClassesTest, DatabaseClassesAreKnownByNameAndMadeByClass) {
    KyRxClass* layerClass = kyrxFindKyRxClass(L"KyDbLayerTableRecord");
    ASSERT_EQ(layerClass, KyDbLayerTableRecord::desc());
    EXPECT_TRUE(layerClass->isDerivedFrom(KyDbSymbolTableRecord::desc()));
    EXPECT_TRUE(layerClass->isDerivedFrom(KyDbObject::desc()));
    std::unique_ptr<KyRxObject> made(layerClass->create());
    ASSERT_NE(kyrxCast<KyDbLayerTableRecord>(made.get()), nullptr);
    for (const wchar_t* name :
         {L"KyDbDatabase", L"KyDbDictionary", L"KyDbSymbolTable", L"KyDbLayerTable",
          L"KyDbBlockTableRecord", L"KyDbLinetypeTableRecord", L"KyDbViewTable",
          L"KyDbViewTableRecord", L"KyDbViewportTableRecord", L"KyDbMaterial", L"KyDbVisualStyle",
          L"KyDbTableStyle", L"KyDbLongTransaction", L"KyDbEntity", L"KyDbBlockReference",
          L"KyDbRasterImageDef", L"KyDbUnknownObject"}) {
        EXPECT_NE(kyrxFindKyRxClass(name), nullptr) << KyString(name).utf8();
    }
}

TEST(DatabaseClassesTest, ACopyTakesTheStateButNotTheIdentity) {
    KyDbDatabase db;
    KyDbObjectPointer<KyDbLayerTable> table(db.layerTableId(), KyDb::kForRead);
    KyDbObjectId zeroId;
    table->getAt(L"0", zeroId);
    KyDbObjectPointer<KyDbLayerTableRecord> zero(zeroId, KyDb::kForRead);
    std::unique_ptr<KyRxObject> copy(zero->clone());
    auto* layer = kyrxCast<KyDbLayerTableRecord>(copy.get());
    ASSERT_NE(layer, nullptr);
    EXPECT_EQ(layer->name(), KyString(L"0"));
    EXPECT_EQ(layer->linetypeObjectId(), zero->linetypeObjectId());
    EXPECT_TRUE(layer->objectId().isNull());
    EXPECT_EQ(layer->copyFrom(table.object()), Kyro::eNotThatKindOfClass);
}

TEST(DatabaseClassesTest, AStateOfAnotherClassIsRefused) {
    KyDbLinetypeTableRecord linetype;
    linetype.setName(L"Dashed");
    linetype.setComments(L"- - -");
    KyDbStateFiler filer;
    linetype.saveState(filer);
    KyDbLayerTableRecord layer;
    EXPECT_EQ(layer.restoreState(filer), Kyro::eInvalidInput);
    KyDbLinetypeTableRecord copy;
    ASSERT_EQ(copy.restoreState(filer), Kyro::eOk) << "the filer reads again from its start";
    EXPECT_EQ(copy.comments(), KyString(L"- - -"));
}

Kyro::ErrorStatus hideLayers(const KyDbObject* object, KyGuid*) {
    return kyrxCast<KyDbLayerTableRecord>(object) != nullptr ? Kyro::eNotShown
                                                             : Kyro::eNotApplicable;
}

TEST(DatabaseClassesTest, ClassIdsAreStableAndAHostMayHideObjects) {
    KyDbLayerTableRecord first;
    KyDbLayerTableRecord second;
    KyDbMaterial material;
    KyGuid a;
    KyGuid b;
    KyGuid c;
    ASSERT_EQ(first.getClassID(&a), Kyro::eOk);
    ASSERT_EQ(second.getClassID(&b), Kyro::eOk);
    ASSERT_EQ(material.getClassID(&c), Kyro::eOk);
    EXPECT_EQ(a, b);
    EXPECT_FALSE(a == c);
    kydbSetClassIdHook(&hideLayers);
    EXPECT_EQ(first.getClassID(&a), Kyro::eNotShown);
    EXPECT_EQ(material.getClassID(&c), Kyro::eOk);
    kydbSetClassIdHook(nullptr);
    EXPECT_EQ(first.getClassID(&a), Kyro::eOk);
}

}  // namespace
}  // namespace dbtest
