// The UCS planes and their tracker: a named UCS is the item of its record and
// is restored by name; World and the orthographic planes have no record, get
// items of their own outside the list, and are set by the UCS command's
// keywords, which the host really runs.
#include <gtest/gtest.h>

#include <algorithm>

#include "collections/CollectionFixture.h"
#include "db/KyDbDatabase.h"
#include "kydi/KyDiCurrencyTracker.h"
#include "kydi/KyDiDataItemFactory.h"
#include "kydi/KyDiDbItem.h"
#include "manager/KnownCollectionRegistry.h"
#include "rx/KyRxValue.h"

namespace {

using kytest::CollectionSpy;
using kytest::ContractChecker;
using kytest::itemName;
using Lines = std::vector<std::string>;
using Texts = std::vector<std::wstring>;

class UcsPlanes : public kytest::CollectionFixture {
protected:
    using CollectionFixture::CollectionFixture;

    static KyDiCurrencyTracker* tracker() {
        return KnownCollectionRegistry::getCurrencyTracker(L"UCS_PLANES", true);
    }
    static bool listed(KyDiObservableCollection* collection, KyDiDynamicObject* item) {
        const KyDiItemArray& items = collection->getItems();
        return std::find(items.begin(), items.end(), item) != items.end();
    }
    static KyDbObjectId idOf(KyDiDynamicObject* item) {
        const auto* dbItem = kyrxCast<KyDiDbItem>(static_cast<KyRxObject*>(item));
        return dbItem != nullptr ? dbItem->objectId() : KyDbObjectId();
    }
};

TEST_F(UcsPlanes, ANamedUcsIsRestoredByNameAndWorldAndThePlanesGetItemsOfTheirOwn) {
    const KyDbObjectId site = addUcs(L"Site");
    KyDiObservableCollection* planes = known(L"UCS_PLANES");
    EXPECT_EQ(names(planes), (Lines{"Site"}));
    KyDiDynamicObject* world = planes->getCurrentItem();
    EXPECT_EQ(itemName(world), "World");
    EXPECT_FALSE(listed(planes, world)) << "no record: an item outside the list";
    EXPECT_TRUE(idOf(world).isNull());
    pass();
    ContractChecker checker(planes, "UCS_PLANES", ContractChecker::Current::kAnywhere);
    CollectionSpy spy(planes);

    planes->setCurrentItem(planes->getItems()[0]);
    EXPECT_EQ(sentWithFlags(), (Texts{L"_.UCS\n_Named\n_Restore\nSite\n (0 0 1)"}));
    host.idle();
    pass();
    EXPECT_EQ(spy.take(), (Lines{"currentItemChanged Site"})) << "the host's report of the change";
    EXPECT_EQ(idOf(planes->getCurrentItem()), site);

    // Through the tracker, as no list holds them: a plane by its keyword.
    KyDiDynamicObject* right = createDataItem(L"Right", KyRxValue(KyDbObjectId()));
    tracker()->setCurrentItem(right);
    deleteItem(right);
    EXPECT_EQ(sentWithFlags(), (Texts{L"_.UCS\n_RIght\n (0 0 1)"}));
    host.idle();
    pass();
    EXPECT_EQ(spy.take(), (Lines{"currentItemChanged Right"}));
    EXPECT_FALSE(listed(planes, planes->getCurrentItem()));
    type(L"_.UCS\n_World\n");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"currentItemChanged World"}));
    EXPECT_NE(planes->getCurrentItem(), world) << "each answer is an item of its own";
    // The tracker listens to the variable of the named views.
    KyDiDynamicObject* before = planes->getCurrentItem();
    host.events().raiseSysVarChanged(L"NAMEDVIEWS", true);
    pass();
    EXPECT_EQ(spy.take(), (Lines{"currentItemChanged World"}));
    EXPECT_NE(planes->getCurrentItem(), before);
    EXPECT_EQ(commandLine().back(),
              L"Specify origin of UCS or "
              L"[Top/Bottom/FRont/BAck/Left/RIght/World/NAmed] <World>: "
              L"_World");
    checker.expectInStep();
}

TEST_F(UcsPlanes, EachPlaneIsSentAsTheKeywordTheCommandTakes) {
    const std::pair<const wchar_t*, const wchar_t*> planes[] = {
        {L"World", L"_.UCS\n_World\n (0 0 1)"},   {L"Left", L"_.UCS\n_Left\n (0 0 1)"},
        {L"Right", L"_.UCS\n_RIght\n (0 0 1)"},   {L"Top", L"_.UCS\n_Top\n (0 0 1)"},
        {L"Bottom", L"_.UCS\n_Bottom\n (0 0 1)"}, {L"Front", L"_.UCS\n_FRont\n (0 0 1)"},
        {L"Back", L"_.UCS\n_BAck\n (0 0 1)"},
    };
    for (const auto& [name, sent] : planes) {
        // An item whose value is the plane's name serves as well as one
        // without a record.
        KyDiDynamicObject* plane = createDataItem(L"plane", KyRxValue(KyString(name)));
        tracker()->setCurrentItem(plane);
        deleteItem(plane);
        EXPECT_EQ(sentWithFlags(), Texts{sent});
        host.idle();
        KyString current;
        KyDbObjectId id;
        ASSERT_EQ(host.ucsService()->getCurrent(current, id), Kyro::eOk);
        EXPECT_EQ(current, name) << "the host ran it";
    }
    // Matched exactly: another spelling is sent as it is, and the host
    // refuses what it can't read.
    KyDiDynamicObject* odd = createDataItem(L"right", KyRxValue(KyDbObjectId()));
    tracker()->setCurrentItem(odd);
    deleteItem(odd);
    EXPECT_EQ(sentWithFlags(), (Texts{L"_.UCS\nright\n (0 0 1)"}));
    tracker()->setCurrentItem(nullptr);
    EXPECT_EQ(sentWithFlags(), Texts{});
}

class UcsPlanesWithoutEditor : public UcsPlanes {
protected:
    UcsPlanesWithoutEditor() : UcsPlanes(withoutEditor()) {}
};

TEST_F(UcsPlanesWithoutEditor, ANamedUcsBecomesTheBaseOfThePlanesAndAPlaneCantBeSet) {
    const KyDbObjectId site = addUcs(L"Site");
    KyDiObservableCollection* planes = known(L"UCS_PLANES");
    pass();
    ContractChecker checker(planes, "UCS_PLANES", ContractChecker::Current::kAnywhere);
    CollectionSpy spy(planes);
    planes->setCurrentItem(planes->getItems()[0]);
    EXPECT_EQ(db()->ucsBase(), site);
    KyDiDynamicObject* top = createDataItem(L"Top", KyRxValue(KyDbObjectId()));
    tracker()->setCurrentItem(top);
    deleteItem(top);
    pass();
    EXPECT_EQ(spy.take(), Lines{}) << "the current UCS is World still";
    EXPECT_EQ(itemName(planes->getCurrentItem()), "World");
    checker.expectInStep();
}

}  // namespace
