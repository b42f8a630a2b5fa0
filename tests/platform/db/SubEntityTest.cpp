// Sub-entities of a selection: the path that names one, opening an
// attribute of a block reference through the provider and closing it, the
// answer for an object without such a part; and references of dynamic
// blocks.
#include <gtest/gtest.h>

#include "DbTestSupport.h"
#include "db/KyDbAttribute.h"
#include "db/KyDbBlockReference.h"
#include "db/KyDbDynBlockReference.h"
#include "db/KyDbFullSubentPath.h"
#include "db/KyDbLine.h"
#include "db/KyDbSubEntityProvider.h"

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
