// The render preset tracker: the host's render service names the current
// preset, the tracker makes one current through it by name, and it watches
// the current preset so that a change of its settings makes it current
// afresh (the host takes the settings up again).
#include <gtest/gtest.h>

#include "KyRefRenderService.h"
#include "collections/CollectionFixture.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbRenderSettings.h"
#include "kydi/KyDiCurrencyTracker.h"
#include "kydi/KyDiDataItemFactory.h"
#include "manager/KnownCollectionRegistry.h"
#include "rx/KyRxValue.h"

namespace {

using kytest::CollectionSpy;
using kytest::ContractChecker;
using Lines = std::vector<std::string>;

class RenderPresets : public kytest::CollectionFixture {
protected:
    static KyDiCurrencyTracker* tracker() {
        return KnownCollectionRegistry::getCurrencyTracker(L"RENDER_PRESETS", true);
    }
    std::vector<std::string> applied() {
        std::vector<std::string> names;
        for (const KyString& name : host.renderService()->appliedPresets()) {
            names.push_back(name.utf8());
        }
        return names;
    }
    void setOutputSize(KyDbObjectId preset, const wchar_t* size) {
        const KyAxDocLock lock(db());
        KyDbObjectPointer<KyDbRenderSettings> settings(preset, KyDb::kForWrite);
        ASSERT_EQ(settings->setOutputSize(size), Kyro::eOk);
    }
};

TEST_F(RenderPresets, APresetIsMadeCurrentByNameThroughTheService) {
    const KyDbObjectId studio = addRenderPreset(L"Studio");
    tracker()->setCurrentItem(createDataItem(KyString(), KyRxValue(studio)));
    EXPECT_EQ(applied(), (Lines{"Studio"}));
    tracker()->setCurrentItem(nullptr);
    EXPECT_EQ(applied(), (Lines{"Studio"}));
    EXPECT_EQ(sentTexts(), std::vector<std::wstring>{}) << "no command";
    EXPECT_EQ(kytest::itemName(tracker()->getCurrentItem()), "Studio");
}

TEST_F(RenderPresets, TheCurrentPresetIsWatchedAndAChangedOneIsMadeCurrentAfresh) {
    const KyDbObjectId studio = addRenderPreset(L"Studio");
    const KyDbObjectId daylight = addRenderPreset(L"Daylight");
    KyDiObservableCollection* presets = known(L"RENDER_PRESETS");
    EXPECT_EQ(presets->getCurrentItem(), nullptr) << "the host's own Medium has no record";
    pass();
    ContractChecker checker(presets, "RENDER_PRESETS");
    CollectionSpy spy(presets);

    host.renderService()->setCurrentPreset(KyString(L"Studio"));
    pass();
    EXPECT_EQ(spy.take(), (Lines{"currentItemChanged Studio"}));
    setOutputSize(studio, L"1920x1080");
    pass();
    EXPECT_EQ(applied(), (Lines{"Studio", "Studio"})) << "taken up again";
    spy.take();

    host.renderService()->setCurrentPreset(KyString(L"Daylight"));
    pass();
    EXPECT_EQ(spy.take(), (Lines{"currentItemChanged Daylight"}));
    setOutputSize(studio, L"800x600");
    pass();
    EXPECT_EQ(applied(), (Lines{"Studio", "Studio", "Daylight"})) << "Studio is watched no more";
    setOutputSize(daylight, L"800x600");
    pass();
    EXPECT_EQ(applied(), (Lines{"Studio", "Studio", "Daylight", "Daylight"}));
    spy.take();

    erase(daylight);
    pass();
    pass();
    EXPECT_EQ(spy.take(),
              (Lines{"itemsChanged added=[] removed=[Daylight]", "currentItemChanged null"}));
    checker.expectInStep();
}

}  // namespace
