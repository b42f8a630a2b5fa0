// The colour list: ten fixed entries named by the host's colour service, then
// every colour that was current or was added, kept across documents; its
// tracker adds the drawing's current colour and writes a colour directly.
#include <gtest/gtest.h>

#include "KyRefDocument.h"
#include "collections/CollectionFixture.h"
#include "currency/DataItemCurrencyTrackerBase.h"
#include "db/KyAxDocLock.h"
#include "db/KyCmColor.h"
#include "db/KyDbDatabase.h"
#include "kydi/KyDiColorCollection.h"
#include "kydi/KyDiDataItemFactory.h"
#include "kydi/KyDiEffectiveValue.h"
#include "manager/KnownCollectionRegistry.h"
#include "manager/KyDiManagerState.h"
#include "rx/KyRxValue.h"
#include "support/ColorValues.h"

namespace {

using kytest::CollectionSpy;
using kytest::ContractChecker;
using kytest::indexColor;
using kytest::itemName;
using kytest::trueColor;
using Lines = std::vector<std::string>;

class Colors : public kytest::CollectionFixture {
protected:
    using CollectionFixture::CollectionFixture;

    static KyDiColorCollection* colors() {
        return dynamic_cast<KyDiColorCollection*>(known(L"COLOR"));
    }
    static void setColor(KyDbDatabase* database, const KyCmColor& color) {
        const KyAxDocLock lock(database);
        ASSERT_EQ(database->setCecolor(color), Kyro::eOk);
    }
};

const Lines kFixed = {"None",  "ByLayer", "ByBlock", "red",     "yellow",
                      "green", "cyan",    "blue",    "magenta", "white"};

TEST_F(Colors, TheFixedEntriesComeFirstAndAColourIsAddedOnceInDescendingOrderOfNames) {
    KyDiColorCollection* list = colors();
    ASSERT_NE(list, nullptr);
    pass();
    ContractChecker checker(list, "COLOR");
    CollectionSpy spy(list);
    EXPECT_EQ(names(list), kFixed);

    KyDiDynamicObject* teal = list->addItem(trueColor(0, 128, 128));
    EXPECT_EQ(itemName(teal), "0,128,128");
    EXPECT_EQ(names(list).back(), "0,128,128") << "in the list when the call returns";
    EXPECT_EQ(list->addItem(trueColor(0, 128, 128)), teal);
    EXPECT_EQ(list->addItem(indexColor(KyCmColor::kACIbyLayer)), list->getItems()[1])
        << "ByLayer is a fixed entry";
    pass();
    EXPECT_EQ(spy.take(), (Lines{"itemsChanged added=[0,128,128] removed=[]"}));

    list->addItem(trueColor(200, 0, 0));
    list->addItem(indexColor(40));
    pass();
    EXPECT_EQ(spy.take(), (Lines{"itemsChanged added=[200,0,0, 40] removed=[]"}));
    Lines expected = kFixed;
    expected.insert(expected.end(), {"40", "200,0,0", "0,128,128"});
    EXPECT_EQ(names(list), expected);
    pass();
    EXPECT_EQ(spy.take(), Lines{});
    checker.expectInStep();
}

TEST_F(Colors, TheCurrentColourEntersTheListAndAColourIsMadeCurrentWithoutACommand) {
    KyDiColorCollection* list = colors();
    pass();
    ContractChecker checker(list, "COLOR");
    CollectionSpy spy(list);
    EXPECT_EQ(itemName(list->getCurrentItem()), "ByLayer");
    type(L"CECOLOR\nrgb:10,20,30\n");
    pass();
    EXPECT_EQ(spy.take(),
              (Lines{"itemsChanged added=[10,20,30] removed=[]", "currentItemChanged 10,20,30"}));

    list->setCurrentItem(list->getItems()[3]);
    EXPECT_TRUE(db()->cecolor() == indexColor(1)) << "written at once";
    EXPECT_EQ(sentTexts(), std::vector<std::wstring>{});
    pass();
    EXPECT_EQ(spy.take(), (Lines{"currentItemChanged red"}));

    // A colour item from elsewhere gets its place in the list.
    const KyCmColor mine = trueColor(1, 2, 3);
    list->setCurrentItem(createDataItem(mine.colorNameForDisplay(), KyRxValue(mine)));
    pass();
    EXPECT_EQ(spy.take(),
              (Lines{"itemsChanged added=[1,2,3] removed=[]", "currentItemChanged 1,2,3"}));

    KyDiEffectiveValue value;
    value.kind = KyDiEffectiveValue::kColor;
    value.color = indexColor(KyCmColor::kACIbyBlock);
    auto* tracker = static_cast<DataItemCurrencyTrackerBase*>(
        KnownCollectionRegistry::getCurrencyTracker(L"COLOR", false));
    EXPECT_EQ(tracker->findItem(value), list->getItems()[2]);
    value.kind = KyDiEffectiveValue::kObjectId;
    EXPECT_EQ(tracker->findItem(value), nullptr);
    EXPECT_NE(kydiManagerState().sysVars.count(L"DISPLAYEDWHITECOLOR"), 0U)
        << "kept alive by the tracker";
    checker.expectInStep();
}

TEST_F(Colors, ThePaletteOutlivesItsDocumentsAndOnlyAResetWithNewColoursIsTold) {
    KyRefDocument* first = host.documents().current();
    KyRefDocument* second = host.documents().newDocument();
    host.documents().makeCurrent(first);
    KyDiColorCollection* list = colors();
    pass();
    ContractChecker checker(list, "COLOR");
    CollectionSpy spy(list);

    // The drawing behind gets a colour the list lacks.
    setColor(second->database(), indexColor(40));
    host.documents().makeCurrent(second);
    pass();
    EXPECT_EQ(spy.take(), (Lines{"collectionReset", "currentItemChanged 40"}));
    host.documents().makeCurrent(first);
    pass();
    EXPECT_EQ(spy.take(), (Lines{"currentItemChanged ByLayer"})) << "no new colour, no reset";

    host.documents().closeDocument(second);
    host.documents().closeDocument(first);
    host.documents().releaseClosedDocuments();
    pass();
    EXPECT_EQ(spy.take(), (Lines{"activeChanged false", "currentItemChanged null"}));
    EXPECT_EQ(names(list).size(), kFixed.size() + 1) << "40 stays";
    checker.expectInStep();
}

class ColorsWithoutService : public Colors {
protected:
    ColorsWithoutService()
        : Colors([] {
              KyRefHostOptions options = onManualClock();
              options.colorService = false;
              return options;
          }()) {}
};

TEST_F(ColorsWithoutService, TheListStaysEmptyAndTheCurrentColourStandsOutsideIt) {
    KyDiColorCollection* list = colors();
    pass();
    ContractChecker checker(list, "COLOR", ContractChecker::Current::kAnywhere);
    EXPECT_TRUE(list->isActive());
    EXPECT_EQ(names(list), Lines{});
    EXPECT_EQ(itemName(list->getCurrentItem()), "ByLayer");
    type(L"CECOLOR\n3\n");
    pass();
    EXPECT_EQ(names(list), Lines{});
    EXPECT_EQ(itemName(list->getCurrentItem()), "green");
    checker.expectInStep();
}

}  // namespace
