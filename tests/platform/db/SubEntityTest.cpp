// Sub-entities of a selection: the path that names one, opening an
// attribute of a block reference through the provider and closing it, the
// faces, edges and vertices of entities as parts with the members a palette
// shows, the answer for an object without such a part; and references of
// dynamic blocks.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <numbers>
#include <string>

#include "DbTestSupport.h"
#include "db/KyDbArc.h"
#include "db/KyDbAttribute.h"
#include "db/KyDbBlockReference.h"
#include "db/KyDbCircle.h"
#include "db/KyDbDynBlockReference.h"
#include "db/KyDbEdgePart.h"
#include "db/KyDbFacePart.h"
#include "db/KyDbFullSubentPath.h"
#include "db/KyDbHatch.h"
#include "db/KyDbLine.h"
#include "db/KyDbPolyline.h"
#include "db/KyDbSubEntityProvider.h"
#include "db/KyDbVertexPart.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"
#include "rx/KyRxStandardAttributes.h"

namespace dbtest {
namespace {

class SubEntityTest : public DbTest {
protected:
    SubEntityTest() : line(addEntity(new KyDbLine())) {
        reference = addEntity(new KyDbBlockReference());
        KyDbObjectPointer<KyDbBlockReference> ref(reference, KyDb::kForWrite);
        for (const wchar_t* tag : {L"WIDTH", L"HEIGHT"}) {
            auto* attribute = new KyDbAttribute(tag, L"");
            KyDbObjectId id;
            ref->appendAttribute(id, attribute);
            attribute->close();
            attributes.append(id);
        }
    }

    KyDbObjectId line;
    KyDbObjectId reference;
    KyArray<KyDbObjectId> attributes;
};

TEST_F(SubEntityTest, APathIsCopiedAssignedAndComparedWhole) {
    const KyDbSubentId second(KyDb::kAttributeSubentType, 1);
    KyDbFullSubentPath path(reference, second);
    KyDbFullSubentPath copy(path);
    EXPECT_EQ(copy, path);
    ASSERT_EQ(copy.objectIds().length(), 1);
    EXPECT_EQ(copy.objectIds().first(), reference);
    EXPECT_EQ(copy.subentId().type(), KyDb::kAttributeSubentType);
    EXPECT_EQ(copy.subentId().index(), 1);

    KyDbFullSubentPath other(line, KyDbSubentId(KyDb::kEdgeSubentType, 1));
    EXPECT_NE(other, path);
    other = path;
    EXPECT_EQ(other, path);
    other.subentId().setIndex(0);
    EXPECT_NE(other, path) << "the part counts";
    EXPECT_TRUE(KyDbFullSubentPath().subentId().isNull());
}

TEST_F(SubEntityTest, AnAttributeOpensAsAPartOfItsReferenceAndCloses) {
    KyDbObjectPointer<KyDbBlockReference> ref(reference, KyDb::kForRead);
    KyRxObject* part = nullptr;
    ASSERT_EQ(KyDbSubEntityProvider::open(
                  ref.object(), part, KyDbSubentId(KyDb::kAttributeSubentType, 1), KyDb::kForWrite),
              Kyro::eOk);
    auto* attribute = kyrxCast<KyDbAttribute>(part);
    ASSERT_NE(attribute, nullptr);
    EXPECT_EQ(attribute->tag(), KyString(L"HEIGHT"));
    EXPECT_EQ(attribute->setTextString(L"210"), Kyro::eOk) << "opened in the mode asked for";
    EXPECT_EQ(KyDbSubEntityProvider::close(ref.object(), part), Kyro::eOk);
    EXPECT_EQ(part, nullptr);
    ref.close();
    EXPECT_EQ(kydbOpenObjectCount(), 0);

    KyDbObjectPointer<KyDbAttribute> check(attributes[1], KyDb::kForRead);
    EXPECT_EQ(check->textString(), KyString(L"210"));
}

TEST_F(SubEntityTest, AnObjectWithoutSuchAPartAnswersNullSubentity) {
    KyDbObjectPointer<KyDbBlockReference> ref(reference, KyDb::kForRead);
    KyDbObjectPointer<KyDbLine> plain(line, KyDb::kForRead);
    KyRxObject* part = reinterpret_cast<KyRxObject*>(&part);
    const KyDbSubentId attribute0(KyDb::kAttributeSubentType, 0);

    EXPECT_EQ(KyDbSubEntityProvider::open(plain.object(), part, attribute0, KyDb::kForRead),
              Kyro::eNullSubentity);
    EXPECT_EQ(part, nullptr);
    EXPECT_EQ(KyDbSubEntityProvider::open(ref.object(), part, KyDbSubentId(), KyDb::kForRead),
              Kyro::eNullSubentity)
        << "the default id names no part";
    EXPECT_EQ(KyDbSubEntityProvider::open(
                  ref.object(), part, KyDbSubentId(KyDb::kAttributeSubentType, 2), KyDb::kForRead),
              Kyro::eNullSubentity);
    EXPECT_EQ(KyDbSubEntityProvider::open(ref.object(), part,
                                          KyDbSubentId(KyDb::kFaceSubentType, 0), KyDb::kForRead),
              Kyro::eNullSubentity);
    EXPECT_EQ(Kyro::eNullSubentity, 22);
    EXPECT_EQ(KyDbSubEntityProvider::open(nullptr, part, attribute0, KyDb::kForRead),
              Kyro::eNullObjectPointer);
    EXPECT_EQ(KyDbSubEntityProvider::close(ref.object(), part), Kyro::eInvalidInput);
}

TEST_F(SubEntityTest, PartsCountTheAttributesThatAreNotErasedAndFollowTheOpenRules) {
    ASSERT_EQ(setErased(attributes[0], true), Kyro::eOk);
    KyDbObjectPointer<KyDbBlockReference> ref(reference, KyDb::kForRead);
    KyRxObject* part = nullptr;
    const KyDbSubentId first(KyDb::kAttributeSubentType, 0);
    ASSERT_EQ(KyDbSubEntityProvider::open(ref.object(), part, first, KyDb::kForRead), Kyro::eOk);
    EXPECT_EQ(kyrxCast<KyDbAttribute>(part)->tag(), KyString(L"HEIGHT"));

    KyRxObject* again = nullptr;
    EXPECT_EQ(KyDbSubEntityProvider::open(ref.object(), again, first, KyDb::kForWrite),
              Kyro::eWasOpenedForRead)
        << "a part open for read can't be opened for write as well";
    KyDbSubEntityProvider::close(ref.object(), part);
    ref.close();

    KyDbBlockReference* closed = nullptr;
    kydbOpenObject(closed, reference, KyDb::kForRead);
    closed->close();
    EXPECT_EQ(KyDbSubEntityProvider::open(closed, part, first, KyDb::kForRead),
              Kyro::eInvalidOpenState);
}

// Entities with faces, edges and vertices: a line, a closed polyline (a
// 4 by 3 rectangle), an open polyline of three points, a circle and an arc.
class EntityPartTest : public DbTest {
protected:
    EntityPartTest()
        : line(addEntity(new KyDbLine(KyGePoint3d(1, 2, 0), KyGePoint3d(4, 6, 0)))),
          rectangle(addEntity(polyline({{0, 0, 0}, {4, 0, 0}, {4, 3, 0}, {0, 3, 0}}, true))),
          path(addEntity(polyline({{0, 0, 0}, {0, 5, 0}, {2, 5, 0}}, false))),
          circle(addEntity(new KyDbCircle(KyGePoint3d(10, 0, 0), 2.0))),
          arc(addEntity(new KyDbArc(KyGePoint3d(0, 0, 0), 3.0, 0.0, 90.0))) {}

    static KyDbPolyline* polyline(std::initializer_list<KyGePoint3d> points, bool closed) {
        auto* made = new KyDbPolyline();
        KyArray<KyGePoint3d> list;
        for (const KyGePoint3d& point : points) {
            list.append(point);
        }
        made->setPoints(list);
        made->setClosed(closed);
        return made;
    }

    // Opens the part `id` of the entity `entity` (open for read) and keeps
    // it in `opened`, closed by the test.
    Kyro::ErrorStatus openPart(KyDbObjectId entity, const KyDbSubentId& id,
                               KyDb::OpenMode mode = KyDb::kForRead) {
        holder.open(entity, KyDb::kForRead);
        return KyDbSubEntityProvider::open(holder.object(), opened, id, mode);
    }
    void closePart() {
        if (opened != nullptr) {
            KyDbSubEntityProvider::close(holder.object(), opened);
        }
        holder.close();
    }
    ~EntityPartTest() override { closePart(); }

    // A member of the part as a palette reads it: its value's text, or the
    // status of a failed read.
    std::string member(const wchar_t* name) const {
        auto* engine = KyRxMemberQueryEngine::theEngine();
        const auto* property =
            kyrxCast<KyRxProperty>(engine->find(opened, name, engine->defaultContext()));
        if (property == nullptr) {
            return "no member";
        }
        KyRxValue value;
        const Kyro::ErrorStatus status = property->getValue(opened, value);
        return status == Kyro::eOk ? value.text().utf8() : "status " + std::to_string(status);
    }

    KyDbObjectId line;
    KyDbObjectId rectangle;
    KyDbObjectId path;
    KyDbObjectId circle;
    KyDbObjectId arc;
    KyDbObjectPointer<KyDbEntity> holder;
    KyRxObject* opened = nullptr;
};

KyDbSubentId edge(int index) {
    return KyDbSubentId(KyDb::kEdgeSubentType, index);
}
KyDbSubentId vertex(int index) {
    return KyDbSubentId(KyDb::kVertexSubentType, index);
}
KyDbSubentId face(int index) {
    return KyDbSubentId(KyDb::kFaceSubentType, index);
}

TEST_F(EntityPartTest, ALineHasOneEdgeAndTwoVerticesWithTheirMembers) {
    ASSERT_EQ(openPart(line, edge(0)), Kyro::eOk);
    ASSERT_NE(kyrxCast<KyDbEdgePart>(opened), nullptr);
    EXPECT_EQ(member(L"StartPoint"), "1,2,0");
    EXPECT_EQ(member(L"EndPoint"), "4,6,0");
    EXPECT_EQ(member(L"Length"), "5");
    closePart();

    ASSERT_EQ(openPart(line, vertex(1)), Kyro::eOk);
    auto* end = kyrxCast<KyDbVertexPart>(opened);
    ASSERT_NE(end, nullptr);
    EXPECT_EQ(end->entityId(), line);
    EXPECT_EQ(end->subentId(), vertex(1));
    EXPECT_EQ(member(L"Position"), "4,6,0");
    closePart();
    ASSERT_EQ(openPart(line, vertex(0)), Kyro::eOk);
    EXPECT_EQ(member(L"Position"), "1,2,0");
}

TEST_F(EntityPartTest, AClosedPolylineHasAFaceAndAClosingEdgeAnOpenOneNeither) {
    ASSERT_EQ(openPart(rectangle, face(0)), Kyro::eOk);
    ASSERT_NE(kyrxCast<KyDbFacePart>(opened), nullptr);
    EXPECT_EQ(member(L"Area"), "12");
    closePart();
    ASSERT_EQ(openPart(rectangle, edge(3)), Kyro::eOk);
    EXPECT_EQ(member(L"StartPoint"), "0,3,0");
    EXPECT_EQ(member(L"EndPoint"), "0,0,0") << "the closing segment";
    EXPECT_EQ(member(L"Length"), "3");
    closePart();
    ASSERT_EQ(openPart(rectangle, vertex(2)), Kyro::eOk);
    EXPECT_EQ(member(L"Position"), "4,3,0");
    closePart();

    ASSERT_EQ(openPart(path, edge(1)), Kyro::eOk);
    EXPECT_EQ(member(L"StartPoint"), "0,5,0");
    EXPECT_EQ(member(L"EndPoint"), "2,5,0");
    closePart();
    ASSERT_EQ(openPart(path, vertex(2)), Kyro::eOk);
    EXPECT_EQ(member(L"Position"), "2,5,0");
}

TEST_F(EntityPartTest, AHatchHasOneFacePerLoopAndNothingElse) {
    auto* made = new KyDbHatch();
    KyDbLoop outer;
    for (const KyGePoint3d& point : {KyGePoint3d(0, 0, 0), KyGePoint3d(10, 0, 0),
                                     KyGePoint3d(10, 10, 0), KyGePoint3d(0, 10, 0)}) {
        outer.append(point);
    }
    KyDbLoop hole;
    for (const KyGePoint3d& point :
         {KyGePoint3d(2, 2, 0), KyGePoint3d(4, 2, 0), KyGePoint3d(4, 5, 0)}) {
        hole.append(point);
    }
    made->appendLoop(outer);
    made->appendLoop(hole);
    const KyDbObjectId hatch = addEntity(made);
    ASSERT_EQ(openPart(hatch, face(0)), Kyro::eOk);
    EXPECT_EQ(member(L"Area"), "100");
    closePart();
    ASSERT_EQ(openPart(hatch, face(1)), Kyro::eOk);
    EXPECT_EQ(member(L"Area"), "3") << "a hole is a face of its own";
    closePart();
    EXPECT_EQ(openPart(hatch, face(2)), Kyro::eNullSubentity);
    closePart();
    EXPECT_EQ(openPart(hatch, edge(0)), Kyro::eNullSubentity);
}

TEST_F(EntityPartTest, ACircleAndAnArcHaveOneEdgeFromStartToEnd) {
    ASSERT_EQ(openPart(circle, edge(0)), Kyro::eOk);
    EXPECT_EQ(member(L"StartPoint"), "12,0,0");
    EXPECT_EQ(member(L"EndPoint"), "12,0,0") << "a circle ends where it starts";
    double length = 0.0;
    ASSERT_EQ(kyrxCast<KyDbEdgePart>(opened)->getLength(length), Kyro::eOk);
    EXPECT_DOUBLE_EQ(length, 4.0 * std::numbers::pi);
    closePart();

    ASSERT_EQ(openPart(arc, edge(0)), Kyro::eOk);
    KyGePoint3d end;
    ASSERT_EQ(kyrxCast<KyDbEdgePart>(opened)->getEndPoint(end), Kyro::eOk);
    EXPECT_EQ(end, KyGePoint3d(0, 3, 0));
    EXPECT_EQ(member(L"StartPoint"), "3,0,0");
    ASSERT_EQ(kyrxCast<KyDbEdgePart>(opened)->getLength(length), Kyro::eOk);
    EXPECT_DOUBLE_EQ(length, 1.5 * std::numbers::pi);
}

// Past the last part of each kind, and kinds an entity does not have.
TEST_F(EntityPartTest, APartPastTheLastOrOfAKindTheEntityLacksIsNullSubentity) {
    struct Case {
        KyDbObjectId* entity;
        KyDbSubentId id;
    };
    const Case cases[] = {
        {&line, edge(1)},      {&line, vertex(2)},      {&line, face(0)},      {&line, vertex(-1)},
        {&rectangle, edge(4)}, {&rectangle, vertex(4)}, {&rectangle, face(1)}, {&path, edge(2)},
        {&path, face(0)},      {&circle, edge(1)},      {&circle, vertex(0)},  {&circle, face(0)},
        {&arc, edge(1)},       {&arc, vertex(0)},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(openPart(*c.entity, c.id), Kyro::eNullSubentity)
            << labelOf(*c.entity) << " kind " << c.id.type() << " index " << c.id.index();
        EXPECT_EQ(opened, nullptr);
        closePart();
    }
    EXPECT_EQ(Kyro::eNullSubentity, 22);
    EXPECT_EQ(kydbOpenObjectCount(), 0);
}

TEST_F(EntityPartTest, APartsMembersArePlacedNamedAndReadOnly) {
    ASSERT_EQ(openPart(line, edge(0)), Kyro::eOk);
    auto* engine = KyRxMemberQueryEngine::theEngine();
    const auto* length =
        kyrxCast<KyRxProperty>(engine->find(opened, L"Length", engine->defaultContext()));
    ASSERT_NE(length, nullptr);
    EXPECT_TRUE(length->isReadOnly());
    EXPECT_NE(length->attributes().get(KyRxUiPlacementAttribute::desc()), nullptr);
    EXPECT_EQ(KyRxLocalizedNameAttribute::getLocalizedName(length).utf8(), "Length");
    EXPECT_NE(length->setValue(opened, KyRxValue(7.0)), Kyro::eOk);
    EXPECT_EQ(member(L"Length"), "5");
    EXPECT_EQ(KyRxLocalizedNameAttribute::getLocalizedName(opened->isA()).utf8(), "Edge");
    EXPECT_EQ(KyRxLocalizedNameAttribute::getLocalizedName(KyDbFacePart::desc()).utf8(), "Face");
    EXPECT_EQ(KyRxLocalizedNameAttribute::getLocalizedName(KyDbVertexPart::desc()).utf8(),
              "Vertex");
}

TEST_F(EntityPartTest, APartIsOpenInTheModeAskedForWhileItsEntityIsOpen) {
    EXPECT_EQ(openPart(line, edge(0), KyDb::kForWrite), Kyro::eWasNotOpenForWrite)
        << "a part open for write needs its entity open for write";
    EXPECT_EQ(opened, nullptr);
    closePart();
    ASSERT_EQ(openPart(line, edge(0), KyDb::kForNotify), Kyro::eOk);
    EXPECT_EQ(kyrxCast<KyDbEntityPart>(opened)->openMode(), KyDb::kForNotify);
    EXPECT_EQ(kydbOpenObjectCount(), 2) << "the entity and its part";
    closePart();
    EXPECT_EQ(kydbOpenObjectCount(), 0);
    EXPECT_EQ(openPart(line, edge(0), static_cast<KyDb::OpenMode>(7)), Kyro::eInvalidInput);
    closePart();

    {
        KyDbObjectPointer<KyDbLine> entity(line, KyDb::kForWrite);
        KyRxObject* part = nullptr;
        ASSERT_EQ(KyDbSubEntityProvider::open(entity.object(), part, edge(0), KyDb::kForWrite),
                  Kyro::eOk);
        EXPECT_EQ(kyrxCast<KyDbEntityPart>(part)->openMode(), KyDb::kForWrite);
        KyDbObjectPointer<KyDbCircle> other(circle, KyDb::kForRead);
        EXPECT_EQ(KyDbSubEntityProvider::close(other.object(), part), Kyro::eInvalidInput)
            << "a part is closed with its own entity";
        EXPECT_EQ(KyDbSubEntityProvider::close(entity.object(), part), Kyro::eOk);
        EXPECT_EQ(part, nullptr);
    }

    KyDbLine loose(KyGePoint3d(0, 0, 0), KyGePoint3d(1, 0, 0));
    KyRxObject* part = nullptr;
    EXPECT_EQ(KyDbSubEntityProvider::open(&loose, part, edge(0), KyDb::kForRead),
              Kyro::eNotInDatabase);
    EXPECT_EQ(part, nullptr);
}

TEST_F(EntityPartTest, APartReadsItsEntityAsItIsNowAndOnlyWhileItIsOpen) {
    KyDbObjectPointer<KyDbPolyline> entity(path, KyDb::kForWrite);
    KyRxObject* part = nullptr;
    ASSERT_EQ(KyDbSubEntityProvider::open(entity.object(), part, vertex(2), KyDb::kForRead),
              Kyro::eOk);
    auto* corner = kyrxCast<KyDbVertexPart>(part);
    ASSERT_EQ(entity->setPointAt(2, KyGePoint3d(3, 5, 0)), Kyro::eOk);
    KyGePoint3d position;
    ASSERT_EQ(corner->getPosition(position), Kyro::eOk);
    EXPECT_EQ(position, KyGePoint3d(3, 5, 0));
    ASSERT_EQ(entity->removeVertexAt(2), Kyro::eOk);
    EXPECT_EQ(corner->getPosition(position), Kyro::eNullSubentity) << "the vertex is gone";
    ASSERT_EQ(entity->addVertexAt(2, KyGePoint3d(2, 5, 0)), Kyro::eOk);
    entity.close();
    EXPECT_EQ(corner->getPosition(position), Kyro::eInvalidOpenState);
    delete part;
    EXPECT_EQ(kydbOpenObjectCount(), 0);
}

TEST_F(SubEntityTest, AReferenceOfADynamicBlockSaysSoFromItsIdOrItsEntity) {
    EXPECT_FALSE(KyDbDynBlockReference(reference).isDynamicBlock());
    {
        KyDbObjectPointer<KyDbBlockReference> ref(reference, KyDb::kForWrite);
        ASSERT_EQ(ref->setIsDynamic(true), Kyro::eOk);
        const KyDbDynBlockReference dynamic(ref.object());
        EXPECT_TRUE(dynamic.isDynamicBlock());
        EXPECT_EQ(dynamic.blockReferenceId(), reference);
    }
    EXPECT_TRUE(KyDbDynBlockReference(reference).isDynamicBlock());
    EXPECT_EQ(kydbOpenObjectCount(), 0) << "the helper opens nothing";

    KyDbObjectPointer<KyDbLine> plain(line, KyDb::kForRead);
    const KyDbDynBlockReference notAReference(plain.object());
    EXPECT_FALSE(notAReference.isDynamicBlock());
    EXPECT_TRUE(notAReference.blockReferenceId().isNull());
    EXPECT_FALSE(KyDbDynBlockReference(line).isDynamicBlock());
    EXPECT_FALSE(KyDbDynBlockReference(KyDbObjectId()).isDynamicBlock());
}

}  // namespace
}  // namespace dbtest
