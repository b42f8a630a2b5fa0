// The static interface objects of the layer: built at load, before the layer
// starts, and held to their slot order; and the answer of the dynamic block
// question for each kind of entity.
#include <gtest/gtest.h>

#include "db/KyAxDocLock.h"
#include "db/KyDbBlockReference.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLine.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbSymbolTable.h"
#include "manager/RefHostFixture.h"
#include "manager/host/IKyDbDynBlockReferenceHost.h"
#include "manager/host/IKyDiCustomContextHost.h"
#include "manager/host/IKyDiSymbolTableRegisterHost.h"
#include "support/VirtualSlot.h"

TEST(StaticHostObjects, StandBeforeTheLayerStartsAndAfterItStops) {
    EXPECT_NE(IKyDiCustomContextHost::instance(), nullptr);
    EXPECT_NE(IKyDiSymbolTableRegisterHost::instance(), nullptr);
    EXPECT_NE(IKyDbDynBlockReferenceHost::instance(), nullptr);

    KyRefHost host;
    KyDiManager::initialize(&host);
    KyDiManager::uninitialize();
    EXPECT_NE(IKyDiCustomContextHost::instance(), nullptr);
    EXPECT_NE(IKyDiSymbolTableRegisterHost::instance(), nullptr);
    EXPECT_NE(IKyDbDynBlockReferenceHost::instance(), nullptr);
}

#if KYTEST_HAS_VIRTUAL_SLOTS

// The context module's destructor comes first; the other two put their one
// operation ahead of the destructor.
TEST(StaticHostObjects, InterfacesKeepTheirSlots) {
    using kytest::slotOf;
    EXPECT_EQ(slotOf(&IKyDiCustomContextHost::registerClasses), 2);
    EXPECT_EQ(slotOf(&IKyDiCustomContextHost::unregisterClasses), 3);
    EXPECT_EQ(slotOf(&IKyDiCustomContextHost::registerContextFactories), 4);
    EXPECT_EQ(slotOf(&IKyDiSymbolTableRegisterHost::registerDataItemFactories), 0);
    EXPECT_EQ(slotOf(&IKyDbDynBlockReferenceHost::isDynamicBlockReference), 0);
}

#endif

namespace {

// A drawing with a line and two references of the block "Bolt", the second
// one dynamic.
class DynamicBlockQuestion : public kytest::RefHostFixture {
protected:
    void SetUp() override {
        RefHostFixture::SetUp();
        KyDbDatabase* database = host.documents().currentDatabase();
        const KyAxDocLock lock;
        KyDbObjectPointer<KyDbSymbolTable> blocks(database->blockTableId(), KyDb::kForWrite);
        auto* bolt = new KyDbBlockTableRecord();
        bolt->setName(L"Bolt");
        KyDbObjectId boltId;
        ASSERT_EQ(blocks->add(boltId, bolt), Kyro::eOk);
        bolt->close();
        KyDbObjectId modelSpaceId;
        ASSERT_EQ(blocks->getAt(KyDbStandardContent::kModelSpaceName, modelSpaceId), Kyro::eOk);
        blocks.close();

        KyDbObjectPointer<KyDbBlockTableRecord> modelSpace(modelSpaceId, KyDb::kForWrite);
        line = append(modelSpace.object(), new KyDbLine());
        plainReference = append(modelSpace.object(), reference(boltId, false));
        dynamicReference = append(modelSpace.object(), reference(boltId, true));
    }

    // The answer for the entity `id`, open for read while it is asked.
    bool isDynamic(KyDbObjectId id) {
        KyDbObjectPointer<KyDbEntity> entity(id, KyDb::kForRead);
        EXPECT_TRUE(entity) << "the entity opens";
        return IKyDbDynBlockReferenceHost::instance()->isDynamicBlockReference(entity.object());
    }

    KyDbObjectId line;
    KyDbObjectId plainReference;
    KyDbObjectId dynamicReference;

private:
    static KyDbBlockReference* reference(KyDbObjectId blockId, bool dynamic) {
        auto* made = new KyDbBlockReference();
        EXPECT_EQ(made->setBlockTableRecord(blockId), Kyro::eOk);
        EXPECT_EQ(made->setIsDynamic(dynamic), Kyro::eOk);
        return made;
    }
    static KyDbObjectId append(KyDbBlockTableRecord* space, KyDbEntity* entity) {
        KyDbObjectId id;
        EXPECT_EQ(space->appendKyDbEntity(id, entity), Kyro::eOk);
        entity->close();
        return id;
    }
};

}  // namespace

TEST_F(DynamicBlockQuestion, OnlyAReferenceOfADynamicBlockAnswersTrue) {
    ASSERT_NE(IKyDbDynBlockReferenceHost::instance(), nullptr);
    EXPECT_FALSE(IKyDbDynBlockReferenceHost::instance()->isDynamicBlockReference(nullptr));
    EXPECT_FALSE(isDynamic(line)) << "not a block reference";
    EXPECT_FALSE(isDynamic(plainReference)) << "a block without parameters";
    EXPECT_TRUE(isDynamic(dynamicReference));
}
