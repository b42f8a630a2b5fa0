// A named dictionary as a live collection (the materials): entries that come
// and go, and a current item that a row without a command writes directly.
#include <gtest/gtest.h>

#include "collections/CollectionFixture.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbObjectPointer.h"
#include "kydi/KyDiFunctions.h"

namespace {

using kytest::CollectionSpy;
using kytest::ContractChecker;
using Lines = std::vector<std::string>;

class DictionaryCollections : public kytest::CollectionFixture {};

TEST_F(DictionaryCollections, EntriesThatComeAndGoAreToldAndTheCurrentOneIsWrittenDirectly) {
    KyDiObservableCollection* materials = known(L"KYRO_MATERIAL");
    ASSERT_NE(materials, nullptr);
    const std::vector<std::string> before = names(materials);
    pass();
    ContractChecker checker(materials, "KYRO_MATERIAL");
    CollectionSpy spy(materials);
    const KyDbObjectId brick = addMaterial(L"Brick");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"itemsChanged added=[Brick] removed=[]"}));
    KyDiDynamicObject* item = materials->getItems().last();

    // The row has no command: the tracker writes the current material.
    materials->setCurrentItem(item);
    EXPECT_EQ(sentTexts(), std::vector<std::wstring>{});
    EXPECT_EQ(db()->cmaterial(), brick);
    pass();
    EXPECT_EQ(spy.take(), (Lines{"currentItemChanged Brick"}));

    // The current material can't be erased; another one can.
    const KyDbObjectId stone = addMaterial(L"Stone");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"itemsChanged added=[Stone] removed=[]"}));
    materials->setCurrentItem(materials->getItems().last());
    erase(brick);
    pass();
    EXPECT_EQ(spy.take(),
              (Lines{"itemsChanged added=[] removed=[Brick]", "currentItemChanged Stone"}));
    EXPECT_EQ(db()->cmaterial(), stone);
    EXPECT_EQ(names(materials).size(), before.size() + 1);
    checker.expectInStep();
}

class ReplacedDictionaries : public kytest::CollectionFixture {};

TEST_F(ReplacedDictionaries, ADictionaryReplacedUnderItsKeyResetsTheListFromTheNewOne) {
    KyDiObservableCollection* materials = known(L"KYRO_MATERIAL");
    pass();
    ContractChecker checker(materials, "KYRO_MATERIAL");
    CollectionSpy spy(materials);
    {
        // The materials' key now names another, empty dictionary.
        const KyAxDocLock lock(db());
        KyDbObjectPointer<KyDbDictionary> named(db()->namedObjectsDictionaryId(), KyDb::kForWrite);
        KyDbObjectId replacedId;
        ASSERT_EQ(named->remove(L"KYRO_MATERIAL", replacedId), Kyro::eOk);
        auto* fresh = new KyDbDictionary();
        KyDbObjectId freshId;
        ASSERT_EQ(named->setAt(L"KYRO_MATERIAL", fresh, freshId), Kyro::eOk);
        fresh->close();
    }
    KyDiNotifyCollectionModified(L"KYRO_MATERIAL");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"collectionReset", "currentItemChanged null"}));
    EXPECT_TRUE(materials->getItems().isEmpty());
    // The new dictionary is heard: an entry added to it is told.
    addMaterial(L"Brick");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"itemsChanged added=[Brick] removed=[]"}));
    checker.expectInStep();
}

}  // namespace
