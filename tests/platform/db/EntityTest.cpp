// Entities: what they take from their database, setters by name, the
// geometry they answer, their whole state through undo, copy and clone, and
// block references with their attributes.
#include <gtest/gtest.h>

#include <memory>
#include <numbers>

#include "DbTestSupport.h"
#include "db/KyDbArc.h"
#include "db/KyDbAttribute.h"
#include "db/KyDbBlockReference.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbCircle.h"
#include "db/KyDbDimStyleTableRecord.h"
#include "db/KyDbDimension.h"
#include "db/KyDbEllipse.h"
#include "db/KyDbHostApplicationServices.h"
#include "db/KyDbLeader.h"
#include "db/KyDbLine.h"
#include "db/KyDbMLeader.h"
#include "db/KyDbMLeaderStyle.h"
#include "db/KyDbMText.h"
#include "db/KyDbPoint.h"
#include "db/KyDbPolyline.h"
#include "db/KyDbText.h"
#include "db/KyDbTextStyleTable.h"
#include "db/KyDbTextStyleTableRecord.h"
#include "db/KyDbUnknownEntity.h"
#include "db/KyDbViewport.h"

namespace dbtest {
namespace {

KyCmColor indexColor(unsigned short index) {
    KyCmColor color;
    color.setColorIndex(index);
    return color;
}

class EntityTest : public DbTest {
protected:
    EntityTest() : walls(addLayer(L"Walls")) {}

    template <typename T>
    KyDbObjectPointer<T> open(KyDbObjectId id, KyDb::OpenMode mode = KyDb::kForRead) {
        return KyDbObjectPointer<T>(id, mode, true);
    }

    KyDbObjectId textStyle(const wchar_t* name) {
        KyDbObjectPointer<KyDbTextStyleTable> table(db->textStyleTableId(), KyDb::kForWrite);
        auto* style = new KyDbTextStyleTableRecord();
        style->setName(name);
        KyDbObjectId id;
        table->add(id, style);
        style->close();
        return id;
    }

    // A block "Door" and a reference to it in model space with two attributes.
    KyDbObjectId referenceWithAttributes(KyDbObjectId& first, KyDbObjectId& second) {
        {
            KyDbObjectPointer<KyDbSymbolTable> blocks(db->blockTableId(), KyDb::kForWrite);
            auto* door = new KyDbBlockTableRecord();
            door->setName(L"Door");
            blocks->add(door);
            door->close();
        }
        const KyDbObjectId id = addEntity(new KyDbBlockReference());
        auto ref = open<KyDbBlockReference>(id, KyDb::kForWrite);
        ref->setBlockTableRecord(L"door");
        auto* width = new KyDbAttribute(L"WIDTH", L"90");
        ref->appendAttribute(first, width);
        width->close();
        auto* height = new KyDbAttribute(L"HEIGHT", L"210");
        ref->appendAttribute(second, height);
        height->close();
        return id;
    }

    KyDbObjectId walls;
};

TEST_F(EntityTest, AnAppendedEntityTakesTheCurrentItemsOfItsDatabase) {
    const KyDbObjectId style = textStyle(L"Notes");
    ASSERT_EQ(db->setClayer(walls), Kyro::eOk);
    ASSERT_EQ(db->setTextstyle(style), Kyro::eOk);
    const KyDbObjectId line = addEntity(new KyDbLine());
    const KyDbObjectId text = addEntity(new KyDbText());
    const KyDbObjectId dimension = addEntity(new KyDbDimension());
    const KyDbObjectId leader = addEntity(new KyDbMLeader());

    auto entity = open<KyDbLine>(line);
    EXPECT_EQ(entity->layerId(), walls);
    EXPECT_EQ(entity->linetypeId(), db->celtype());
    EXPECT_EQ(entity->materialId(), db->cmaterial());
    EXPECT_TRUE(entity->color().isByLayer());
    EXPECT_EQ(entity->lineWeight(), KyDb::kLnWtByLayer);
    EXPECT_EQ(entity->plotStyleName(), KyString(L"ByLayer"));
    EXPECT_EQ(entity->blockId(), blockId(L"*Model_Space"));
    EXPECT_EQ(open<KyDbText>(text)->textStyle(), style);
    EXPECT_EQ(open<KyDbDimension>(dimension)->dimensionStyle(), db->dimstyle());
    EXPECT_EQ(open<KyDbMLeader>(leader)->MLeaderStyle(), db->mleaderstyle());
}

TEST_F(EntityTest, SettersByNameFindRecordsInAnyCase) {
    const KyDbObjectId line = addEntity(new KyDbLine());
    auto entity = open<KyDbLine>(line, KyDb::kForWrite);
    EXPECT_EQ(entity->setLayer(L"WALLS"), Kyro::eOk);
    EXPECT_EQ(entity->layerId(), walls);
    EXPECT_EQ(entity->setLinetype(L"continuous"), Kyro::eOk);
    EXPECT_EQ(entity->setMaterial(L"global"), Kyro::eOk);
    EXPECT_EQ(entity->setLayer(L"Roof"), Kyro::eKeyNotFound);
    EXPECT_EQ(entity->setLayer(L""), Kyro::eInvalidInput);
    EXPECT_EQ(entity->layerId(), walls) << "a failed lookup changes nothing";
    EXPECT_EQ(entity->setColorIndex(1), Kyro::eOk);
    EXPECT_EQ(entity->color(), indexColor(1));
    EXPECT_EQ(entity->setColorIndex(300), Kyro::eInvalidInput);
    entity.close();

    KyDbText loose;
    EXPECT_EQ(loose.setTextStyle(L"Standard"), Kyro::eNotInDatabase)
        << "a new entity without a working database has nowhere to look";
    kydbHostApplicationServices()->setWorkingDatabase(db);
    EXPECT_EQ(loose.setTextStyle(L"standard"), Kyro::eOk);
    EXPECT_EQ(loose.textStyle(), db->textstyle());
}

TEST_F(EntityTest, GeometryAnswersWhatItsMembersMake) {
    const KyDbLine line(KyGePoint3d(0, 0, 0), KyGePoint3d(3, 4, 0));
    EXPECT_DOUBLE_EQ(line.length(), 5.0);
    const KyDbArc arc(KyGePoint3d(), 2.0, 270.0, 90.0);
    EXPECT_DOUBLE_EQ(arc.totalAngle(), 180.0) << "from 270 through 0 to 90";
    EXPECT_NEAR(arc.length(), 2.0 * std::numbers::pi, 1e-12);
    const KyDbCircle circle(KyGePoint3d(), 2.0);
    EXPECT_NEAR(circle.area(), 4.0 * std::numbers::pi, 1e-12);

    KyDbPolyline polyline;
    polyline.addVertexAt(0, KyGePoint3d(0, 0, 0));
    polyline.addVertexAt(1, KyGePoint3d(4, 0, 0));
    polyline.addVertexAt(2, KyGePoint3d(4, 3, 0));
    EXPECT_DOUBLE_EQ(polyline.length(), 7.0);
    polyline.setClosed(true);
    EXPECT_DOUBLE_EQ(polyline.length(), 12.0);
    EXPECT_EQ(polyline.addVertexAt(5, KyGePoint3d()), Kyro::eInvalidIndex);
    EXPECT_EQ(polyline.removeVertexAt(1), Kyro::eOk);
    EXPECT_EQ(polyline.numVerts(), 2);

    KyDbEllipse ellipse;
    EXPECT_EQ(ellipse.setRadiusRatio(1.5), Kyro::eInvalidInput);
    EXPECT_EQ(ellipse.setMajorAxis(KyGePoint3d()), Kyro::eInvalidInput);
    KyDbCircle refused;
    EXPECT_EQ(refused.setRadius(0.0), Kyro::eInvalidInput);
    EXPECT_DOUBLE_EQ(refused.radius(), 1.0);
}

TEST_F(EntityTest, StylesOfDimensionsAndMultileadersGiveTheirTextStyles) {
    const KyDbObjectId notes = textStyle(L"Notes");
    {
        KyDbObjectPointer<KyDbDimStyleTableRecord> style(db->dimstyle(), KyDb::kForWrite);
        style->setDimtxsty(notes);
        KyDbObjectPointer<KyDbMLeaderStyle> leaderStyle(db->mleaderstyle(), KyDb::kForWrite);
        leaderStyle->setTextStyleId(notes);
    }
    auto* dimension = new KyDbDimension();
    KyArray<KyGePoint3d> points;
    points.append(KyGePoint3d(0, 0, 0));
    points.append(KyGePoint3d(0, 12, 0));
    dimension->setPoints(points);
    const KyDbObjectId dimensionId = addEntity(dimension);
    const KyDbObjectId leaderId = addEntity(new KyDbMLeader());

    auto dim = open<KyDbDimension>(dimensionId, KyDb::kForWrite);
    EXPECT_EQ(dim->textStyle(), notes);
    EXPECT_FALSE(dim->hasMeasurement());
    EXPECT_DOUBLE_EQ(dim->measurement(), 12.0) << "the points give it without a kept value";
    dim->setMeasurement(11.5);
    EXPECT_DOUBLE_EQ(dim->measurement(), 11.5);
    dim->clearMeasurement();
    EXPECT_DOUBLE_EQ(dim->measurement(), 12.0);
    EXPECT_EQ(open<KyDbMLeader>(leaderId)->textStyleId(), notes);
}

// Changes each kind of entity in one group; undo puts every member back,
// redo makes the change again.
TEST_F(EntityTest, EveryEntityKindComesBackWholeThroughUndoAndRedo) {
    const KyDbObjectId line = addEntity(new KyDbLine());
    const KyDbObjectId circle = addEntity(new KyDbCircle());
    const KyDbObjectId text = addEntity(new KyDbText());
    const KyDbObjectId polyline = addEntity(new KyDbPolyline());
    const KyDbObjectId viewport = addEntity(new KyDbViewport(), L"*Paper_Space");
    auto* unknown = new KyDbUnknownEntity();
    unknown->setTypeName(L"SOLID");
    unknown->setData(L"{\"corners\": 3}");
    const KyDbObjectId solid = addEntity(unknown);

    ASSERT_EQ(undo()->beginUndoGroup(), Kyro::eOk);
    {
        auto l = open<KyDbLine>(line, KyDb::kForWrite);
        l->setEndPoint(KyGePoint3d(10, 0, 0));
        l->setLayer(walls);
        l->setColorIndex(3);
        l->setLinetypeScale(2.0);
        l->setVisibility(false);
        auto c = open<KyDbCircle>(circle, KyDb::kForWrite);
        c->setRadius(5.0);
        auto t = open<KyDbText>(text, KyDb::kForWrite);
        t->setTextString(L"Hello");
        t->setRotation(45.0);
        auto p = open<KyDbPolyline>(polyline, KyDb::kForWrite);
        p->addVertexAt(0, KyGePoint3d(1, 2, 3));
        auto v = open<KyDbViewport>(viewport, KyDb::kForWrite);
        v->setOn(false);
        auto s = open<KyDbUnknownEntity>(solid, KyDb::kForWrite);
        s->setData(L"{}");
    }
    ASSERT_EQ(undo()->endUndoGroup(), Kyro::eOk);

    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    {
        auto l = open<KyDbLine>(line);
        EXPECT_EQ(l->endPoint(), KyGePoint3d());
        EXPECT_EQ(l->layerId(), layerId(L"0"));
        EXPECT_TRUE(l->color().isByLayer());
        EXPECT_DOUBLE_EQ(l->linetypeScale(), 1.0);
        EXPECT_TRUE(l->visibility());
        EXPECT_DOUBLE_EQ(open<KyDbCircle>(circle)->radius(), 1.0);
        EXPECT_TRUE(open<KyDbText>(text)->textString().isEmpty());
        EXPECT_EQ(open<KyDbPolyline>(polyline)->numVerts(), 0);
        EXPECT_TRUE(open<KyDbViewport>(viewport)->isOn());
        EXPECT_EQ(open<KyDbUnknownEntity>(solid)->data(), KyString(L"{\"corners\": 3}"));
    }
    ASSERT_EQ(undo()->redo(), Kyro::eOk);
    auto l = open<KyDbLine>(line);
    EXPECT_EQ(l->endPoint(), KyGePoint3d(10, 0, 0));
    EXPECT_EQ(l->color(), indexColor(3));
    EXPECT_DOUBLE_EQ(open<KyDbText>(text)->rotation(), 45.0);
    EXPECT_EQ(open<KyDbPolyline>(polyline)->points().first(), KyGePoint3d(1, 2, 3));
    EXPECT_EQ(open<KyDbUnknownEntity>(solid)->data(), KyString(L"{}"));
}

TEST_F(EntityTest, AnUndoneEntityChangeIsToldAsAChange) {
    const KyDbObjectId line = addEntity(new KyDbLine());
    ObjectSpy spy(log);
    watch(line, &spy);
    open<KyDbLine>(line, KyDb::kForWrite)->setStartPoint(KyGePoint3d(1, 1, 0));
    EXPECT_EQ(log.lines(),
              (Lines{"openedForModify KyDbLine", "modified KyDbLine", "objectClosed KyDbLine"}));
    log.clear();
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_EQ(log.lines(),
              (Lines{"modifyUndone KyDbLine", "modified KyDbLine", "objectClosed KyDbLine"}));
}

TEST_F(EntityTest, CloneAndCopyTakeTheWholeStateOfTheSameKind) {
    KyDbMText text;
    text.setContents(L"Two\\Plines");
    text.setWidth(12.0);
    text.setTextHeight(2.5);
    text.setColorIndex(4);
    std::unique_ptr<KyRxObject> copy(text.clone());
    const auto* clone = kyrxCast<KyDbMText>(copy.get());
    ASSERT_NE(clone, nullptr);
    EXPECT_EQ(clone->contents(), text.contents());
    EXPECT_DOUBLE_EQ(clone->width(), 12.0);
    EXPECT_DOUBLE_EQ(clone->textHeight(), 2.5);
    EXPECT_EQ(clone->color(), indexColor(4));
    EXPECT_TRUE(clone->objectId().isNull()) << "a clone is a new object";

    KyDbText other;
    EXPECT_EQ(other.copyFrom(&text), Kyro::eNotThatKindOfClass);
    KyDbMText target;
    EXPECT_EQ(target.copyFrom(&text), Kyro::eOk);
    EXPECT_EQ(target.contents(), text.contents());
}

TEST_F(EntityTest, AReferenceOwnsItsAttributesAndTakesThemAlongWhenErased) {
    KyDbObjectId width;
    KyDbObjectId height;
    const KyDbObjectId reference = referenceWithAttributes(width, height);
    {
        auto ref = open<KyDbBlockReference>(reference);
        EXPECT_EQ(ref->blockTableRecord(), blockId(L"Door"));
        KyArray<KyDbObjectId> ids;
        ref->getAttributeIds(ids);
        ASSERT_EQ(ids.length(), 2);
        EXPECT_EQ(ids[0], width);
        EXPECT_EQ(ids[1], height);
        auto attribute = open<KyDbAttribute>(height);
        EXPECT_EQ(attribute->tag(), KyString(L"HEIGHT"));
        EXPECT_EQ(attribute->textString(), KyString(L"210"));
        EXPECT_EQ(attribute->ownerId(), reference);
        EXPECT_EQ(attribute->blockId(), blockId(L"*Model_Space")) << "the reference's block";
    }

    ASSERT_EQ(setErased(reference, true), Kyro::eOk);
    EXPECT_TRUE(width.isErased());
    EXPECT_TRUE(height.isErased());
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_FALSE(reference.isErased());
    EXPECT_FALSE(width.isErased());
    EXPECT_FALSE(height.isErased());
    ASSERT_EQ(setErased(reference, true), Kyro::eOk);
    ASSERT_EQ(setErased(reference, false), Kyro::eOk);
    EXPECT_FALSE(height.isErased()) << "an unerase brings them back too";
}

TEST_F(EntityTest, AnAttributeGivesItsHandleToAReadersObject) {
    KyDbObjectId width;
    KyDbObjectId height;
    referenceWithAttributes(width, height);
    const KyDbHandle taken(height.handle());

    KyDbObjectPointer<KyDbLayerTable> table(db->layerTableId(), KyDb::kForWrite);
    auto* layer = new KyDbLayerTableRecord();
    layer->setName(L"FromFile");
    KyDbObjectId layerId;
    ASSERT_EQ(table->add(layerId, layer, taken), Kyro::eOk);
    layer->close();
    EXPECT_EQ(layerId.handle(), taken.value());
    EXPECT_NE(height.handle(), taken.value()) << "the attribute moved to a new handle";
    KyDbObjectId found;
    ASSERT_EQ(db->getKyDbObjectId(found, KyDbHandle(height.handle())), Kyro::eOk);
    EXPECT_EQ(found, height);
}

TEST_F(EntityTest, AttributesNeedAReferenceInADatabaseOpenForWrite) {
    KyDbBlockReference loose;
    KyDbObjectId id;
    auto* attribute = new KyDbAttribute(L"TAG", L"");
    EXPECT_EQ(loose.appendAttribute(id, attribute), Kyro::eNotInDatabase);
    const KyDbObjectId reference = addEntity(new KyDbBlockReference());
    EXPECT_EQ(open<KyDbBlockReference>(reference)->appendAttribute(id, attribute),
              Kyro::eWasNotOpenForWrite);
    delete attribute;
    EXPECT_EQ(KyDbAttribute().setTag(L""), Kyro::eInvalidInput);
}

}  // namespace
}  // namespace dbtest
