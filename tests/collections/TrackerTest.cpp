// Trackers: which variable reports reach them, how they make an item current
// (by the row's command, or by the setter when the host has no command line),
// their reactor list, and collections that share one.
#include <gtest/gtest.h>

#include "collections/TrackerFixture.h"
#include "currency/DataItemCurrencyTracker.h"
#include "db/KyDbDatabase.h"
#include "kydi/KyDiEffectiveValue.h"
#include "kydi/KyDiFunctions.h"
#include "manager/KnownCollectionRegistry.h"
#include "manager/KyDiManagerState.h"

namespace {

using kytest::CollectionSpy;
using kytest::ContractChecker;
using Counter = kytest::CurrencyCounter;
using Lines = std::vector<std::string>;

class Trackers : public kytest::CollectionFixture {};

TEST_F(Trackers, OnlyASucceededReportOfTheWatchedVariableReachesTheReactorsInAnyCase) {
    auto* tracker = static_cast<DataItemCurrencyTracker*>(
        KnownCollectionRegistry::getCurrencyTracker(L"LINETYPE", true));
    Counter counter;
    tracker->addReactor(&counter);
    tracker->addReactor(&counter);
    host.events().raiseSysVarChanged(L"CELTYPE", false);
    EXPECT_EQ(counter.count, 0);
    host.events().raiseSysVarChanged(L"celtype", true);
    EXPECT_EQ(counter.count, 1) << "told once: a reactor stands once";
    host.events().raiseSysVarChanged(L"CLAYER", true);
    host.events().raiseSysVarChanged(L"", true);
    EXPECT_EQ(counter.count, 1);
    tracker->removeReactor(&counter);
    tracker->removeReactor(&counter);
    host.events().raiseSysVarChanged(L"CELTYPE", true);
    EXPECT_EQ(counter.count, 1);
    // A tracker without a variable hears no report, not even an empty name.
    DataItemCurrencyTracker silent(L"LINETYPE", nullptr, nullptr, nullptr, nullptr);
    silent.addReactor(&counter);
    kydiManagerState().currencyTrackers[L"SILENT"] = &silent;
    host.events().raiseSysVarChanged(L"", true);
    kydiManagerState().currencyTrackers.erase(L"SILENT");
    EXPECT_EQ(counter.count, 1);
}

TEST_F(Trackers, AnIdTrackerFindsTheItemOfARecordAndNothingElse) {
    KyDiObservableCollection* linetypes = known(L"LINETYPE");
    auto* tracker = static_cast<DataItemCurrencyTracker*>(
        KnownCollectionRegistry::getCurrencyTracker(L"LINETYPE", false));
    KyDiEffectiveValue value;
    value.kind = KyDiEffectiveValue::kObjectId;
    value.objectId = db()->celtype();
    EXPECT_EQ(tracker->findItem(value), linetypes->getCurrentItem());
    value.kind = KyDiEffectiveValue::kColor;
    EXPECT_EQ(tracker->findItem(value), nullptr);
}

TEST_F(Trackers, CollectionsThatShareATrackerLookAgainWhenOneOfThemResets) {
    KyDiCurrencyTracker* tracker = KnownCollectionRegistry::getCurrencyTracker(L"TEXTSTYLE", true);
    KyDiObservableCollection* styles = known(L"TEXTSTYLE");
    KyDiObservableCollection* second = KyDiManager::getKnownCollection(L"KYRO_TABLESTYLE", tracker);
    pass();
    ContractChecker checker(styles, "TEXTSTYLE");
    CollectionSpy spy(styles);
    CollectionSpy secondSpy(second);
    KyDiNotifyCollectionReset(L"TEXTSTYLE");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"collectionReset", "currentItemChanged Standard"}));
    EXPECT_TRUE(secondSpy.take().empty()) << "asked again, and the answer did not change";
    // A reset and a refill together are one reset; pending changes go with it.
    addTextStyle(L"Notes");
    KyDiNotifyCollectionModified(L"TEXTSTYLE");
    KyDiNotifyCollectionReset(L"TEXTSTYLE");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"collectionReset", "currentItemChanged Standard"}));
    // The host's word that the drawing changed by another road is a refill.
    addTextStyle(L"Titles");
    host.events().raiseDrawingContentChanged();
    pass();
    EXPECT_EQ(spy.take(), (Lines{"itemsChanged added=[Titles] removed=[]"}));
    checker.expectInStep();
}

TEST_F(Trackers, SetCurrentItemDoesNothingWithoutATrackerOrForAnInactiveCollection) {
    KyDiObservableCollection* pageSetups = known(L"KYRO_PLOTSETTINGS");
    KyDiObservableCollection* linetypes = known(L"LINETYPE");
    ASSERT_FALSE(pageSetups->hasTracker());
    pageSetups->setCurrentItem(nullptr);
    KyDiDynamicObject* continuous = linetypes->getItems().last();
    host.documents().closeDocument(host.documents().current());
    host.documents().releaseClosedDocuments();
    linetypes->setCurrentItem(continuous);
    EXPECT_EQ(sentTexts(), std::vector<std::wstring>{});
    EXPECT_EQ(kydiManagerState().knownCollectionRows.size(), 30U)
        << "without the point cloud module, the static rows alone";
}

class TrackersWithoutEditor : public kytest::CollectionFixture {
protected:
    TrackersWithoutEditor() : CollectionFixture(withoutEditor()) {}
};

TEST_F(TrackersWithoutEditor, ARowWithACommandWritesThroughTheSetterWithoutACommandLine) {
    const KyDbObjectId dashed = addLinetype(L"Dashed");
    KyDiObservableCollection* linetypes = known(L"LINETYPE");
    pass();
    ContractChecker checker(linetypes, "LINETYPE");
    CollectionSpy spy(linetypes);
    linetypes->setCurrentItem(linetypes->getItems().last());
    EXPECT_EQ(db()->celtype(), dashed);
    pass();
    EXPECT_EQ(spy.take(), (Lines{"currentItemChanged Dashed"}));
    checker.expectInStep();
}

}  // namespace
