// Reference paths from data items: each step is found among the members an
// item shows, and a data item read on the way becomes the host's value again
// before the next step opens what it stands for. And the probe that records
// the class chain the query engine walks.
#include <gtest/gtest.h>

#include <memory>

#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbLine.h"
#include "db/KyDbObjectPointer.h"
#include "kydi/KyDiFunctions.h"
#include "objects/ItemFixture.h"
#include "reflection/KyDiMemberQueryContext.h"
#include "reflection/PropertyWrapping.h"

namespace {

class References : public kytest::ItemFixture {};

TEST_F(References, APathFromAnItemFollowsTheItemsItReadsToTheirRecords) {
    const KyDbObjectId line = content().addEntity<KyDbLine>();
    KyDiDynamicObject* item = itemOf(line);
    const KyRxPropertyBase* color = KyDiManager::parseReference(L"LayerId/Color", item);
    ASSERT_NE(color, nullptr);
    EXPECT_STREQ(color->name(), L"Color");
    EXPECT_EQ(color->owner(), KyDbLayerTableRecord::desc()) << "the layer's own member";
    // A first step is one of the members the item shows.
    const KyRxPropertyBase* length = KyDiManager::parseReference(L"Length", item);
    ASSERT_NE(length, nullptr);
    EXPECT_EQ(length, KyDiFindMember(item, L"Length"));
    EXPECT_EQ(KyDiManager::parseReference(L"NoSuchMember", item), nullptr);
    const std::unique_ptr<KyDiDynamicObject> named(createDataItem(L"Half", KyRxValue(0.5)));
    EXPECT_EQ(KyDiManager::parseReference(L"Name", named.get()),
              KyDiFindMember(named.get(), L"Name"));
}

TEST_F(References, TheProbeRecordsTheClassChainLessTheClassItLeavesOut) {
    const KyDbObjectId line = content().addEntity<KyDbLine>();
    KyDbObjectPointer<KyDbLine> opened(line, KyDb::kForRead);
    KyDiMemberQueryContext all;
    EXPECT_EQ(KyRxMemberQueryEngine::theEngine()->newMemberIterator(opened.object(), &all),
              nullptr);
    ASSERT_GE(all.classes().size(), 3U);
    EXPECT_EQ(all.classes()[0], KyDbLine::desc());
    KyDiMemberQueryContext withoutLines(KyDbLine::desc());
    KyRxMemberQueryEngine::theEngine()->newMemberIterator(opened.object(), &withoutLines);
    EXPECT_EQ(withoutLines.classes().size(), all.classes().size() - 1);
    EXPECT_EQ(withoutLines.classes()[0], all.classes()[1]);
}

}  // namespace
