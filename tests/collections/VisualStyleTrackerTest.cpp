// The visual style tracker: a standard style is sent to VSCURRENT by its
// global name written as one word, whatever language the user reads it in;
// any other style through Other; without a command line the host's service
// sets it. The current style is polled at every update, since no variable
// tells of it.
#include <gtest/gtest.h>

#include "KyRefVisualStyleService.h"
#include "base/KyRxResourceInstance.h"
#include "collections/CollectionFixture.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbObjectPointer.h"
#include "kydi/KyDiCurrencyTracker.h"
#include "kydi/KyDiDataItemFactory.h"
#include "manager/KnownCollectionRegistry.h"
#include "rx/KyRxValue.h"

namespace {

using kytest::CollectionSpy;
using kytest::ContractChecker;
using kytest::itemName;
using Lines = std::vector<std::string>;
using Texts = std::vector<std::wstring>;

class VisualStyles : public kytest::CollectionFixture {
protected:
    using CollectionFixture::CollectionFixture;

    static KyDiCurrencyTracker* tracker() {
        return KnownCollectionRegistry::getCurrencyTracker(L"KYRO_VISUALSTYLE", true);
    }
    KyDbObjectId styleId(const wchar_t* name) {
        KyDbObjectPointer<KyDbDictionary> styles(db()->visualStyleDictionaryId(), KyDb::kForRead);
        KyDbObjectId id;
        EXPECT_EQ(styles->getAt(name, id), Kyro::eOk);
        return id;
    }
    // The item of the drawing's visual style `name` (its global name).
    KyDiDynamicObject* style(const wchar_t* name) {
        return createDataItem(KyString(), KyRxValue(styleId(name)));
    }
    std::string currentStyle() { return host.visualStyleService()->currentName().utf8(); }
};

TEST_F(VisualStyles, AStandardStyleGoesByItsGlobalNameAsOneWordAndAnyOtherThroughOther) {
    KyRxResourceInstance::setLanguage(L"de");
    KyDiDynamicObject* edges = style(L"Shaded with edges");
    EXPECT_EQ(itemName(edges), "Schattiert mit Kanten") << "as the user reads it";
    tracker()->setCurrentItem(edges);
    EXPECT_EQ(sentWithFlags(), (Texts{L"^C^C^Q_.VSCURRENT\n_Shadedwithedges\n (0 1 0)"}));
    host.idle();
    EXPECT_EQ(currentStyle(), "Shaded with edges");
    KyRxResourceInstance::setLanguage(L"");

    tracker()->setCurrentItem(style(L"Shades of Gray"));
    EXPECT_EQ(sentWithFlags(), (Texts{L"^C^C^Q_.VSCURRENT\n_ShadesofGray\n (0 1 0)"}));
    host.idle();
    EXPECT_EQ(currentStyle(), "Shades of Gray");
    tracker()->setCurrentItem(style(L"Modeling"));
    EXPECT_EQ(sentWithFlags(), (Texts{L"^C^C^Q_.VSCURRENT\n_other\nModeling\n (0 1 0)"}));
    host.idle();
    EXPECT_EQ(currentStyle(), "Modeling");
    EXPECT_EQ(commandLine().back(), L"Enter a visual style name: Modeling");

    tracker()->setCurrentItem(nullptr);
    EXPECT_EQ(sentWithFlags(), Texts{}) << "no name, no command";
    EXPECT_EQ(currentStyle(), "Modeling");
}

TEST_F(VisualStyles, TheCurrentStyleIsPolledAndAStyleNoListShowsIsNone) {
    KyDiObservableCollection* styles = known(L"KYRO_VISUALSTYLE");
    ASSERT_NE(styles, nullptr);
    EXPECT_EQ(itemName(styles->getCurrentItem()), "2dWireframe");
    pass();
    ContractChecker checker(styles, "KYRO_VISUALSTYLE");
    CollectionSpy spy(styles);
    styles->setCurrentItem(style(L"Realistic"));
    host.idle();
    pass();
    EXPECT_EQ(spy.take(), (Lines{"currentItemChanged Realistic"}));
    pass();
    EXPECT_EQ(spy.take(), Lines{}) << "told once";
    host.visualStyleService()->setCurrent(styleId(L"Basic"), 0);
    pass();
    EXPECT_EQ(spy.take(), (Lines{"currentItemChanged null"})) << "a style for internal use";
    checker.expectInStep();
}

class VisualStylesWithoutEditor : public VisualStyles {
protected:
    VisualStylesWithoutEditor() : VisualStyles(withoutEditor()) {}
};

TEST_F(VisualStylesWithoutEditor, TheServiceSetsTheStyleDirectly) {
    tracker()->setCurrentItem(style(L"Hidden"));
    EXPECT_EQ(currentStyle(), "Hidden");
    tracker()->setCurrentItem(nullptr);
    EXPECT_EQ(currentStyle(), "Hidden");
    EXPECT_EQ(itemName(tracker()->getCurrentItem()), "Hidden");
}

}  // namespace
