// The trackers of the current layout and its plot settings: the host's plot
// settings and layout events reach them and only them; each shows its value
// in one item for its whole life; RASTERDPI falls back on the system variable;
// a layout is made current by its name, and the layouts' list follows.
#include <gtest/gtest.h>

#include "collections/TrackerFixture.h"
#include "rx/KyRxValue.h"

namespace {

using kytest::CollectionSpy;
using kytest::ContractChecker;
using kytest::itemName;
using Counter = kytest::CurrencyCounter;
using Lines = std::vector<std::string>;

std::string valueText(KyDiDynamicObject* item) {
    return item != nullptr && item->value() != nullptr ? item->value()->text().utf8() : "null";
}

class PlotTrackers : public kytest::TrackerFixture {
protected:
    using TrackerFixture::TrackerFixture;
};

TEST_F(PlotTrackers, PlotSettingsAndLayoutEventsReachTheirTrackersOnly) {
    Counter plot;
    Counter layout;
    Counter other;
    const std::vector<std::pair<const wchar_t*, Counter*>> watched = {
        {L"PLOTSTYLETABLE", &plot},
        {L"KYRO_PLOTSTYLENAME", &plot},
        {L"PLOTATTACHMENTSPACE", &plot},
        {L"PLOTSTYLETABLETYPE", &plot},
        {L"LAYOUT", &layout},
        {L"KYRO_LAYOUT", &layout},
        {L"PAGESETUP", &layout},
        {L"RASTERDPI", &layout},
        {L"LINETYPESCALE", &other},
        {L"TRANSPARENCY", &other}};
    for (const auto& [name, counter] : watched) {
        tracker(name)->addReactor(counter);
    }
    host.events().raisePlotSettingsChanged();
    EXPECT_EQ(plot.count, 4);
    host.events().raisePlotSettingsChangedForLayout(L"Layout1");
    EXPECT_EQ(plot.count, 8);
    EXPECT_EQ(layout.count, 0);
    host.events().raiseLayoutChanged();
    EXPECT_EQ(layout.count, 4);
    EXPECT_EQ(plot.count, 8);
    EXPECT_EQ(other.count, 0);
    for (const auto& [name, counter] : watched) {
        tracker(name)->removeReactor(counter);
    }
}

TEST_F(PlotTrackers, TheRasterResolutionIsTheVariablesWhileTheLayoutHasNone) {
    DataItemCurrencyTrackerBase* dpi = tracker(L"RASTERDPI");
    KyDiDynamicObject* current = dpi->getCurrentItem();
    EXPECT_EQ(valueText(current), "300");
    dpi->setCurrentItem(valueItem(KyRxValue(short{600})));
    EXPECT_EQ(dpi->getCurrentItem(), current);
    EXPECT_EQ(valueText(current), "600") << "the layout's own";
    EXPECT_EQ(hostValue(L"RASTERDPI"), L"300");
    EXPECT_EQ(sentTexts(), std::vector<std::wstring>{});
}

TEST_F(PlotTrackers, ALayoutIsMadeCurrentByNameAndTheLayoutsFollow) {
    KyDiObservableCollection* layouts = known(L"KYRO_LAYOUT");
    pass();
    ContractChecker checker(layouts, "KYRO_LAYOUT");
    CollectionSpy spy(layouts);
    EXPECT_EQ(itemName(layouts->getCurrentItem()), "Model");
    DataItemCurrencyTrackerBase* name = tracker(L"LAYOUT");
    DataItemCurrencyTrackerBase* space = tracker(L"PLOTATTACHMENTSPACE");
    DataItemCurrencyTrackerBase* pageSetup = tracker(L"PAGESETUP");
    KyDiDynamicObject* current = name->getCurrentItem();
    EXPECT_EQ(valueText(current), "Model");
    EXPECT_EQ(valueText(space->getCurrentItem()), "Model");
    KyDiDynamicObject* setup = pageSetup->getCurrentItem();
    EXPECT_EQ(valueText(tracker(L"PLOTSTYLETABLETYPE")->getCurrentItem()), "Color-dependent");

    name->setCurrentItem(valueItem(KyRxValue(KyString(L"Layout1"))));
    // The name is CTAB's, as the next pass reads it.
    pass();
    EXPECT_EQ(spy.take(), (Lines{"currentItemChanged Layout1"}));
    EXPECT_EQ(name->getCurrentItem(), current);
    EXPECT_EQ(valueText(current), "Layout1");
    EXPECT_EQ(valueText(space->getCurrentItem()), "Layout");
    EXPECT_EQ(pageSetup->getCurrentItem(), setup) << "one item for the tracker's life";
    EXPECT_EQ(sentTexts(), std::vector<std::wstring>{});
    checker.expectInStep();
}

class PlotTrackersWithoutPlotService : public PlotTrackers {
protected:
    PlotTrackersWithoutPlotService()
        : PlotTrackers([] {
              KyRefHostOptions options = onManualClock();
              options.plotService = false;
              return options;
          }()) {}
};

TEST_F(PlotTrackersWithoutPlotService, TheVariableAloneHoldsTheResolutionAndPlotSettingsAreNone) {
    DataItemCurrencyTrackerBase* dpi = tracker(L"RASTERDPI");
    dpi->setCurrentItem(valueItem(KyRxValue(short{150})));
    EXPECT_EQ(hostValue(L"RASTERDPI"), L"150");
    EXPECT_EQ(tracker(L"PAGESETUP")->getCurrentItem(), nullptr);
    EXPECT_EQ(tracker(L"PLOTSTYLETABLE")->getCurrentItem(), nullptr);
    EXPECT_EQ(valueText(tracker(L"PLOTATTACHMENTSPACE")->getCurrentItem()), "")
        << "an item of no value";
}

}  // namespace
