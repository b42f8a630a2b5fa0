// The trackers of values without a record: the transparency of new objects,
// the lineweight and the shadow display over their enumerations, and the
// system variables of the drawing values (written directly, never by their
// command format).
#include <gtest/gtest.h>

#include "base/KyRxResourceInstance.h"
#include "collections/TrackerFixture.h"
#include "db/KyAxDocLock.h"
#include "db/KyCmTransparency.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbEnums.h"
#include "kydi/KyDiEffectiveValue.h"
#include "kydi/KyDiObservableEnumCollection.h"
#include "rx/KyRxValue.h"

namespace {

using kytest::itemName;
using Counter = kytest::CurrencyCounter;
using Texts = std::vector<std::wstring>;

KyDiEffectiveValue transparencyValue(const KyCmTransparency& transparency) {
    KyDiEffectiveValue value;
    value.kind = KyDiEffectiveValue::kTransparency;
    value.transparency = transparency;
    return value;
}

KyCmTransparency byMethod(KyCmTransparency::TransparencyMethod method) {
    KyCmTransparency transparency;
    transparency.setMethod(method);
    return transparency;
}

class ValueTrackers : public kytest::TrackerFixture {
protected:
    using TrackerFixture::TrackerFixture;

    static KyDiObservableEnumCollection* lineweights() {
        return dynamic_cast<KyDiObservableEnumCollection*>(KyDiManager::getCollection(
            KyRxValueType::Desc<KyDb::LineWeight>::value().enumeration()));
    }
    static KyDiCollection* shadows() {
        return KyDiManager::getCollection(
            KyRxValueType::Desc<KyDb::ShadowFlags>::value().enumeration());
    }
};

TEST_F(ValueTrackers, TransparenciesAreNamedByTheirPercentageOrReservedNameAndWrittenDirectly) {
    KyRxResourceInstance::setLanguage(L"de");
    DataItemCurrencyTrackerBase* transparency = tracker(L"TRANSPARENCY");
    EXPECT_EQ(itemName(transparency->getCurrentItem()), "VonLayer");
    EXPECT_EQ(
        itemName(transparency->findItem(transparencyValue(byMethod(KyCmTransparency::kByBlock)))),
        "VonBlock");
    KyRxResourceInstance::setLanguage(L"");
    EXPECT_EQ(itemName(transparency->findItem(transparencyValue(KyCmTransparency(255)))), "0");
    EXPECT_EQ(itemName(transparency->findItem(transparencyValue(KyCmTransparency(0)))), "100");
    KyDiDynamicObject* half = transparency->findItem(transparencyValue(KyCmTransparency(127)));
    EXPECT_EQ(itemName(half), "50");
    KyDiEffectiveValue color;
    color.kind = KyDiEffectiveValue::kColor;
    EXPECT_EQ(transparency->findItem(color), nullptr);

    const KyAxDocLock lock(db());
    transparency->setCurrentItem(half);
    EXPECT_TRUE(db()->cetransparency() == KyCmTransparency(127));
    EXPECT_EQ(sentTexts(), Texts{}) << "no command";
    transparency->setCurrentItem(valueItem(KyRxValue(byMethod(KyCmTransparency::kErrorValue))));
    EXPECT_TRUE(db()->cetransparency() == KyCmTransparency(127)) << "an unread value is no value";
    transparency->setCurrentItem(nullptr);
    EXPECT_EQ(transparency->getCurrentItem(), half);
}

TEST_F(ValueTrackers, ALineweightLeavesAsTheCommandAndIsCurrentOnceTheHostRanIt) {
    KyDiObservableEnumCollection* weights = lineweights();
    ASSERT_NE(weights, nullptr);
    Counter counter;
    weights->addReactor(&counter);
    EXPECT_EQ(itemName(weights->getCurrentItem()), "ByLayer");
    KyDiDynamicObject* quarter = weights->getItems()[10];
    ASSERT_EQ(itemName(quarter), "0.25 mm");
    weights->setCurrentItem(quarter);
    EXPECT_EQ(sentWithFlags(), (Texts{L"'_celweight\n25\n (0 0 1)"}));
    pass();
    EXPECT_EQ(itemName(weights->getCurrentItem()), "ByLayer") << "until the host is idle";
    EXPECT_EQ(counter.count, 0);
    host.idle();
    pass();
    EXPECT_EQ(weights->getCurrentItem(), quarter);
    EXPECT_EQ(counter.count, 1);
    weights->removeReactor(&counter);

    KyDiEffectiveValue value;
    value.kind = KyDiEffectiveValue::kLineWeight;
    value.lineWeight = KyDb::kLnWt050;
    EXPECT_EQ(itemName(tracker(L"LINEWEIGHT")->findItem(value)), "0.50 mm");
    value.kind = KyDiEffectiveValue::kObjectId;
    EXPECT_EQ(tracker(L"LINEWEIGHT")->findItem(value), nullptr);
}

TEST_F(ValueTrackers, TheShadowDisplayIsAPlainListWhoseTrackerIsReachedByName) {
    KyDiCollection* list = shadows();
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(dynamic_cast<KyDiObservableEnumCollection*>(list), nullptr);
    DataItemCurrencyTrackerBase* shadow = tracker(L"SHADOWDISPLAY");
    EXPECT_EQ(shadow->getCurrentItem(), list->getItems()[0]);
    shadow->setCurrentItem(list->getItems()[3]);
    EXPECT_EQ(sentWithFlags(), (Texts{L"'_cshadow\n3\n (0 0 1)"}));
    host.idle();
    EXPECT_EQ(itemName(shadow->getCurrentItem()), "Ignore shadows");
}

TEST_F(ValueTrackers, ASystemVariableTrackerWritesDirectlyAndKeepsOneItem) {
    DataItemCurrencyTrackerBase* scale = tracker(L"LINETYPESCALE");
    KyDiDynamicObject* current = scale->getCurrentItem();
    ASSERT_NE(current, nullptr);
    EXPECT_EQ(current->value()->text().utf8(), "1");
    type(L"CELTSCALE\n2\n");
    pass();
    EXPECT_EQ(scale->getCurrentItem(), current);
    EXPECT_EQ(current->value()->text().utf8(), "2");

    scale->setCurrentItem(valueItem(KyRxValue(0.5)));
    EXPECT_EQ(hostValue(L"CELTSCALE"), L"0.5");
    DataItemCurrencyTrackerBase* edges = tracker(L"VSEDGELEX");
    EXPECT_EQ(edges->commandFormat(), KyString(L"'_vsedgele\n%d\n"));
    edges->setCurrentItem(valueItem(KyRxValue(short{4})));
    EXPECT_EQ(hostValue(L"VSEDGELEX"), L"4");
    EXPECT_EQ(sentTexts(), Texts{}) << "the command formats are never sent";
    EXPECT_EQ(tracker(L"SCALELIST")->getCurrentItem(), nullptr) << "no list of scales yet";
}

class ValueTrackersWithoutEditor : public ValueTrackers {
protected:
    ValueTrackersWithoutEditor() : ValueTrackers(withoutEditor()) {}
};

TEST_F(ValueTrackersWithoutEditor, ALineweightIsWrittenDirectlyWithoutACommandLine) {
    KyDiObservableEnumCollection* weights = lineweights();
    weights->setCurrentItem(weights->getItems()[10]);
    EXPECT_EQ(db()->celweight(), KyDb::kLnWt025);
}

}  // namespace
