// Two reactors every collection test attaches:
// - CollectionSpy writes each notification as one line, in the order
//   received, so that a test asserts the whole sequence after the act:
//   "itemsChanged added=[Dashed] removed=[]", "itemsModified [Dashed]",
//   "collectionReset", "currentItemChanged Dashed", "activeChanged true".
// - ContractChecker checks each notification against the collection's state
//   as it stands: after itemsChanged(added, removed) the items are the old
//   ones less `removed` plus `added`; removed items can still be read during
//   the call; a reset and a change never come from one update; nothing is
//   reported twice (an item added that was there, one removed that wasn't, an
//   activity or a current item told that did not change); a modified or
//   current item is one of the items (the current item may stand outside
//   them where the collection says so: World among the UCS planes). A failure
//   is added to the running test.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "kydi/KyDiCollectionReactor.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiManager.h"
#include "kydi/KyDiManagerReactor.h"
#include "kydi/KyDiObservableCollection.h"

namespace kytest {

inline std::string itemName(KyDiDynamicObject* item) {
    return item != nullptr ? KyDiGetItemName(item).utf8() : std::string("null");
}

inline std::string itemList(const KyDiItemArray& items) {
    std::string text = "[";
    for (int i = 0; i < items.length(); ++i) {
        text += (i > 0 ? ", " : "") + itemName(items[i]);
    }
    return text + "]";
}

class CollectionSpy : public KyDiCollectionReactor {
public:
    explicit CollectionSpy(KyDiObservableCollection* collection) : m_collection(collection) {
        m_collection->addReactor(this);
    }
    ~CollectionSpy() override { m_collection->removeReactor(this); }
    CollectionSpy(const CollectionSpy&) = delete;
    CollectionSpy& operator=(const CollectionSpy&) = delete;

    void itemsChanged(const KyDiItemArray& added, const KyDiItemArray& removed) override {
        lines.push_back("itemsChanged added=" + itemList(added) + " removed=" + itemList(removed));
    }
    void itemsModified(const KyDiItemArray& modified) override {
        lines.push_back("itemsModified " + itemList(modified));
    }
    void collectionReset() override { lines.push_back("collectionReset"); }
    void currentItemChanged(KyDiDynamicObject* item) override {
        lines.push_back("currentItemChanged " + itemName(item));
    }
    void activeChanged(bool active) override {
        lines.push_back(std::string("activeChanged ") + (active ? "true" : "false"));
    }

    // The lines since the last take.
    std::vector<std::string> take() { return std::exchange(lines, {}); }

    std::vector<std::string> lines;

private:
    KyDiObservableCollection* m_collection;
};

class ContractChecker : public KyDiCollectionReactor, public KyDiManagerReactor {
public:
    // Where the current item stands.
    enum class Current { kAmongItems, kAnywhere };

    explicit ContractChecker(KyDiObservableCollection* collection, std::string name = "",
                             Current current = Current::kAmongItems)
        : m_collection(collection),
          m_name(std::move(name)),
          m_currentAnywhere(current == Current::kAnywhere) {
        m_items = snapshot();
        m_current = m_collection->getCurrentItem();
        m_collection->addReactor(this);
        KyDiManager::addReactor(static_cast<KyDiManagerReactor*>(this));
    }
    ~ContractChecker() override {
        m_collection->removeReactor(this);
        KyDiManager::removeReactor(static_cast<KyDiManagerReactor*>(this));
    }
    ContractChecker(const ContractChecker&) = delete;
    ContractChecker& operator=(const ContractChecker&) = delete;

    // Every change the collection made has been told: what it holds is what
    // its reactors were given. Call after a pass.
    void expectInStep() const {
        EXPECT_EQ(m_items, snapshot()) << m_name << ": the items changed without a report";
        EXPECT_EQ(m_current, m_collection->getCurrentItem())
            << m_name << ": the current item changed without a report";
        const std::vector<KyDiDynamicObject*> items = snapshot();
        EXPECT_TRUE(m_current == nullptr || m_currentAnywhere ||
                    std::find(items.begin(), items.end(), m_current) != items.end())
            << m_name << ": the current item is no item";
    }
    int notifications() const { return m_count; }

    void refreshStarting() override { m_stage = kNone; }
    void refreshEnded() override { m_stage = kNone; }

    void itemsChanged(const KyDiItemArray& added, const KyDiItemArray& removed) override {
        enter(kChanged, "itemsChanged");
        EXPECT_FALSE(added.isEmpty() && removed.isEmpty()) << m_name << ": an empty change";
        std::vector<KyDiDynamicObject*> expected = m_items;
        for (int i = 0; i < removed.length(); ++i) {
            // Still alive: reading it must not fault.
            KyDiGetItemName(removed[i]);
            const auto found = std::find(expected.begin(), expected.end(), removed[i]);
            if (found == expected.end()) {
                ADD_FAILURE() << m_name << ": removed " << itemName(removed[i])
                              << ", which was not there";
                continue;
            }
            expected.erase(found);
        }
        for (int i = 0; i < added.length(); ++i) {
            if (std::find(expected.begin(), expected.end(), added[i]) != expected.end()) {
                ADD_FAILURE() << m_name << ": added " << itemName(added[i]) << " twice";
            }
            expected.push_back(added[i]);
        }
        expectSameItems(expected, snapshot());
        m_items = snapshot();
    }
    void itemsModified(const KyDiItemArray& modified) override {
        enter(kModified, "itemsModified");
        for (int i = 0; i < modified.length(); ++i) {
            EXPECT_NE(std::find(m_items.begin(), m_items.end(), modified[i]), m_items.end())
                << m_name << ": modified " << itemName(modified[i]) << " is no item";
            for (int j = i + 1; j < modified.length(); ++j) {
                EXPECT_NE(modified[i], modified[j]) << m_name << ": modified twice";
            }
        }
    }
    void collectionReset() override {
        enter(kReset, "collectionReset");
        m_items = snapshot();
    }
    void currentItemChanged(KyDiDynamicObject* item) override {
        enter(kCurrent, "currentItemChanged");
        EXPECT_EQ(item, m_collection->getCurrentItem()) << m_name;
        EXPECT_TRUE(item == nullptr || m_currentAnywhere ||
                    std::find(m_items.begin(), m_items.end(), item) != m_items.end())
            << m_name << ": the current item " << itemName(item) << " is no item";
        m_current = item;
    }
    void activeChanged(bool active) override {
        enter(kActive, "activeChanged");
        EXPECT_EQ(active, m_collection->isActive()) << m_name;
        EXPECT_NE(std::optional<bool>(active), m_active)
            << m_name << ": the same activity told twice";
        m_active = active;
    }

private:
    // The order of the notifications of one update.
    enum Stage { kNone, kReset, kChanged, kModified, kActive, kCurrent };

    std::vector<KyDiDynamicObject*> snapshot() const {
        const KyDiItemArray& items = m_collection->getItems();
        return std::vector<KyDiDynamicObject*>(items.begin(), items.end());
    }
    void expectSameItems(std::vector<KyDiDynamicObject*> expected,
                         std::vector<KyDiDynamicObject*> actual) const {
        std::sort(expected.begin(), expected.end());
        std::sort(actual.begin(), actual.end());
        EXPECT_EQ(expected, actual) << m_name << ": the items are not the old ones changed";
    }
    // A notification of an earlier stage than the last one starts another
    // update; within one update a reset and a change exclude each other.
    void enter(Stage stage, const char* what) {
        ++m_count;
        const bool sameUpdate = m_stage != kNone && stage > m_stage;
        if (sameUpdate && ((m_stage == kReset && stage == kChanged) ||
                           (m_stage == kReset && stage == kModified))) {
            ADD_FAILURE() << m_name << ": " << what << " in the update that reset";
        }
        m_stage = stage;
    }

    KyDiObservableCollection* m_collection;
    std::string m_name;
    bool m_currentAnywhere;
    std::vector<KyDiDynamicObject*> m_items;
    // What was told last; unknown before the first report.
    std::optional<bool> m_active;
    KyDiDynamicObject* m_current = nullptr;
    Stage m_stage = kNone;
    int m_count = 0;
};

}  // namespace kytest
