// Symbol tables and their records: order, names without regard to case,
// erased records, the rules of adding and renaming, layer properties,
// dependent records, blocks with their entities and references.
#include <gtest/gtest.h>

#include <memory>

#include "DbTestSupport.h"
#include "db/KyDbBlockReference.h"
#include "db/KyDbBlockTable.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbBlockTableRecordIterator.h"
#include "db/KyDbLayerTableIterator.h"
#include "db/KyDbLinetypeTable.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbTextStyleTableRecord.h"

namespace dbtest {
namespace {

class SymbolTableTest : public DbTest {
protected:
    KyDbObjectId addBlock(const wchar_t* name, const wchar_t* xrefPath = nullptr) {
        KyDbObjectPointer<KyDbBlockTable> blocks(db->blockTableId(), KyDb::kForWrite);
        auto* block = new KyDbBlockTableRecord();
        block->setName(name);
        if (xrefPath != nullptr) {
            block->setPathName(xrefPath);
        }
        KyDbObjectId id;
        EXPECT_EQ(blocks->add(id, block), Kyro::eOk);
        block->close();
        return id;
    }
    // Adds a block reference to *Model_Space pointing at `block`.
    KyDbObjectId addReference(KyDbObjectId block) {
        KyDbObjectPointer<KyDbBlockTable> blocks(db->blockTableId(), KyDb::kForRead);
        KyDbObjectId modelSpace;
        blocks->getAt(KyDbStandardContent::kModelSpaceName, modelSpace);
        KyDbObjectPointer<KyDbBlockTableRecord> space(modelSpace, KyDb::kForWrite);
        auto* reference = new KyDbBlockReference();
        reference->setBlockTableRecord(block);
        KyDbObjectId id;
        EXPECT_EQ(space->appendKyDbEntity(id, reference), Kyro::eOk);
        reference->close();
        return id;
    }
    static Lines referenceLabels(KyDbObjectId block) {
        KyDbObjectPointer<KyDbBlockTableRecord> record(block, KyDb::kForRead);
        KyArray<KyDbObjectId> ids;
        record->getBlockReferenceIds(ids);
        Lines handles;
        for (const KyDbObjectId& id : ids) {
            handles.push_back(KyRxValue(id).text().utf8());
        }
        return handles;
    }
};

TEST_F(SymbolTableTest, RecordsWalkInTableOrderBothWays) {
    for (const wchar_t* name : {L"C", L"A", L"B"}) {
        addLayer(name);
    }
    setErased(layerId(L"A"), true);
    EXPECT_EQ(layerNames(), (Lines{"0", "C", "B"}));
    EXPECT_EQ(layerNames(false), (Lines{"0", "C", "A", "B"}));

    KyDbObjectPointer<KyDbLayerTable> table(db->layerTableId(), KyDb::kForRead);
    KyDbLayerTableIterator* raw = nullptr;
    ASSERT_EQ(table->newIterator(raw, false, true), Kyro::eOk);
    std::unique_ptr<KyDbLayerTableIterator> it(raw);
    Lines backwards;
    for (; !it->done(); it->step(false, true)) {
        KyDbLayerTableRecord* layer = nullptr;
        ASSERT_EQ(it->getRecord(layer, KyDb::kForRead), Kyro::eOk);
        backwards.push_back(labelOf(layer));
        layer->close();
    }
    EXPECT_EQ(backwards, (Lines{"B", "C", "0"}));
    KyDbObjectId past;
    EXPECT_EQ(it->getRecordId(past), Kyro::eInvalidIndex);
    ASSERT_EQ(it->seek(layerId(L"A")), Kyro::eOk);
    it->step(true, true);
    it->getRecordId(past);
    EXPECT_EQ(past, layerId(L"B"));
}

TEST_F(SymbolTableTest, NamesMatchWithoutRegardToCase) {
    const KyDbObjectId walls = addLayer(L"Walls");
    EXPECT_EQ(layerId(L"WALLS"), walls);
    EXPECT_EQ(layerId(L"wAlLs"), walls);

    KyDbObjectPointer<KyDbLayerTable> table(db->layerTableId(), KyDb::kForWrite);
    auto* shouting = new KyDbLayerTableRecord();
    shouting->setName(L"WALLS");
    EXPECT_EQ(table->add(shouting), Kyro::eDuplicateRecordName);
    delete shouting;
    EXPECT_TRUE(table->has(L"walls"));
    EXPECT_TRUE(table->has(walls));
    table.close();

    EXPECT_EQ(renameLayer(walls, L"WALLS"), Kyro::eOk) << "a record may change its own case";
    EXPECT_EQ(labelOf(walls), "WALLS");
    const KyDbObjectId doors = addLayer(L"Doors");
    EXPECT_EQ(renameLayer(doors, L"walls"), Kyro::eDuplicateRecordName);
    EXPECT_EQ(renameLayer(doors, L"Gates"), Kyro::eOk);
    EXPECT_EQ(layerId(L"gates"), doors);
    EXPECT_TRUE(layerId(L"Doors").isNull());
}

TEST_F(SymbolTableTest, ANameMustBeValid) {
    KyDbObjectPointer<KyDbLayerTable> table(db->layerTableId(), KyDb::kForWrite);
    for (const wchar_t* bad : {L"", L"a<b", L"a:b", L"semi;colon", L"what?", L"a*b", L"x=y"}) {
        auto* layer = new KyDbLayerTableRecord();
        layer->setName(L"ok");
        EXPECT_EQ(layer->setName(bad), Kyro::eInvalidName) << KyString(bad).utf8();
        delete layer;
    }
    auto* odd = new KyDbLayerTableRecord();
    EXPECT_EQ(odd->setName(L"Ma\\U+00dfe"), Kyro::eOk) << "names of real drawings are taken";
    EXPECT_EQ(table->add(odd), Kyro::eOk);
    odd->close();
    auto* unnamed = new KyDbLayerTableRecord();
    EXPECT_EQ(table->add(unnamed), Kyro::eInvalidName);
    delete unnamed;
}

TEST_F(SymbolTableTest, TheTableTakesOnlyNewRecordsOfItsClassWhileOpenForWrite) {
    KyDbObjectPointer<KyDbLayerTable> table(db->layerTableId(), KyDb::kForRead);
    auto* layer = new KyDbLayerTableRecord();
    layer->setName(L"Late");
    EXPECT_EQ(table->add(layer), Kyro::eWasNotOpenForWrite);
    ASSERT_EQ(table->upgradeOpen(), Kyro::eOk);
    auto* style = new KyDbTextStyleTableRecord();
    style->setName(L"Text");
    EXPECT_EQ(table->add(style), Kyro::eNotThatKindOfClass);
    delete style;
    ASSERT_EQ(table->add(layer), Kyro::eOk);
    layer->close();
    EXPECT_EQ(table->add(layer), Kyro::eAlreadyInDb);
    EXPECT_EQ(table->recordCount(), 2);
}

TEST_F(SymbolTableTest, ALayerKeepsItsPropertiesAndRefusesWhatALayerCantBe) {
    const KyDbObjectId walls = addLayer(L"Walls");
    KyDbObjectPointer<KyDbLayerTableRecord> layer(walls, KyDb::kForWrite);
    EXPECT_EQ(layer->color().colorIndex(), KyCmColor::kACIWhite);
    EXPECT_EQ(layer->lineWeight(), KyDb::kLnWtByLwDefault);
    EXPECT_TRUE(layer->transparency().isSolid());
    EXPECT_EQ(layer->plotStyleName(), KyString(L"Normal"));
    EXPECT_TRUE(layer->isPlottable());
    EXPECT_EQ(labelOf(layer->linetypeObjectId()), "Continuous") << "added without a linetype";

    KyCmColor byLayer;
    EXPECT_EQ(layer->setColor(byLayer), Kyro::eInvalidInput);
    KyCmColor red;
    red.setColorIndex(KyCmColor::kACIRed);
    EXPECT_EQ(layer->setColor(red), Kyro::eOk);
    EXPECT_EQ(layer->setLineWeight(KyDb::kLnWtByLayer), Kyro::eInvalidInput);
    EXPECT_EQ(layer->setLineWeight(static_cast<KyDb::LineWeight>(33)), Kyro::eInvalidInput);
    EXPECT_EQ(layer->setLineWeight(KyDb::kLnWt035), Kyro::eOk);
    EXPECT_EQ(layer->setTransparency(KyCmTransparency()), Kyro::eInvalidInput);
    EXPECT_EQ(layer->setTransparency(KyCmTransparency(128)), Kyro::eOk);
    EXPECT_EQ(layer->setLinetypeObjectId(layerId(L"0")), Kyro::eNotThatKindOfClass);
    EXPECT_EQ(layer->setPlotStyleName(L""), Kyro::eInvalidInput);
    layer->setIsFrozen(true);
    layer->setIsFrozenInNewViewports(true);
    layer->setDescription(L"outer walls");
    layer.close();

    KyDbObjectPointer<KyDbLayerTableRecord> again(walls, KyDb::kForRead);
    EXPECT_EQ(again->color(), red);
    EXPECT_EQ(again->lineWeight(), KyDb::kLnWt035);
    EXPECT_EQ(again->transparency().alpha(), 128);
    EXPECT_TRUE(again->isFrozen());
    EXPECT_TRUE(again->isFrozenInNewViewports());
    EXPECT_EQ(again->description(), KyString(L"outer walls"));

    KyDbDatabase other;
    KyDbObjectPointer<KyDbLinetypeTable> foreign(other.linetypeTableId(), KyDb::kForRead);
    KyDbObjectId dashed;
    foreign->getAt(KyDbStandardContent::kContinuous, dashed);
    again.close();
    KyDbObjectPointer<KyDbLayerTableRecord> writable(walls, KyDb::kForWrite);
    EXPECT_EQ(writable->setLinetypeObjectId(dashed), Kyro::eWrongDatabase);
}

TEST_F(SymbolTableTest, ARecordNamedAfterAnExternalReferenceDependsOnIt) {
    addBlock(L"SITE", L"site.kyd");
    addBlock(L"DETAIL");
    const KyDbObjectId dependent = addLayer(L"SITE|Walls");
    const KyDbObjectId lookalike = addLayer(L"DETAIL|Walls");
    const KyDbObjectId plain = addLayer(L"Walls");
    auto isDependent = [](KyDbObjectId id) {
        KyDbObjectPointer<KyDbLayerTableRecord> layer(id, KyDb::kForRead);
        return layer->isDependent();
    };
    EXPECT_TRUE(isDependent(dependent));
    EXPECT_FALSE(isDependent(lookalike)) << "DETAIL is no external reference";
    EXPECT_FALSE(isDependent(plain));
}

TEST_F(SymbolTableTest, BlocksTellWhatKindTheyAre) {
    const KyDbObjectId site = addBlock(L"SITE", L"site.kyd");
    const KyDbObjectId dimension = addBlock(L"*D1");
    KyDbObjectPointer<KyDbBlockTable> blocks(db->blockTableId(), KyDb::kForRead);
    KyDbObjectId modelSpace;
    blocks->getAt(L"*MODEL_SPACE", modelSpace);
    blocks.close();

    KyDbObjectPointer<KyDbBlockTableRecord> model(modelSpace, KyDb::kForRead);
    EXPECT_TRUE(model->isLayout());
    EXPECT_FALSE(model->isAnonymous());
    KyDbObjectPointer<KyDbBlockTableRecord> picture(dimension, KyDb::kForRead);
    EXPECT_TRUE(picture->isAnonymous());
    EXPECT_FALSE(picture->isLayout());
    KyDbObjectPointer<KyDbBlockTableRecord> xref(site, KyDb::kForWrite);
    EXPECT_TRUE(xref->isFromExternalReference());
    EXPECT_FALSE(xref->isFromOverlayReference());
    xref->setIsFromOverlayReference(true);
    EXPECT_TRUE(xref->isFromOverlayReference());
    EXPECT_EQ(xref->xrefDatabase(), nullptr);
    {
        KyDbDatabase loaded;
        xref->setXrefDatabase(&loaded);
        EXPECT_EQ(xref->xrefDatabase(), &loaded);
    }
    EXPECT_EQ(xref->xrefDatabase(), nullptr) << "a deleted reference database is not answered";
}

TEST_F(SymbolTableTest, ABlockKnowsTheReferencesThatPointAtIt) {
    const KyDbObjectId door = addBlock(L"DOOR");
    const KyDbObjectId window = addBlock(L"WINDOW");
    const KyDbObjectId first = addReference(door);
    const KyDbObjectId second = addReference(door);
    const KyDbObjectId third = addReference(window);
    const std::string firstHandle = KyRxValue(first).text().utf8();
    const std::string secondHandle = KyRxValue(second).text().utf8();
    const std::string thirdHandle = KyRxValue(third).text().utf8();
    EXPECT_EQ(referenceLabels(door), (Lines{firstHandle, secondHandle}));

    setErased(first, true);
    EXPECT_EQ(referenceLabels(door), (Lines{secondHandle}));
    {
        KyDbObjectPointer<KyDbBlockReference> moved(second, KyDb::kForWrite);
        ASSERT_EQ(moved->setBlockTableRecord(window), Kyro::eOk);
    }
    EXPECT_TRUE(referenceLabels(door).empty());
    EXPECT_EQ(referenceLabels(window), (Lines{thirdHandle, secondHandle}));

    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_EQ(referenceLabels(door), (Lines{secondHandle})) << "undo moves the reference back";
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_EQ(referenceLabels(door), (Lines{firstHandle, secondHandle}))
        << "an unerased reference is listed again in its place";
}

TEST_F(SymbolTableTest, EntitiesKeepDrawingOrderAndTakeTheCurrentItems) {
    const KyDbObjectId walls = addLayer(L"Walls");
    db->setClayer(walls);
    const KyDbObjectId block = addBlock(L"PLAN");
    KyDbObjectId first;
    KyDbObjectId second;
    {
        KyDbObjectPointer<KyDbBlockTableRecord> plan(block, KyDb::kForWrite);
        for (KyDbObjectId* id : {&first, &second}) {
            auto* entity = new KyDbEntity();
            ASSERT_EQ(plan->appendKyDbEntity(*id, entity), Kyro::eOk);
            entity->close();
        }
    }
    setErased(first, true);
    KyDbObjectPointer<KyDbBlockTableRecord> plan(block, KyDb::kForRead);
    EXPECT_EQ(plan->entityCount(), 2);
    KyDbBlockTableRecordIterator* raw = nullptr;
    plan->newIterator(raw, true, false);
    std::unique_ptr<KyDbBlockTableRecordIterator> it(raw);
    std::vector<KyDbObjectId> order;
    for (; !it->done(); it->step(true, false)) {
        KyDbObjectId id;
        it->getEntityId(id);
        order.push_back(id);
    }
    EXPECT_EQ(order, (std::vector<KyDbObjectId>{first, second}));
    it->start(true, true);
    KyDbEntity* entity = nullptr;
    ASSERT_EQ(it->getEntity(entity, KyDb::kForRead), Kyro::eOk);
    EXPECT_EQ(entity->objectId(), second);
    EXPECT_EQ(entity->layerId(), walls);
    EXPECT_EQ(entity->blockId(), block);
    EXPECT_EQ(labelOf(entity->linetypeId()), "ByLayer");
    EXPECT_TRUE(entity->color().isByLayer());
    entity->close();
}

}  // namespace
}  // namespace dbtest
