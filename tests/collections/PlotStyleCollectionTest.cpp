// The plot style tables and the plot styles of a drawing with named plot
// styles: the style list begins with the reserved names, then holds what the
// current table offers and the drawing has; a change of table resets it once;
// a style is made current through CPLOTSTYLE, a table through the plot
// service.
#include <gtest/gtest.h>

#include "KyRefPlotService.h"
#include "base/KyRxResourceInstance.h"
#include "collections/CollectionFixture.h"
#include "kydi/KyDiDbNamedItem.h"
#include "kydi/KyDiFunctions.h"

namespace {

using kytest::CollectionSpy;
using kytest::ContractChecker;
using kytest::itemName;
using Lines = std::vector<std::string>;

class PlotStyles : public kytest::CollectionFixture {
protected:
    void SetUp() override {
        CollectionFixture::SetUp();
        // The sample's dictionary holds Normal, Thin and Bold; its model
        // layout plots with standard.stb.
        host.plotService()->setNamedTables({KyString(L"standard.stb"), KyString(L"Grayscale.stb")});
        host.plotService()->setTableStyles(
            KyString(L"standard.stb"),
            {KyString(L"Normal"), KyString(L"Thin"), KyString(L"Missing")});
        host.plotService()->setTableStyles(KyString(L"Grayscale.stb"),
                                           {KyString(L"Normal"), KyString(L"Bold")});
        KyString error;
        ASSERT_NE(host.documents().openDocument(KyString::fromUtf8(KYDI_TEST_SAMPLE), error),
                  nullptr)
            << error.utf8();
    }
    static KyDiObservableCollection* styles() { return known(L"KYRO_PLOTSTYLENAME"); }
    static KyDiObservableCollection* tables() { return known(L"PLOTSTYLETABLE"); }
};

TEST_F(PlotStyles, TheReservedNamesComeFirstThenWhatTheTableAndTheDrawingShare) {
    KyDiObservableCollection* list = styles();
    pass();
    ContractChecker checker(list, "KYRO_PLOTSTYLENAME");
    CollectionSpy spy(list);
    EXPECT_TRUE(list->isActive());
    EXPECT_EQ(names(list), (Lines{"ByLayer", "ByBlock", "Normal", "Thin"}))
        << "Bold is not in the table, Missing not in the drawing";
    KyDiDynamicObject* byLayer = list->getItems()[0];
    const auto* pseudo = kyrxCast<KyDiDbNamedItem>(static_cast<KyRxObject*>(byLayer));
    ASSERT_NE(pseudo, nullptr);
    EXPECT_TRUE(pseudo->objectId().isNull());
    EXPECT_EQ(list->getCurrentItem(), byLayer);

    // A refill matches the entries of no record by name and keeps them.
    KyDiNotifyCollectionModified(L"KYRO_PLOTSTYLENAME");
    pass();
    EXPECT_EQ(spy.take(), Lines{});
    EXPECT_EQ(list->getItems()[0], byLayer);

    list->setCurrentItem(item(list, "Thin"));
    EXPECT_EQ(hostValue(L"CPLOTSTYLE"), L"Thin") << "written at once";
    EXPECT_EQ(sentTexts(), std::vector<std::wstring>{});
    pass();
    EXPECT_EQ(spy.take(), (Lines{"currentItemChanged Thin"}));
    checker.expectInStep();
}

TEST_F(PlotStyles, AnotherTableResetsTheStyleListOnce) {
    KyDiObservableCollection* list = styles();
    KyDiObservableCollection* offered = tables();
    pass();
    ContractChecker styleChecker(list, "KYRO_PLOTSTYLENAME");
    ContractChecker tableChecker(offered, "PLOTSTYLETABLE");
    CollectionSpy styleSpy(list);
    CollectionSpy tableSpy(offered);
    EXPECT_EQ(names(offered), (Lines{"standard.stb", "Grayscale.stb"})) << "in the host's order";
    EXPECT_EQ(itemName(offered->getCurrentItem()), "standard.stb");

    offered->setCurrentItem(item(offered, "Grayscale.stb"));
    pass();
    EXPECT_EQ(styleSpy.take(), (Lines{"collectionReset", "currentItemChanged ByLayer"}));
    EXPECT_EQ(tableSpy.take(), (Lines{"currentItemChanged Grayscale.stb"}));
    EXPECT_EQ(names(list), (Lines{"ByLayer", "ByBlock", "Normal", "Bold"}));
    pass();
    EXPECT_EQ(styleSpy.take(), Lines{});
    EXPECT_EQ(sentTexts(), std::vector<std::wstring>{});

    // A table the host offers since is listed at the next change of content.
    host.plotService()->setNamedTables(
        {KyString(L"standard.stb"), KyString(L"Grayscale.stb"), KyString(L"Draft.stb")});
    host.events().raiseDrawingContentChanged();
    pass();
    EXPECT_EQ(tableSpy.take(), (Lines{"itemsChanged added=[Draft.stb] removed=[]"}));
    styleChecker.expectInStep();
    tableChecker.expectInStep();
}

TEST_F(PlotStyles, AnotherLayoutPlotsWithItsOwnTableAndResetsTheList) {
    host.plotService()->setTableStyles(KyString(L"monochrome.stb"),
                                       {KyString(L"Normal"), KyString(L"Bold")});
    KyDiObservableCollection* list = styles();
    pass();
    ContractChecker checker(list, "KYRO_PLOTSTYLENAME");
    CollectionSpy spy(list);
    ASSERT_TRUE(host.plotService()->setLayoutByName(KyString(L"Plan")));
    pass();
    EXPECT_EQ(spy.take(), (Lines{"collectionReset", "currentItemChanged ByLayer"}))
        << "no table change was told to a table list: the list finds it itself";
    EXPECT_EQ(names(list), (Lines{"ByLayer", "ByBlock", "Normal", "Bold"}));
    ASSERT_TRUE(host.plotService()->setLayoutByName(KyString(L"Details")));
    pass();
    EXPECT_EQ(spy.take(), (Lines{"collectionReset", "currentItemChanged ByLayer"}));
    EXPECT_EQ(names(list), (Lines{"ByLayer", "ByBlock", "Normal", "Thin"}));
    checker.expectInStep();
}

TEST_F(PlotStyles, TheReservedNamesAreInTheUsersLanguage) {
    KyRxResourceInstance::setLanguage(L"de");
    KyDiObservableCollection* list = styles();
    pass();
    ContractChecker checker(list, "KYRO_PLOTSTYLENAME");
    const Lines listed = names(list);
    ASSERT_GE(listed.size(), 3U);
    EXPECT_EQ(Lines(listed.begin(), listed.begin() + 3),
              (Lines{"VonLayer", "VonBlock", "Normalstil"}));
    EXPECT_EQ(itemName(list->getCurrentItem()), "VonLayer");
    checker.expectInStep();
    KyRxResourceInstance::setLanguage(L"");
}

class ColorDependentPlotStyles : public kytest::CollectionFixture {};

TEST_F(ColorDependentPlotStyles, TheStyleListIsEmptyAndInactiveAndTheTableStandsOutsideItsList) {
    KyDiObservableCollection* list = known(L"KYRO_PLOTSTYLENAME");
    KyDiObservableCollection* offered = known(L"PLOTSTYLETABLE");
    pass();
    ContractChecker checker(list, "KYRO_PLOTSTYLENAME");
    ContractChecker tableChecker(offered, "PLOTSTYLETABLE", ContractChecker::Current::kAnywhere);
    EXPECT_FALSE(list->isActive());
    EXPECT_EQ(names(list), Lines{});
    list->setCurrentItem(nullptr);
    EXPECT_EQ(hostValue(L"CPLOTSTYLE"), L"ByLayer");
    // The drawing's table is a colour-dependent one, which the list of named
    // tables doesn't offer: the tracker's own item stands for it.
    KyDiDynamicObject* current = offered->getCurrentItem();
    ASSERT_NE(current, nullptr);
    EXPECT_EQ(current->value()->text().utf8(), "Default.ctb");
    EXPECT_FALSE(offered->getItems().contains(current));
    checker.expectInStep();
    tableChecker.expectInStep();
}

TEST_F(ColorDependentPlotStyles, AfterADrawingWithNamedStylesTheEmptyListStaysQuiet) {
    KyString error;
    ASSERT_NE(host.documents().openDocument(KyString::fromUtf8(KYDI_TEST_SAMPLE), error), nullptr);
    KyDiObservableCollection* list = known(L"KYRO_PLOTSTYLENAME");
    known(L"PLOTSTYLETABLE");
    pass();
    host.documents().newDocument();
    pass();
    ContractChecker checker(list, "KYRO_PLOTSTYLENAME");
    CollectionSpy spy(list);
    pass();
    pass();
    EXPECT_EQ(spy.take(), Lines{}) << "the table it was filled from has not changed";
    checker.expectInStep();
}

}  // namespace
