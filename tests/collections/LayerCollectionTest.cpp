// The layers as a live collection: what follows the viewport the user works
// in (layers frozen in one viewport and not the next, layers with overrides),
// new layers, layers an external reference brings, and the current layer,
// with the question to turn an off layer on.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "KyRefDocument.h"
#include "collections/CollectionFixture.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbViewport.h"
#include "kydi/KyDiCurrencyTracker.h"
#include "kydi/KyDiLayerService.h"
#include "manager/KnownCollectionRegistry.h"

namespace {

using kytest::CollectionSpy;
using kytest::ContractChecker;
using Lines = std::vector<std::string>;

// The sample drawing: viewport 2D (second layout) freezes Text, Hatch and
// Dimensions and overrides Walls and Furniture; viewport 2E (first layout)
// overrides Walls.
class LayerCollection : public kytest::CollectionFixture {
protected:
    LayerCollection() : CollectionFixture(onManualClock(), Drawing::kNone) {}

    void SetUp() override {
        KyString error;
        ASSERT_NE(host.documents().openDocument(KyString::fromUtf8(KYDI_TEST_SAMPLE), error),
                  nullptr)
            << error.utf8();
        CollectionFixture::SetUp();
        layers = known(L"LAYER");
        ASSERT_NE(layers, nullptr);
        pass();
    }

    KyDbObjectId byHandle(std::uint64_t handle) {
        KyDbObjectId id;
        EXPECT_EQ(db()->getKyDbObjectId(id, KyDbHandle(handle)), Kyro::eOk);
        return id;
    }
    // Brings `layout` forward and enters its viewport `id`, as a user
    // clicking into it; "Model" alone shows model space.
    void workIn(const wchar_t* layout, KyDbObjectId id = KyDbObjectId()) {
        ASSERT_TRUE(host.plotService()->setLayoutByName(layout));
        if (!id.isNull()) {
            KyString reason;
            ASSERT_EQ(host.enterViewport(id, &reason), Kyro::eOk) << reason.utf8();
        }
    }
    // The viewport context reports at the end of a pass; the layers hear it
    // then and report at the next.
    void twoPasses() {
        pass();
        pass();
    }
    // The names of one itemsModified line, sorted: the pending layers come
    // in no order a user relies on.
    static std::string sortedModified(const Lines& lines) {
        if (lines.size() != 1 || lines[0].rfind("itemsModified [", 0) != 0) {
            return "not one itemsModified: " + ::testing::PrintToString(lines);
        }
        std::string list = lines[0].substr(15, lines[0].size() - 16);
        std::vector<std::string> names;
        for (std::size_t start = 0; start <= list.size();) {
            const std::size_t end = std::min(list.find(", ", start), list.size());
            names.push_back(list.substr(start, end - start));
            start = end + 2;
        }
        std::sort(names.begin(), names.end());
        std::string text;
        for (const std::string& name : names) {
            text += (text.empty() ? "" : " ") + name;
        }
        return text;
    }

    KyDiObservableCollection* layers = nullptr;
};

TEST_F(LayerCollection, ListsEveryLayerOfTheFileInTableOrderWithTheCurrentLayer) {
    EXPECT_EQ(names(layers),
              (std::vector<std::string>{"0", "Walls", "Doors", "Windows", "Furniture", "Dimensions",
                                        "Text", "Hatch", "Hidden Lines", "Construction",
                                        "Electrical", "Plumbing", "Grid",
                                        "\xC3\x89"
                                        "bauche",
                                        "Viewports", "Defpoints"}));
    EXPECT_EQ(kytest::itemName(layers->getCurrentItem()), "Walls");
}

TEST_F(LayerCollection, AViewportSwitchReportsWhatDiffersOnePassAfterTheViewportAndBack) {
    // Twenty-six layers: up to five changed ones are told one by one.
    type(L"-LAYER\n_New\nA1,A2,A3,A4,A5,A6,A7,A8,A9,A10\n\n");
    pass();
    ASSERT_EQ(layers->getItems().length(), 26);
    ContractChecker checker(layers, "LAYER");
    CollectionSpy spy(layers);
    const KyDbObjectId frozenViewport = byHandle(0x2D);
    const KyDbObjectId otherViewport = byHandle(0x2E);

    workIn(L"Details", frozenViewport);
    pass();
    EXPECT_EQ(spy.take(), Lines{}) << "the viewport reports at the end of this pass";
    pass();
    EXPECT_EQ(sortedModified(spy.take()), "Dimensions Furniture Hatch Text Walls")
        << "frozen there, and overridden there";

    // Another viewport: thawed there (3), Furniture loses its overrides and
    // Walls keeps overrides of its own.
    workIn(L"Plan", otherViewport);
    twoPasses();
    EXPECT_EQ(sortedModified(spy.take()), "Dimensions Furniture Hatch Text Walls");

    // A change of the viewport object: Walls, which has overrides there, is
    // reported again although nothing of the layer changed.
    {
        KyAxDocLock lock(db());
        KyDbObjectPointer<KyDbViewport> viewport(otherViewport, KyDb::kForWrite);
        ASSERT_EQ(viewport.openStatus(), Kyro::eOk);
        viewport->setViewHeight(viewport->viewHeight() * 2.0);
    }
    twoPasses();
    EXPECT_EQ(spy.take(), (Lines{"itemsModified [Walls]"}));

    // Model space: Walls one last time, as it has lost its overrides.
    workIn(L"Model");
    twoPasses();
    EXPECT_EQ(spy.take(), (Lines{"itemsModified [Walls]"}));
    twoPasses();
    EXPECT_EQ(spy.take(), Lines{}) << "no frozen layers and none before: nothing";
    checker.expectInStep();
}

TEST_F(LayerCollection, BindingToADocumentInAViewportReportsNothingNewOfItsOwn) {
    workIn(L"Details", byHandle(0x2D));
    twoPasses();
    host.documents().newDocument();
    twoPasses();
    ContractChecker checker(layers, "LAYER");
    CollectionSpy spy(layers);
    host.documents().makeCurrent(host.documents().at(0));
    twoPasses();
    const Lines lines = spy.take();
    ASSERT_EQ(lines.size(), 3u) << ::testing::PrintToString(lines);
    EXPECT_EQ(Lines(lines.begin(), lines.begin() + 2),
              (Lines{"collectionReset", "currentItemChanged Walls"}))
        << "the state found at the binding is no change";
    EXPECT_EQ(sortedModified({lines[2]}), "Furniture Walls")
        << "the viewport's report of the new document refreshes the overrides";
    checker.expectInStep();
}

TEST_F(LayerCollection, ANewLayerIsOneMergeAndAnAttachedReferenceBringsItsLayersNotItsLinetypes) {
    ContractChecker checker(layers, "LAYER");
    CollectionSpy spy(layers);
    KyDiObservableCollection* linetypes = known(L"LINETYPE");
    pass();
    ContractChecker linetypeChecker(linetypes, "LINETYPE");
    CollectionSpy linetypeSpy(linetypes);

    type(L"-LAYER\n_New\nFences\n\n");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"itemsChanged added=[Fences] removed=[]"}))
        << "the table's change and the reactor's append are one merge";

    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() /
        ("kydi-layers-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) + "-" +
         std::to_string(reinterpret_cast<std::uintptr_t>(this)));
    std::filesystem::create_directories(folder);
    const std::filesystem::path site = folder / "site.kyd";
    std::ofstream(site) << R"({"format": "kydrawing", "version": 1,
 "linetypes": [{"handle": "14", "name": "ByBlock"}, {"handle": "15", "name": "ByLayer"},
  {"handle": "16", "name": "Continuous"},
  {"handle": "17", "name": "FENCE", "description": "Fence", "pattern": [0.5, -0.25]}],
 "layers": [{"handle": "10", "name": "0"},
  {"handle": "20", "name": "Hedges", "color": 3, "linetype": "FENCE"}]})";
    for (const wchar_t* command : {L"-XATTACH", L"_XATTACH"}) {
        const KyString text = KyString::formatted(L"%ls\n%ls\n", command,
                                                  KyString::fromUtf8(site.string()).kwszPtr());
        type(text.kwszPtr());
        pass();
        if (std::wstring(command) == L"-XATTACH") {
            EXPECT_EQ(spy.take(), (Lines{"itemsChanged added=[site|Hedges] removed=[]"}))
                << "the reference's layers come without an append: the command's end tells";
        } else {
            EXPECT_EQ(spy.take(), Lines{}) << "attached again: nothing new";
        }
    }
    EXPECT_EQ(linetypeSpy.take(), Lines{}) << "the reference's linetypes are not listed";
    std::filesystem::remove_all(folder);
    checker.expectInStep();
    linetypeChecker.expectInStep();
}

TEST_F(LayerCollection, AnOffLayerMadeCurrentIsTurnedOnOnlyWhenTheUserSaysSo) {
    ContractChecker checker(layers, "LAYER");
    CollectionSpy spy(layers);
    type(L"-LAYER\n_Off\nDoors\n\n");
    pass();
    spy.take();
    KyDiCurrencyTracker* tracker = KnownCollectionRegistry::getCurrencyTracker(L"LAYER", true);
    ASSERT_NE(tracker, nullptr);
    KyDiDynamicObject* doors = layers->getItems()[2];
    ASSERT_EQ(kytest::itemName(doors), "Doors");
    sentTexts();

    // Quiescent: nobody is asked.
    host.documents().setPromptsAllowed(false);
    tracker->setCurrentItem(doors);
    EXPECT_EQ(sentTexts(), (std::vector<std::wstring>{L"'_clayer\nDoors\n"}));

    // The user says no: the off layer is current, and stays off.
    host.documents().setPromptsAllowed(true);
    host.layerService()->setTurnOnAnswer(KyDiLayerService::kLeaveLayerOff);
    tracker->setCurrentItem(doors);
    EXPECT_EQ(sentTexts(), (std::vector<std::wstring>{L"'_clayer\nDoors\n"}));

    // The user says yes: the layer command that turns it on follows.
    host.layerService()->setTurnOnAnswer(KyDiLayerService::kTurnLayerOn);
    tracker->setCurrentItem(doors);
    const std::vector<std::wstring> sent = sentTexts();
    ASSERT_EQ(sent.size(), 2u);
    EXPECT_EQ(sent[0], L"'_clayer\nDoors\n");
    EXPECT_NE(sent[1].find(L"_ON"), std::wstring::npos) << "the layer command turning it on";
    host.idle();
    pass();
    EXPECT_EQ(spy.take(), (Lines{"itemsModified [Doors]", "currentItemChanged Doors"}));
    checker.expectInStep();
}

}  // namespace
