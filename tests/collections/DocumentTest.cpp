// Collections and documents: a switch resets a collection from the document
// in front and back again; closing the last document leaves it empty and
// inactive; a database that leaves memory under a collection detaches it at
// once; a pass the throttle holds back updates nothing; a reactor may leave
// while it is told.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>

#include "KyRefDocument.h"
#include "collections/CollectionFixture.h"
#include "collections/KyDiImpLineTypeCollection.h"
#include "db/KyDbDatabase.h"

namespace {

using kytest::CollectionSpy;
using kytest::ContractChecker;
using Lines = std::vector<std::string>;

class Documents : public kytest::CollectionFixture {};

TEST_F(Documents, ASwitchResetsFromTheDocumentInFrontAndBack) {
    addLinetype(L"Dashed");
    KyDiObservableCollection* linetypes = known(L"LINETYPE");
    pass();
    ContractChecker checker(linetypes, "LINETYPE");
    CollectionSpy spy(linetypes);
    KyRefDocument* first = host.documents().current();
    host.documents().newDocument();
    pass();
    EXPECT_EQ(spy.take(), (Lines{"collectionReset", "currentItemChanged ByLayer"}));
    EXPECT_EQ(names(linetypes), (std::vector<std::string>{"ByBlock", "ByLayer", "Continuous"}));
    host.documents().makeCurrent(first);
    pass();
    EXPECT_EQ(spy.take(), (Lines{"collectionReset", "currentItemChanged ByLayer"}));
    EXPECT_EQ(names(linetypes).back(), "Dashed");
    checker.expectInStep();
}

TEST_F(Documents, ClosingTheLastDocumentLeavesTheCollectionEmptyAndInactive) {
    KyDiObservableCollection* linetypes = known(L"LINETYPE");
    pass();
    ContractChecker checker(linetypes, "LINETYPE");
    CollectionSpy spy(linetypes);
    host.documents().closeDocument(host.documents().current());
    host.documents().releaseClosedDocuments();
    pass();
    EXPECT_EQ(spy.take(),
              (Lines{"collectionReset", "activeChanged false", "currentItemChanged null"}));
    EXPECT_FALSE(linetypes->isActive());
    EXPECT_TRUE(linetypes->getItems().isEmpty());
    host.documents().newDocument();
    pass();
    EXPECT_EQ(spy.take(),
              (Lines{"collectionReset", "activeChanged true", "currentItemChanged ByLayer"}));
    checker.expectInStep();
}

TEST_F(Documents, ADatabaseLeavingMemoryUnderACollectionDetachesItAtOnce) {
    // A collection no registry holds hears its table leave memory itself.
    auto* body =
        new KyDiImpLineTypeCollection(L"LINETYPE", nullptr, &KyDbDatabase::linetypeTableId);
    KyDiObservableCollection collection(body);
    body->bindToDocument(host.documents().currentDocument());
    ASSERT_EQ(names(&collection).size(), 3U);
    host.documents().closeDocument(host.documents().current());
    host.documents().releaseClosedDocuments();
    EXPECT_EQ(body->boundDocument(), kKyDiUnboundDocument);
    EXPECT_TRUE(collection.getItems().isEmpty());
    collection.destroy();
}

TEST_F(Documents, APassTheThrottleHoldsBackUpdatesNothing) {
    KyDiObservableCollection* linetypes = known(L"LINETYPE");
    pass();
    ContractChecker checker(linetypes, "LINETYPE");
    CollectionSpy spy(linetypes);
    addLinetype(L"Dashed");
    host.events().raiseRefreshNeeded(false);
    EXPECT_EQ(spy.take(), Lines{}) << "within 250 ms of the last pass";
    waitPastTheThrottle();
    host.events().raiseRefreshNeeded(false);
    EXPECT_EQ(spy.take(), (Lines{"itemsChanged added=[Dashed] removed=[]"}));
}

// Leaves the collection when it is told, or takes another reactor off.
class Leaver : public KyDiCollectionReactor {
public:
    Leaver(KyDiObservableCollection* collection, std::vector<std::string>& lines, std::string name,
           KyDiCollectionReactor* victim = nullptr)
        : m_collection(collection), m_lines(lines), m_name(std::move(name)), m_victim(victim) {
        m_collection->addReactor(this);
    }
    void itemsChanged(const KyDiItemArray&, const KyDiItemArray&) override {
        m_lines.push_back(m_name);
        m_collection->removeReactor(m_victim != nullptr ? m_victim : this);
    }

private:
    KyDiObservableCollection* m_collection;
    std::vector<std::string>& m_lines;
    std::string m_name;
    KyDiCollectionReactor* m_victim;
};

TEST_F(Documents, AReactorMayLeaveOrTakeAnotherOffWhileItIsTold) {
    KyDiObservableCollection* linetypes = known(L"LINETYPE");
    pass();
    ContractChecker checker(linetypes, "LINETYPE");
    std::vector<std::string> lines;
    Leaver self(linetypes, lines, "self");
    Leaver later(linetypes, lines, "later");
    Leaver taker(linetypes, lines, "taker", &later);
    addLinetype(L"Dashed");
    pass();
    // Told in the order added, on the list as it stood: "later" is still told.
    EXPECT_EQ(lines, (std::vector<std::string>{"self", "later", "taker"}));
    lines.clear();
    addLinetype(L"Dotted");
    pass();
    EXPECT_EQ(lines, (std::vector<std::string>{"taker"}));
    linetypes->removeReactor(&taker);
}

class Batches : public kytest::CollectionFixture {};

TEST_F(Batches, WhatIsPendingWhenABatchStartsIsDroppedAndWhatItChangesIsToldAtItsEnd) {
    KyDiObservableCollection* linetypes = known(L"LINETYPE");
    const KyDbObjectId dashed = addLinetype(L"Dashed");
    pass();
    ContractChecker checker(linetypes, "LINETYPE");
    CollectionSpy spy(linetypes);
    // Pending, and held back by the throttle: the batch starts with it.
    describe(dashed, L"- -");
    const std::filesystem::path file = std::filesystem::temp_directory_path() /
                                       ("kydi-batch-" + std::to_string(getpid()) + ".txt");
    {
        std::ofstream batch(file);
        batch << "RECORD\n_New\nLINETYPE\nDotted\n";
    }
    type((L"BATCH\n" + file.wstring() + L"\n").c_str());
    std::filesystem::remove(file);
    EXPECT_EQ(spy.take(), (Lines{"itemsChanged added=[Dotted] removed=[]"}))
        << "told when the batch ends; the change before it is not";
    checker.expectInStep();
}

// Forces a pass from inside the report of a removal, and reads the removed
// items afterwards.
class NestedRefresher : public KyDiCollectionReactor {
public:
    void itemsChanged(const KyDiItemArray&, const KyDiItemArray& removed) override {
        KyDiManager::refresh();
        for (int i = 0; i < removed.length(); ++i) {
            names.push_back(kytest::itemName(removed[i]));
        }
    }
    std::vector<std::string> names;
};

class Nesting : public kytest::CollectionFixture {};

TEST_F(Nesting, APassForcedWhileARemovalIsToldLeavesTheRemovedItemsAlive) {
    KyDiObservableCollection* linetypes = known(L"LINETYPE");
    const KyDbObjectId dashed = addLinetype(L"Dashed");
    pass();
    NestedRefresher nested;
    linetypes->addReactor(&nested);
    ContractChecker checker(linetypes, "LINETYPE");
    erase(dashed);
    pass();
    linetypes->removeReactor(&nested);
    EXPECT_EQ(nested.names, (std::vector<std::string>{"Dashed"}));
    checker.expectInStep();
}

TEST_F(Nesting, ACollectionMadeWhileItsDocumentIsDestroyedIsBoundToNone) {
    struct MakeOnReset : KyDiCollectionReactor {
        void collectionReset() override {
            if (made == nullptr) {
                made = KyDiManager::getKnownCollection(L"TEXTSTYLE");
            }
        }
        KyDiObservableCollection* made = nullptr;
    } maker;
    KyDiObservableCollection* linetypes = known(L"LINETYPE");
    pass();
    linetypes->addReactor(&maker);
    host.documents().closeDocument(host.documents().current());
    linetypes->removeReactor(&maker);
    ASSERT_NE(maker.made, nullptr);
    EXPECT_FALSE(maker.made->isActive());
    EXPECT_TRUE(maker.made->getItems().isEmpty());
    host.documents().releaseClosedDocuments();
}

}  // namespace
