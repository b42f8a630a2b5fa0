// Items that carry what they were given: named items, value items, layer
// filter items; how createDataItem decides between a new item and a kept one;
// and what a client hears when an item goes.
#include <gtest/gtest.h>

#include <memory>

#include "db/KyCmTransparency.h"
#include "kydi/KyDiDbLayerItem.h"
#include "kydi/KyDiDbNamedItem.h"
#include "kydi/KyDiDynamicObjectReactor.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiLayerFilterItem.h"
#include "kydi/KyDiLayerFilterTreeItem.h"
#include "kydi/KyDiNamedItem.h"
#include "kydi/KyDiObservableDynamicObject.h"
#include "objects/ItemFixture.h"

namespace {

using kytest::DeletionSpy;

class Items : public kytest::ItemFixture {};

TEST_F(Items, ANamedItemShowsOnlyItsNameAndKeepsItsValue) {
    const std::unique_ptr<KyDiDynamicObject> item(createDataItem(L"Half", KyRxValue(0.5)));
    EXPECT_EQ(memberNames(item.get()), (std::vector<std::wstring>{L"Name"}));
    KyRxValue value;
    ASSERT_EQ(read(item.get(), L"Name", value), Kyro::eOk);
    EXPECT_EQ(text(value), L"Half");
    ASSERT_EQ(item->value(value), Kyro::eOk);
    EXPECT_EQ(value, KyRxValue(0.5));
    // A member the item does not have: the item refuses it.
    const KyRxProperty* name = property(item.get(), L"Name");
    auto* proxy = dynamic_cast<KyDiProxy*>(item.get());
    EXPECT_EQ(proxy->getValue(nullptr, value, -1, nullptr), Kyro::eInvalidInput);
    EXPECT_EQ(name->setValue(item.get(), KyRxValue(KyString(L"Other"))), Kyro::eInvalidInput);
}

TEST_F(Items, AColourOrATransparencyHasOneLastingItemAndOtherValuesANewOneEachTime) {
    KyDiDynamicObject* red = createDataItem(L"red", KyRxValue(indexColor(1)));
    EXPECT_EQ(createDataItem(L"anything", KyRxValue(indexColor(1))), red);
    EXPECT_NE(createDataItem(L"blue", KyRxValue(indexColor(5))), red);
    KyDiDynamicObject* glass = createDataItem(L"", KyRxValue(KyCmTransparency(100)));
    EXPECT_EQ(createDataItem(L"", KyRxValue(KyCmTransparency(100))), glass);

    const std::unique_ptr<KyDiDynamicObject> one(createDataItem(L"x", KyRxValue(2.0)));
    const std::unique_ptr<KyDiDynamicObject> two(createDataItem(L"x", KyRxValue(2.0)));
    EXPECT_NE(one.get(), two.get());

    // Giving items up: the cache keeps the colour and the transparency, the
    // double goes.
    DeletionSpy spy;
    deleteItem(red);
    deleteItem(glass);
    deleteItem(createDataItem(L"y", KyRxValue(3.0)));
    EXPECT_EQ(spy.count(red), 0);
    EXPECT_EQ(spy.count(glass), 0);
    EXPECT_EQ(spy.deleted.size(), 1U);
}

TEST_F(Items, ANullIdMakesANewNamedRowThatCarriesOnlyItsName) {
    KyDiDynamicObject* first = createDataItem(L"ByLayer", KyRxValue(KyDbObjectId()));
    KyDiDynamicObject* second = createDataItem(L"ByLayer", KyRxValue(KyDbObjectId()));
    EXPECT_NE(first, second);
    ASSERT_NE(kyrxCast<KyDiDbNamedItem>(static_cast<KyRxObject*>(first)), nullptr);
    KyRxValue name;
    EXPECT_EQ(read(first, L"Name", name), Kyro::eOk);
    EXPECT_EQ(text(name), L"ByLayer");
    EXPECT_EQ(write(first, L"Name", KyRxValue(KyString(L"X"))), Kyro::eInvalidInput);
    // Its value is its null id.
    KyRxValue id;
    ASSERT_EQ(first->value(id), Kyro::eOk);
    EXPECT_EQ(id, KyRxValue(KyDbObjectId()));
    DeletionSpy spy;
    deleteItem(first);
    deleteItem(second);
    EXPECT_EQ(spy.deleted.size(), 2U);
}

TEST_F(Items, TheSameRecordGivesTheSameItemAndALayerIsAlwaysALayerItem) {
    const KyDbObjectId walls = addLayer(L"Walls");
    KyDiDynamicObject* item = createDataItem(L"", KyRxValue(walls));
    EXPECT_EQ(itemOf(walls), item);
    EXPECT_NE(kyrxCast<KyDiDbLayerItem>(static_cast<KyRxObject*>(item)), nullptr)
        << "a layer record made by the plain road is a layer item";
    // The cache keeps it: giving it up leaves it alive.
    DeletionSpy spy;
    deleteItem(item);
    EXPECT_EQ(spy.deleted.size(), 0U);
}

TEST_F(Items, LayerFilterItemsShowTheirMembersInOrderWithTheirValues) {
    const KyDbObjectId walls = addLayer(L"Walls");
    const KyDbObjectId doors = addLayer(L"Doors");
    KyArray<KyDbObjectId> layers;
    layers.append(walls);
    layers.append(doors);
    KyDiLayerFilterFlags flags;
    flags.allowRename = true;
    flags.isDynamicGenerated = true;
    KyDiLayerFilterItem filter(L"Structure", flags, layers);
    EXPECT_EQ(
        memberNames(&filter),
        (std::vector<std::wstring>{L"Name", L"IsDynamicFilter", L"IsDynamicGenerated",
                                   L"AllowRename", L"AllowDelete", L"AllowNested", L"Layers"}));
    KyRxValue value;
    ASSERT_EQ(read(&filter, L"Name", value), Kyro::eOk);
    EXPECT_EQ(text(value), L"Structure");
    for (const auto& [name, expected] :
         std::vector<std::pair<const wchar_t*, bool>>{{L"IsDynamicFilter", false},
                                                      {L"IsDynamicGenerated", true},
                                                      {L"AllowRename", true},
                                                      {L"AllowDelete", false},
                                                      {L"AllowNested", false}}) {
        ASSERT_EQ(read(&filter, name, value), Kyro::eOk) << name;
        EXPECT_EQ(value, KyRxValue(expected)) << name;
    }
    // The layers as a collection: their ids, in order.
    const auto* layersMember = kyrxCast<KyRxCollectionProperty>(KyDiFindMember(&filter, L"Layers"));
    ASSERT_NE(layersMember, nullptr);
    const std::unique_ptr<KyRxValueIterator> ids(layersMember->newValueIterator(&filter));
    ASSERT_NE(ids, nullptr);
    std::vector<KyDbObjectId> seen;
    for (; !ids->done(); ids->next()) {
        ids->current(value);
        seen.push_back(*valueCast<KyDbObjectId>(&value));
    }
    EXPECT_EQ(seen, (std::vector<KyDbObjectId>{walls, doors}));
    int count = 0;
    EXPECT_EQ(layersMember->tryGetCount(&filter, count), Kyro::eOk);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(&GetFilterLayers(&filter), &filter.layers());

    // An empty filter gives an iterator that is done at once.
    KyDiLayerFilterItem empty(L"Empty", flags, KyArray<KyDbObjectId>());
    const std::unique_ptr<KyRxValueIterator> none(layersMember->newValueIterator(&empty));
    ASSERT_NE(none, nullptr);
    EXPECT_TRUE(none->done());
}

TEST_F(Items, ATreeItemShowsItsCollectionsAndItsExpressionAfterTheSharedMembers) {
    KyDiLayerFilterFlags flags;
    flags.isDynamicFilter = true;
    KyDiLayerFilterTreeItem node(L"Reds", flags, L"COLOR==\"1\"", 42, nullptr, nullptr);
    EXPECT_EQ(memberNames(&node),
              (std::vector<std::wstring>{L"Name", L"IsDynamicFilter", L"IsDynamicGenerated",
                                         L"AllowRename", L"AllowDelete", L"AllowNested", L"Layers",
                                         L"SubFilters", L"Expression"}));
    KyRxValue value;
    ASSERT_EQ(read(&node, L"Expression", value), Kyro::eOk);
    EXPECT_EQ(text(value), L"COLOR==\"1\"");
    ASSERT_EQ(read(&node, L"IsDynamicFilter", value), Kyro::eOk);
    EXPECT_EQ(value, KyRxValue(true));
    ASSERT_EQ(read(&node, L"SubFilters", value), Kyro::eOk);
    EXPECT_EQ(&value.type(), &KyRxValueType::Desc<KyDiObservableCollection*>::value());
    EXPECT_EQ(node.fingerprint(), 42U);
}

TEST_F(Items, AnItemsDestructionIsToldToEveryReactorOnceWhileTheItemIsWhole) {
    DeletionSpy first;
    DeletionSpy second;
    auto* item = createDataItem(L"Goes", KyRxValue(1));
    // A reactor may still tell the item's class and read its value.
    struct Reader : KyDiDataItemReactor {
        void itemDeleted(KyDiItem* item) override {
            classes.push_back(item->isA());
            const KyRxValue* value = item->value();
            values.push_back(value != nullptr ? value->text().utf8() : "none");
        }
        std::vector<const KyRxClass*> classes;
        std::vector<std::string> values;
    } reader;
    KyDiManager::addReactor(&reader);
    delete item;
    KyDiManager::removeReactor(&reader);
    EXPECT_EQ(first.count(item), 1);
    EXPECT_EQ(second.count(item), 1);
    EXPECT_EQ(reader.classes, (std::vector<const KyRxClass*>{KyDiNamedItem::desc()}));
    EXPECT_EQ(reader.values, (std::vector<std::string>{"1"}));
}

// Records what an observable object tells its reactors.
class ChangeLog : public KyDiDynamicObjectReactor {
public:
    explicit ChangeLog(std::vector<std::wstring>& lines, std::wstring name)
        : m_lines(lines), m_name(std::move(name)) {}
    void changed(KyDiDynamicObject*, const wchar_t* member, void*) override {
        m_lines.push_back(m_name + L" " + (member != nullptr ? member : L"-"));
    }

private:
    std::vector<std::wstring>& m_lines;
    std::wstring m_name;
};

class Observed : public KyDiObservableDynamicObject {
public:
    void tell(const wchar_t* member) { notifyChanged(this, member, nullptr); }

protected:
    KyRxMemberIterator* subNewMemberIterator() override { return nullptr; }
};

TEST_F(Items, AnObservableObjectTellsItsReactorsOnACopyOfTheList) {
    std::vector<std::wstring> lines;
    ChangeLog a(lines, L"a");
    ChangeLog b(lines, L"b");
    Observed object;
    object.addReactor(nullptr);
    object.addReactor(&a);
    object.addReactor(&b);
    object.addReactor(&a);
    const KyDiDynamicObjectReactorArray before = object.getReactors();
    object.removeReactor(&a);
    object.removeReactor(nullptr);
    object.removeReactor(reinterpret_cast<KyDiDynamicObjectReactor*>(&lines));
    EXPECT_EQ(before.length(), 3) << "the copy stays as it was taken";
    object.tell(L"Color");
    // One of the two entries of "a" is gone; the list is told from the last.
    EXPECT_EQ(lines, (std::vector<std::wstring>{L"a Color", L"b Color"}));
}

// Takes a reactor (itself, when no other is named) off the object it is
// told by.
class Remover : public KyDiDynamicObjectReactor {
public:
    Remover(std::wstring name, Observed& object, std::vector<std::wstring>& lines,
            KyDiDynamicObjectReactor* victim = nullptr)
        : m_name(std::move(name)), m_object(object), m_lines(lines), m_victim(victim) {}
    void changed(KyDiDynamicObject*, const wchar_t*, void*) override {
        m_lines.push_back(m_name);
        m_object.removeReactor(m_victim != nullptr ? m_victim : this);
    }

private:
    std::wstring m_name;
    Observed& m_object;
    std::vector<std::wstring>& m_lines;
    KyDiDynamicObjectReactor* m_victim;
};

TEST_F(Items, AReactorMayTakeItselfOrAnotherOffWhileItIsTold) {
    std::vector<std::wstring> lines;
    Observed object;
    ChangeLog other(lines, L"other");
    Remover self(L"self", object, lines);
    Remover remover(L"remover", object, lines, &other);
    object.addReactor(&other);
    object.addReactor(&self);
    object.addReactor(&remover);
    // Told from the last, on the list as it stood: "other" is still told.
    object.tell(L"Layer");
    EXPECT_EQ(lines, (std::vector<std::wstring>{L"remover", L"self", L"other Layer"}));
    lines.clear();
    object.tell(L"Layer");
    EXPECT_EQ(lines, (std::vector<std::wstring>{L"remover"}));
}

TEST_F(Items, AValueOfAnObjectComparesEqualOnlyForTheSamePointerAndPrintsItsValue) {
    KyDiDynamicObject* red = createDataItem(L"red", KyRxValue(indexColor(1)));
    KyDiDynamicObject* blue = createDataItem(L"blue", KyRxValue(indexColor(5)));
    EXPECT_EQ(KyRxValue(red), KyRxValue(red));
    EXPECT_NE(KyRxValue(red), KyRxValue(blue));
    EXPECT_EQ(text(KyRxValue(red)), text(KyRxValue(indexColor(1))));
    // A database item has no value of its own: it prints its record's handle.
    const KyDbObjectId walls = addLayer(L"Walls");
    EXPECT_EQ(text(KyRxValue(itemOf(walls))), text(KyRxValue(walls)));
    EXPECT_EQ(text(KyRxValue(static_cast<KyDiDynamicObject*>(nullptr))), L"");
}

}  // namespace
