// A layer's colour, linetype, lineweight, transparency and plot style
// overridden in one viewport: reads with the overridden flag, removal, the
// values an override takes, notifications and undo; and the overrides a host
// drawing makes to the layers of an external reference.
#include <gtest/gtest.h>

#include "DbTestSupport.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbLine.h"
#include "db/KyDbLinetypeTable.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbViewport.h"
#include "db/KyXRefLayerPropertyOverride.h"

namespace dbtest {
namespace {

KyCmColor indexColor(unsigned short index) {
    KyCmColor color;
    color.setColorIndex(index);
    return color;
}

class LayerOverrideTest : public DbTest {
protected:
    LayerOverrideTest()
        : walls(addLayer(L"Walls")),
          paper(addEntity(new KyDbViewport(), L"*Paper_Space")),
          window(addEntity(new KyDbViewport(), L"*Paper_Space")) {}

    // Runs `change` on Walls opened for write; answers its status.
    template <typename Change>
    Kyro::ErrorStatus changeWalls(Change change) {
        KyDbObjectPointer<KyDbLayerTableRecord> layer(walls, KyDb::kForWrite);
        if (!layer) {
            return layer.openStatus();
        }
        return change(layer.object());
    }

    KyDbObjectPointer<KyDbLayerTableRecord> readWalls() const {
        return KyDbObjectPointer<KyDbLayerTableRecord>(walls, KyDb::kForRead);
    }

    KyDbObjectId linetype(const wchar_t* name) {
        KyDbObjectPointer<KyDbLinetypeTable> table(db->linetypeTableId(), KyDb::kForWrite);
        KyDbObjectId id;
        if (table->getAt(name, id) != Kyro::eOk) {
            auto* record = new KyDbLinetypeTableRecord();
            record->setName(name);
            table->add(id, record);
            record->close();
        }
        return id;
    }

    KyDbObjectId walls;
    KyDbObjectId paper;
    KyDbObjectId window;
};

TEST_F(LayerOverrideTest, AnOverrideShowsInItsViewportOnly) {
    ASSERT_EQ(changeWalls([&](KyDbLayerTableRecord* layer) {
                  return layer->setColor(indexColor(1), window);
              }),
              Kyro::eOk);

    auto layer = readWalls();
    bool overridden = false;
    EXPECT_EQ(layer->color(window, overridden), indexColor(1));
    EXPECT_TRUE(overridden);
    EXPECT_EQ(layer->color(paper, overridden), indexColor(7));
    EXPECT_FALSE(overridden);
    EXPECT_EQ(layer->color(), indexColor(7)) << "the layer's own colour stays";
    EXPECT_TRUE(layer->hasOverrides(window));
    EXPECT_FALSE(layer->hasOverrides(paper));
    EXPECT_TRUE(layer->hasViewportOverrides());
}

TEST_F(LayerOverrideTest, EachPropertyIsOverriddenAndRemovedOnItsOwn) {
    const KyDbObjectId dashed = linetype(L"Dashed");
    ASSERT_EQ(changeWalls([&](KyDbLayerTableRecord* layer) {
                  layer->setColor(indexColor(3), window);
                  layer->setLinetypeObjectId(dashed, window);
                  layer->setLineWeight(KyDb::kLnWt050, window);
                  layer->setTransparency(KyCmTransparency(128), window);
                  return layer->setPlotStyleName(L"Thick", window);
              }),
              Kyro::eOk);
    ASSERT_EQ(changeWalls(
                  [&](KyDbLayerTableRecord* layer) { return layer->removeColorOverride(window); }),
              Kyro::eOk);

    auto layer = readWalls();
    bool overridden = true;
    EXPECT_EQ(layer->color(window, overridden), indexColor(7));
    EXPECT_FALSE(overridden) << "the colour went back to the layer's";
    EXPECT_EQ(layer->linetypeObjectId(window, overridden), dashed);
    EXPECT_TRUE(overridden);
    EXPECT_EQ(layer->lineWeight(window, overridden), KyDb::kLnWt050);
    EXPECT_TRUE(overridden);
    EXPECT_EQ(layer->transparency(window, overridden), KyCmTransparency(128));
    EXPECT_TRUE(overridden);
    KyString plotStyle;
    EXPECT_EQ(layer->plotStyleName(window, plotStyle, overridden), Kyro::eOk);
    EXPECT_EQ(plotStyle, KyString(L"Thick"));
    EXPECT_TRUE(overridden);
    layer.close();

    ASSERT_EQ(
        changeWalls([&](KyDbLayerTableRecord* l) { return l->removeViewportOverrides(window); }),
        Kyro::eOk);
    layer.open(walls, KyDb::kForRead);
    EXPECT_FALSE(layer->hasOverrides(window));
    EXPECT_FALSE(layer->hasViewportOverrides());
    EXPECT_EQ(layer->lineWeight(window, overridden), KyDb::kLnWtByLwDefault);
    EXPECT_FALSE(overridden);
    EXPECT_EQ(layer->plotStyleName(window, plotStyle, overridden), Kyro::eOk);
    EXPECT_EQ(plotStyle, KyString(L"Normal"));
}

TEST_F(LayerOverrideTest, AnOverrideTakesOnlyWhatTheLayerTakesInAViewportOfItsDrawing) {
    KyDbDatabase other;
    KyDbObjectId foreign;
    {
        KyDbSymbolTable* blocks = nullptr;
        other.getSymbolTable(blocks, other.blockTableId(), KyDb::kForRead);
        KyDbObjectId space;
        blocks->getAt(L"*Paper_Space", space);
        blocks->close();
        KyDbObjectPointer<KyDbBlockTableRecord> otherPaper(space, KyDb::kForWrite);
        auto* viewport = new KyDbViewport();
        otherPaper->appendKyDbEntity(foreign, viewport);
        viewport->close();
    }
    const KyDbObjectId line = addEntity(new KyDbLine());

    changeWalls([&](KyDbLayerTableRecord* layer) {
        KyCmColor byLayer;
        EXPECT_EQ(layer->setColor(byLayer, window), Kyro::eInvalidInput);
        EXPECT_EQ(layer->setLineWeight(KyDb::kLnWtByBlock, window), Kyro::eInvalidInput);
        KyCmTransparency byBlock;
        byBlock.setMethod(KyCmTransparency::kByBlock);
        EXPECT_EQ(layer->setTransparency(byBlock, window), Kyro::eInvalidInput);
        EXPECT_EQ(layer->setPlotStyleName(L"", window), Kyro::eInvalidInput);
        EXPECT_EQ(layer->setLinetypeObjectId(walls, window), Kyro::eNotThatKindOfClass);

        EXPECT_EQ(layer->setColor(indexColor(1), KyDbObjectId()), Kyro::eNullObjectId);
        EXPECT_EQ(layer->setColor(indexColor(1), line), Kyro::eNotThatKindOfClass);
        EXPECT_EQ(layer->setColor(indexColor(1), foreign), Kyro::eWrongDatabase);
        EXPECT_FALSE(layer->isModified()) << "a refused override changes nothing";
        return Kyro::eOk;
    });
    auto layer = readWalls();
    EXPECT_EQ(layer->setColor(indexColor(1), window), Kyro::eWasNotOpenForWrite);
    EXPECT_EQ(layer->removeViewportOverrides(window), Kyro::eWasNotOpenForWrite);
    EXPECT_FALSE(layer->hasViewportOverrides());
}

TEST_F(LayerOverrideTest, AnOverrideIsAChangeOfTheLayerToldAndUndone) {
    ObjectSpy spy(log);
    DatabaseSpy dbSpy(log);
    watch(walls, &spy);
    db->addReactor(&dbSpy);

    ASSERT_EQ(changeWalls([&](KyDbLayerTableRecord* layer) {
                  return layer->setColor(indexColor(1), window);
              }),
              Kyro::eOk);
    EXPECT_EQ(log.lines(),
              (Lines{"openedForModify Walls", "db.objectOpenedForModify Walls", "modified Walls",
                     "db.objectModified Walls", "objectClosed Walls"}));

    log.clear();
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_EQ(log.lines(), (Lines{"modifyUndone Walls", "modified Walls", "db.objectModified Walls",
                                  "objectClosed Walls"}));
    EXPECT_FALSE(readWalls()->hasOverrides(window));

    ASSERT_EQ(undo()->redo(), Kyro::eOk);
    bool overridden = false;
    EXPECT_EQ(readWalls()->color(window, overridden), indexColor(1));
    EXPECT_TRUE(overridden);
    db->removeReactor(&dbSpy);
}

TEST_F(LayerOverrideTest, AnEqualOverrideAndTheRemovalOfAMissingOneChangeNothing) {
    changeWalls(
        [&](KyDbLayerTableRecord* layer) { return layer->setColor(indexColor(1), window); });
    const int undoSteps = undo()->undoCount();
    ObjectSpy spy(log);
    watch(walls, &spy);

    changeWalls([&](KyDbLayerTableRecord* layer) {
        EXPECT_EQ(layer->setColor(indexColor(1), window), Kyro::eOk);
        EXPECT_EQ(layer->removeLineWeightOverride(window), Kyro::eOk);
        EXPECT_EQ(layer->removeViewportOverrides(paper), Kyro::eOk);
        return Kyro::eOk;
    });
    EXPECT_TRUE(log.lines().empty());
    EXPECT_EQ(undo()->undoCount(), undoSteps);
}

TEST_F(LayerOverrideTest, ARemovedOverrideComesBackWithUndo) {
    changeWalls([&](KyDbLayerTableRecord* layer) {
        layer->setColor(indexColor(5), window);
        return layer->setColor(indexColor(6), paper);
    });
    changeWalls([](KyDbLayerTableRecord* layer) { return layer->removeAllOverrides(); });
    EXPECT_FALSE(readWalls()->hasViewportOverrides());

    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    auto layer = readWalls();
    KyArray<KyDbObjectId> viewports;
    layer->getOverriddenViewports(viewports);
    ASSERT_EQ(viewports.length(), 2);
    EXPECT_EQ(viewports[0], window);
    EXPECT_EQ(viewports[1], paper);
    bool overridden = false;
    EXPECT_EQ(layer->color(paper, overridden), indexColor(6));
}

TEST_F(LayerOverrideTest, XRefOverridesAreKeptByLayersOfAReferenceOnly) {
    {
        KyDbObjectPointer<KyDbSymbolTable> blocks(db->blockTableId(), KyDb::kForWrite);
        auto* site = new KyDbBlockTableRecord();
        site->setName(L"Site");
        site->setPathName(L"site.kyd");
        KyDbObjectId id;
        ASSERT_EQ(blocks->add(id, site), Kyro::eOk);
        site->close();
    }
    const KyDbObjectId fence = addLayer(L"Site|Fence");
    const KyDbObjectId gate = addLayer(L"Site|Gate");
    auto setNames = [](KyDbObjectId layerId, std::initializer_list<const wchar_t*> list) {
        KyStringArray names;
        for (const wchar_t* name : list) {
            names.append(KyString(name));
        }
        KyDbObjectPointer<KyDbLayerTableRecord> layer(layerId, KyDb::kForWrite);
        return layer->setXrefOverrides(names);
    };
    EXPECT_EQ(setNames(fence, {L"Color", L"IsOff"}), Kyro::eOk);
    EXPECT_EQ(setNames(walls, {L"Color"}), Kyro::eInvalidInput) << "a layer of the drawing itself";
    EXPECT_EQ(setNames(walls, {}), Kyro::eOk);
    EXPECT_EQ(setNames(gate, {L"Colour"}), Kyro::eInvalidInput);
    EXPECT_EQ(setNames(gate, {L"Name"}), Kyro::eInvalidInput) << "not overridable";
    EXPECT_EQ(setNames(gate, {L"IsOff", L"IsOff"}), Kyro::eInvalidInput);

    EXPECT_TRUE(KyXRefLayerPropertyOverride::hasAnyXRefLayerOverrides(fence));
    EXPECT_TRUE(KyXRefLayerPropertyOverride::hasXRefLayerOverride(fence, L"color"));
    EXPECT_FALSE(KyXRefLayerPropertyOverride::hasXRefLayerOverride(fence, L"IsLocked"));
    EXPECT_FALSE(KyXRefLayerPropertyOverride::hasAnyXRefLayerOverrides(gate));
    EXPECT_FALSE(KyXRefLayerPropertyOverride::hasAnyXRefLayerOverrides(window)) << "not a layer";
    EXPECT_FALSE(KyXRefLayerPropertyOverride::hasAnyXRefLayerOverrides(KyDbObjectId()));

    {
        KyDbObjectPointer<KyDbLayerTableRecord> open(fence, KyDb::kForWrite);
        EXPECT_TRUE(KyXRefLayerPropertyOverride::hasAnyXRefLayerOverrides(fence))
            << "answers while the caller has the layer open";
        EXPECT_EQ(open->setIsLocked(true), Kyro::eOk);
        EXPECT_EQ(open->setColor(indexColor(4)), Kyro::eOk);
        ASSERT_EQ(open->xrefOverrides().length(), 3);
        EXPECT_EQ(open->xrefOverrides()[2], KyString(L"IsLocked")) << "each noted once, in order";
    }
    ASSERT_EQ(changeWalls([](KyDbLayerTableRecord* layer) { return layer->setIsLocked(true); }),
              Kyro::eOk);
    EXPECT_FALSE(KyXRefLayerPropertyOverride::hasAnyXRefLayerOverrides(walls));

    auto* loose = new KyDbLayerTableRecord();
    loose->setName(L"Site|Loose");
    loose->setIsOff(true);
    EXPECT_FALSE(loose->hasXrefOverrides()) << "a layer not in a database notes nothing";
    delete loose;
    EXPECT_EQ(kydbOpenObjectCount(), 0);
}

}  // namespace
}  // namespace dbtest
