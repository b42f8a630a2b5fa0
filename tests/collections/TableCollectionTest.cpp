// A symbol table as a live collection: what a client is told at each refresh
// after records come, change, go and come back by undo; when it stops
// reporting one by one and resets; and how the current item follows.
#include <gtest/gtest.h>

#include "collections/CollectionFixture.h"
#include "db/KyDbDatabase.h"

namespace {

using kytest::CollectionSpy;
using kytest::ContractChecker;
using Lines = std::vector<std::string>;

class TableCollections : public kytest::CollectionFixture {};

TEST_F(TableCollections, ANewCollectionTellsNothingUntilItsFirstUpdateThenThatItIsActive) {
    KyDiObservableCollection* linetypes = known(L"LINETYPE");
    ASSERT_NE(linetypes, nullptr);
    EXPECT_EQ(known(L"LINETYPE"), linetypes) << "one object per name";
    EXPECT_EQ(names(linetypes), (std::vector<std::string>{"ByBlock", "ByLayer", "Continuous"}));
    EXPECT_TRUE(linetypes->isActive());
    ContractChecker checker(linetypes, "LINETYPE");
    CollectionSpy spy(linetypes);
    pass();
    EXPECT_EQ(spy.take(), (Lines{"activeChanged true"}));
    pass();
    EXPECT_EQ(spy.take(), Lines{}) << "an unchanged drawing tells nothing";
    checker.expectInStep();
}

TEST_F(TableCollections, RecordsThatComeChangeGoAndComeBackByUndoAreToldOneByOne) {
    KyDiObservableCollection* linetypes = known(L"LINETYPE");
    pass();
    ContractChecker checker(linetypes, "LINETYPE");
    CollectionSpy spy(linetypes);

    const KyDbObjectId dashed = addLinetype(L"Dashed");
    EXPECT_EQ(spy.take(), Lines{}) << "nothing before the refresh";
    pass();
    EXPECT_EQ(spy.take(), (Lines{"itemsChanged added=[Dashed] removed=[]"}));
    KyDiDynamicObject* item = linetypes->getItems().last();

    rename(dashed, L"Dotted");
    describe(dashed, L"- - -");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"itemsModified [Dotted]"}));
    EXPECT_EQ(linetypes->getItems().last(), item) << "the same item object";

    erase(dashed);
    pass();
    EXPECT_EQ(spy.take(), (Lines{"itemsChanged added=[] removed=[Dotted]"}));
    type(L"U\n");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"itemsChanged added=[Dotted] removed=[]"}));
    EXPECT_EQ(names(linetypes),
              (std::vector<std::string>{"ByBlock", "ByLayer", "Continuous", "Dotted"}));
    checker.expectInStep();
}

TEST_F(TableCollections, ARecordChangedAndErasedBeforeOneUpdateIsToldOnceAsRemoved) {
    const KyDbObjectId dashed = addLinetype(L"Dashed");
    KyDiObservableCollection* linetypes = known(L"LINETYPE");
    pass();
    ContractChecker checker(linetypes, "LINETYPE");
    CollectionSpy spy(linetypes);
    describe(dashed, L"- -");
    erase(dashed);
    pass();
    EXPECT_EQ(spy.take(), (Lines{"itemsChanged added=[] removed=[Dashed]"}));
    checker.expectInStep();
}

TEST_F(TableCollections, FourItemsReportEveryChangeAndFiveItemsWithThreePendingReset) {
    addLinetype(L"One");
    KyDiObservableCollection* linetypes = known(L"LINETYPE");
    pass();
    ContractChecker checker(linetypes, "LINETYPE");
    CollectionSpy spy(linetypes);
    const std::vector<std::string> four = names(linetypes);
    ASSERT_EQ(four.size(), 4U);
    for (KyDbObjectId id : {recordOf(db()->linetypeTableId(), L"ByBlock"),
                            recordOf(db()->linetypeTableId(), L"ByLayer"),
                            recordOf(db()->linetypeTableId(), L"Continuous"),
                            recordOf(db()->linetypeTableId(), L"One")}) {
        describe(id, L"changed");
    }
    pass();
    ASSERT_EQ(spy.lines.size(), 1U);
    EXPECT_EQ(spy.take()[0].rfind("itemsModified [", 0), 0U);

    addLinetype(L"Two");
    pass();
    spy.take();
    ASSERT_EQ(names(linetypes).size(), 5U);
    // The square root of 5 is 2: two pending records are told one by one,
    // three reset the list.
    describe(recordOf(db()->linetypeTableId(), L"One"), L"again");
    describe(recordOf(db()->linetypeTableId(), L"Two"), L"again");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"itemsModified [One, Two]"}));
    describe(recordOf(db()->linetypeTableId(), L"One"), L"thrice");
    describe(recordOf(db()->linetypeTableId(), L"Two"), L"thrice");
    describe(recordOf(db()->linetypeTableId(), L"Continuous"), L"thrice");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"collectionReset", "currentItemChanged ByLayer"}))
        << "a reset is followed by the current item, even the same one";
    checker.expectInStep();
}

TEST_F(TableCollections, AChangeToARecordTheListLeavesOutIsDropped) {
    KyDiObservableCollection* linetypes = known(L"LINETYPE");
    const KyDbObjectId dashed = addLinetype(L"Dashed");
    pass();
    erase(dashed);
    pass();
    ContractChecker checker(linetypes, "LINETYPE");
    CollectionSpy spy(linetypes);
    // An erased record is watched (for an undo) but not listed: its change
    // tells nothing.
    describe(dashed, L"- -");
    pass();
    EXPECT_EQ(spy.take(), Lines{});
}

TEST_F(TableCollections, TheCurrentItemFollowsTheHostAndIsSetByTheRowsCommand) {
    addLinetype(L"Dashed");
    KyDiObservableCollection* linetypes = known(L"LINETYPE");
    pass();
    ContractChecker checker(linetypes, "LINETYPE");
    CollectionSpy spy(linetypes);
    EXPECT_EQ(kytest::itemName(linetypes->getCurrentItem()), "ByLayer");
    KyDiDynamicObject* dashed = linetypes->getItems().last();
    linetypes->setCurrentItem(dashed);
    EXPECT_EQ(sentTexts(), (std::vector<std::wstring>{L"'_celtype\nDashed\n"}));
    EXPECT_EQ(linetypes->getCurrentItem(), linetypes->getItems()[1]) << "not before the refresh";
    host.idle();
    pass();
    EXPECT_EQ(spy.take(), (Lines{"currentItemChanged Dashed"}));
    EXPECT_EQ(linetypes->getCurrentItem(), dashed);
    checker.expectInStep();
}

}  // namespace
