// The item cache: a record's item is the same object for as long as its
// document is open, across document switches; an item whose record is erased
// lives through the pass that reports it and goes at its end; the items of a
// closed document go once it has left memory.
#include <gtest/gtest.h>

#include "db/KyAxDocLock.h"
#include "db/KyDbLine.h"
#include "db/KyDbObjectPointer.h"
#include "kydi/KyDiManagerReactor.h"
#include "objects/ItemFixture.h"

namespace {

using kytest::DeletionSpy;

// Notes, at the end of each pass, how many items had gone by then.
class PassEnd : public KyDiManagerReactor {
public:
    explicit PassEnd(const DeletionSpy& spy) : m_spy(spy) { KyDiManager::addReactor(this); }
    ~PassEnd() override { KyDiManager::removeReactor(this); }
    PassEnd(const PassEnd&) = delete;
    PassEnd& operator=(const PassEnd&) = delete;
    void refreshStarting() override { atStart.push_back(m_spy.deleted.size()); }
    void refreshEnded() override { atEnd.push_back(m_spy.deleted.size()); }
    std::vector<size_t> atStart;
    std::vector<size_t> atEnd;

private:
    const DeletionSpy& m_spy;
};

class ItemCache : public kytest::ItemFixture {
protected:
    void erase(KyDbObjectId id, bool erasing = true) {
        const KyAxDocLock lock(db());
        KyDbObjectPointer<KyDbObject> object(id, KyDb::kForWrite, true);
        ASSERT_EQ(object->erase(erasing), Kyro::eOk);
    }
};

TEST_F(ItemCache, AnIdReadThroughAWrapperIsTheSameItemAcrossADocumentSwitchAndBack) {
    const KyDbObjectId walls = addLayer(L"Walls");
    const KyDbObjectId line =
        content().addEntity<KyDbLine>([walls](KyDbLine& entity) { entity.setLayer(walls); });
    KyDiDynamicObject* lineItem = itemOf(line);
    const KyRxProperty* layer = property(lineItem, L"LayerId");
    KyRxValue first;
    KyRxValue again;
    ASSERT_EQ(layer->getValue(lineItem, first), Kyro::eOk);
    ASSERT_EQ(layer->getValue(lineItem, again), Kyro::eOk);
    KyDiDynamicObject* item = itemIn(first);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(itemIn(again), item);
    KyRefDocument* firstDocument = host.documents().current();
    host.documents().newDocument();
    KyDiManager::refresh();
    ASSERT_EQ(layer->getValue(lineItem, again), Kyro::eOk);
    EXPECT_EQ(itemIn(again), item) << "a record of a document in the background";
    host.documents().makeCurrent(firstDocument);
    KyDiManager::refresh();
    ASSERT_EQ(layer->getValue(lineItem, again), Kyro::eOk);
    EXPECT_EQ(itemIn(again), item);
}

TEST_F(ItemCache, AnErasedItemLivesThroughThePassThatReportsItAndGoesAtItsEnd) {
    const KyDbObjectId walls = addLayer(L"Walls");
    KyDiDynamicObject* item = itemOf(walls);
    const KyRxProperty* description = property(item, L"Description");
    KyDiManager::refresh();
    DeletionSpy spy;
    PassEnd passes(spy);
    erase(walls);
    EXPECT_EQ(spy.deleted.size(), 0U) << "nothing goes during the erase";
    KyRxValue value;
    EXPECT_EQ(description->getValue(item, value), Kyro::eOk) << "still readable";
    KyDiManager::refresh();
    EXPECT_EQ(passes.atStart, (std::vector<size_t>{0}));
    EXPECT_EQ(spy.count(item), 1);
    EXPECT_EQ(passes.atEnd, (std::vector<size_t>{1})) << "gone by the end of that pass";
    // The record is still erased: a new road to it makes a new item.
    EXPECT_NE(itemOf(walls), nullptr);
}

TEST_F(ItemCache, AnEraseAndItsUndoBeforeThePassKeepTheItem) {
    const KyDbObjectId walls = addLayer(L"Walls");
    KyDiDynamicObject* item = itemOf(walls);
    KyDiManager::refresh();
    DeletionSpy spy;
    erase(walls);
    erase(walls, false);
    KyDiManager::refresh();
    KyDiManager::refresh();
    EXPECT_EQ(spy.deleted.size(), 0U);
    EXPECT_EQ(itemOf(walls), item);
}

TEST_F(ItemCache, ErasedItemsOfADocumentLeftWaitForItsReturn) {
    const KyDbObjectId walls = addLayer(L"Walls");
    KyDiDynamicObject* item = itemOf(walls);
    KyDiManager::refresh();
    DeletionSpy spy;
    erase(walls);
    KyRefDocument* first = host.documents().current();
    host.documents().newDocument();
    KyDiManager::refresh();
    KyDiManager::refresh();
    EXPECT_EQ(spy.deleted.size(), 0U);
    host.documents().makeCurrent(first);
    KyDiManager::refresh();
    KyDiManager::refresh();
    EXPECT_EQ(spy.count(item), 1);
}

TEST_F(ItemCache, TheItemsOfAClosedDocumentGoOnceItHasLeftMemory) {
    const KyDbObjectId walls = addLayer(L"Walls");
    KyDiDynamicObject* item = itemOf(walls);
    KyDiDynamicObject* red = createDataItem(L"red", KyRxValue(indexColor(1)));
    DeletionSpy spy;
    host.documents().closeDocument(host.documents().current());
    EXPECT_EQ(spy.deleted.size(), 0U);
    host.documents().releaseClosedDocuments();
    KyDiManager::refresh();
    EXPECT_EQ(spy.count(item), 1);
    EXPECT_EQ(spy.count(red), 0) << "value items stay";
    EXPECT_EQ(createDataItem(L"red", KyRxValue(indexColor(1))), red);
}

TEST_F(ItemCache, EveryItemGoesWhenTheLayerStops) {
    const KyDbObjectId walls = addLayer(L"Walls");
    KyDiDynamicObject* item = itemOf(walls);
    KyDiDynamicObject* red = createDataItem(L"red", KyRxValue(indexColor(1)));
    DeletionSpy spy;
    stop();
    EXPECT_EQ(spy.count(item), 1);
    EXPECT_EQ(spy.count(red), 1);
    // The records the cache watched hear nothing more: erasing one after the
    // stop reaches no freed reactor.
    erase(walls);
}

}  // namespace
