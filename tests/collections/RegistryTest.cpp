// The registry of known collections: names and paths as they stand in the
// rows, the trackers the rows make, dictionaries no row knows, enumerations,
// the exported requests, and nothing after the layer stopped.
#include <gtest/gtest.h>

#include "KyRefDocument.h"
#include "collections/CollectionFixture.h"
#include "db/KyDbEnums.h"
#include "kydi/KyDiCollection.h"
#include "kydi/KyDiCurrencyTracker.h"
#include "kydi/KyDiDataItemFactory.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiObservableEnumCollection.h"
#include "manager/KnownCollectionRegistry.h"
#include "manager/KyDiManagerState.h"
#include "rx/KyRxValue.h"

namespace {

using kytest::CollectionSpy;
using kytest::ContractChecker;
using Lines = std::vector<std::string>;

class Registry : public kytest::CollectionFixture {};

TEST_F(Registry, NamesArePreciseAndEachRowServesOnceItsClassExists) {
    EXPECT_EQ(known(L"linetype"), nullptr);
    EXPECT_FALSE(kydiManagerState().knownCollections.contains(L"linetype"));
    for (const wchar_t* name :
         {L"DIMSTYLE", L"TEXTSTYLE", L"LINETYPE", L"KYRO_TABLESTYLE", L"KYRO_MLEADERSTYLE",
          L"KYRO_SECTIONVIEWSTYLE", L"KYRO_DETAILVIEWSTYLE", L"KYRO_MATERIAL", L"KYRO_LAYOUT",
          L"KYRO_PLOTSETTINGS"}) {
        EXPECT_NE(known(name), nullptr) << KyString(name).utf8();
    }
    // Each of these has a tracker but the plot settings.
    auto& trackers = kydiManagerState().currencyTrackers;
    EXPECT_NE(trackers[L"KYRO_MATERIAL"], nullptr);
    EXPECT_NE(trackers[L"KYRO_LAYOUT"], nullptr);
    EXPECT_EQ(trackers.count(L"KYRO_PLOTSETTINGS"), 0U);
    EXPECT_EQ(kytest::itemName(known(L"KYRO_LAYOUT")->getCurrentItem()), "Model");
    // A row whose class comes later answers null, as a name without a row.
    EXPECT_EQ(known(L"BLOCK"), nullptr);
    EXPECT_EQ(known(L"NOSUCHTHING"), nullptr);
}

TEST_F(Registry, TrackersAreFoundByNameAlsoWithoutAList) {
    // A known collection's, a drawing value's, an enumeration's.
    for (const wchar_t* name : {L"COLOR", L"LAYOUT", L"KYRO_LAYOUT", L"SHADOWDISPLAY"}) {
        KyDiCurrencyTracker* tracker = KyDiGetCurrencyTracker(name);
        EXPECT_NE(tracker, nullptr) << KyString(name).utf8();
        EXPECT_EQ(KnownCollectionRegistry::getCurrencyTracker(name, false), tracker);
    }
    EXPECT_NE(KyDiGetCurrencyTracker(L"LAYOUT"), KyDiGetCurrencyTracker(L"KYRO_LAYOUT"));
    EXPECT_EQ(KyDiGetCurrencyTracker(L"layout"), nullptr);
    EXPECT_EQ(KyDiGetCurrencyTracker(L"KYRO_PLOTSETTINGS"), nullptr) << "a row without a tracker";
    EXPECT_FALSE(kydiManagerState().knownCollections.contains(L"COLOR")) << "no list is made";
    stop();
    EXPECT_EQ(KyDiGetCurrencyTracker(L"COLOR"), nullptr);
}

TEST_F(Registry, PathsAreTakenAsTheRowsSpellThem) {
    EXPECT_EQ(KyDiManager::getKnownCollectionFromPath(L"/LinetypeTableId/Items"),
              known(L"LINETYPE"));
    EXPECT_EQ(KyDiManager::getKnownCollectionFromPath(L"LayoutDictionaryId/Items"),
              known(L"KYRO_LAYOUT"));
    EXPECT_EQ(KyDiManager::getKnownCollectionFromPath(L"/LayoutDictionaryId/Items"), nullptr);
    EXPECT_EQ(KyDiManager::getKnownCollectionFromPath(L"plotSettingsDictionaryId/Items"),
              known(L"KYRO_PLOTSETTINGS"));
    EXPECT_EQ(KyDiManager::getKnownCollectionFromPath(L"/NoSuchPath/Items"), nullptr);
}

TEST_F(Registry, ATrackerIsSharedByNameAndADictionaryNoRowKnowsTakesTheCallersTracker) {
    KyDiCurrencyTracker* tracker = KnownCollectionRegistry::getCurrencyTracker(L"TEXTSTYLE", true);
    ASSERT_NE(tracker, nullptr);
    EXPECT_EQ(KnownCollectionRegistry::getCurrencyTracker(L"TEXTSTYLE", false), tracker);
    known(L"TEXTSTYLE");
    EXPECT_EQ(KnownCollectionRegistry::getCurrencyTracker(L"TEXTSTYLE", false), tracker)
        << "the collection uses the tracker made before";

    EXPECT_EQ(known(L"KYRO_MATERIAL\\Nested"), nullptr) << "a name alone is not enough";
    KyDiObservableCollection* materials =
        KyDiManager::getKnownCollection(L"KYRO_MATERIAL", tracker);
    ASSERT_NE(materials, nullptr);
    KyDiObservableCollection* byPath =
        KyDiManager::getKnownCollection(L"\\\\KYRO_MATERIAL\\", tracker);
    ASSERT_NE(byPath, nullptr);
    EXPECT_EQ(names(byPath), names(materials)) << "repeated separators count as one";
    EXPECT_EQ(known(L"\\\\KYRO_MATERIAL\\"), byPath);
    // Asked again with a tracker, a name makes a new collection, which the
    // name then answers.
    KyDiObservableCollection* again =
        KyDiManager::getKnownCollection(L"\\\\KYRO_MATERIAL\\", tracker);
    EXPECT_NE(again, byPath);
    EXPECT_EQ(known(L"\\\\KYRO_MATERIAL\\"), again);
}

TEST_F(Registry, EnumerationsGiveTheirValuesAsItemsAndBitFlagsStayValues) {
    const IKyRxEnumeration* shadows = KyRxValueType::Desc<KyDb::ShadowFlags>::value().enumeration();
    KyDiCollection* collection = KyDiManager::getCollection(shadows);
    ASSERT_NE(collection, nullptr);
    EXPECT_EQ(KyDiManager::getCollection(shadows), collection);
    EXPECT_EQ(collection->getItems().length(), shadows->count());
    EXPECT_EQ(kytest::itemName(collection->getItems()[0]), "Casts and receives shadows");
    KyRxValue value(KyDb::kShadowsIgnore);
    KyDiConvertToDataItem(value);
    EXPECT_EQ(value, KyRxValue(KyDb::kShadowsIgnore)) << "flags stay a value";
    // The lineweights have a tracker of their own: their collection has a
    // current item.
    const IKyRxEnumeration* weights = KyRxValueType::Desc<KyDb::LineWeight>::value().enumeration();
    auto* lineweights =
        dynamic_cast<KyDiObservableEnumCollection*>(KyDiManager::getCollection(weights));
    ASSERT_NE(lineweights, nullptr);
    EXPECT_EQ(kytest::itemName(lineweights->getCurrentItem()), "ByLayer");
    EXPECT_EQ(KyDiManager::getCollection(nullptr), nullptr);
}

TEST_F(Registry, RequestsByNameResetOrRefillTheCollectionAtTheNextPass) {
    EXPECT_FALSE(KyDiNotifyCollectionReset(L"NOSUCHTHING"));
    EXPECT_FALSE(kydiManagerState().knownCollections.contains(L"NOSUCHTHING"));
    EXPECT_TRUE(KyDiNotifyCollectionModified(L"TEXTSTYLE")) << "made on demand";
    KyDiObservableCollection* styles = known(L"TEXTSTYLE");
    pass();
    ContractChecker checker(styles, "TEXTSTYLE");
    CollectionSpy spy(styles);
    EXPECT_TRUE(KyDiNotifyCollectionModified(L"TEXTSTYLE"));
    pass();
    EXPECT_EQ(spy.take(), Lines{}) << "a refill of an unchanged table tells nothing";
    EXPECT_TRUE(KyDiNotifyCollectionReset(L"TEXTSTYLE"));
    pass();
    EXPECT_EQ(spy.take(), (Lines{"collectionReset", "currentItemChanged Standard"}));
    KyDiNotifyRecentBlockCollectionReset();
}

TEST_F(Registry, NothingIsMadeOrAnsweredAfterTheLayerStopped) {
    known(L"LINETYPE");
    stop();
    EXPECT_EQ(known(L"LINETYPE"), nullptr);
    EXPECT_EQ(known(L"TEXTSTYLE"), nullptr);
}

}  // namespace
