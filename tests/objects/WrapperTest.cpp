// Property wrappers: a wrapper reads and writes through an object that is a
// KyDiProxy and through a plain host object, turning ids and colours into
// data items and back; its children are wrappers too; it dies with the host
// member it stands for; and a palette's filter keeps the properties that are
// placed and readable now.
#include <gtest/gtest.h>

#include <memory>

#include "db/KyCmTransparency.h"
#include "db/KyDbEnums.h"
#include "kydi/KyDiContextBase.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiNamedItem.h"
#include "objects/ItemFixture.h"
#include "objects/TestClasses.h"
#include "reflection/PropertyWrapping.h"
#include "rx/KyRxStandardAttributes.h"

namespace {

using kytest::OutsideContext;
using kytest::ProxyThing;
using kytest::TestClasses;
using kytest::Thing;

class Wrappers : public kytest::ItemFixture {
protected:
    void SetUp() override {
        ItemFixture::SetUp();
        TestClasses::registerAll();
    }
    void TearDown() override {
        TestClasses::unregisterAll();
        ItemFixture::TearDown();
    }
    static const KyRxMember* wrapped(const wchar_t* name) {
        return PropertyWrapping::wrapMember(TestClasses::thingMember(name));
    }
    static const KyRxProperty* wrappedProperty(const wchar_t* name) {
        return kyrxCast<KyRxProperty>(wrapped(name));
    }
};

TEST_F(Wrappers, AWrapperStandsForItsHostPropertyOnceWithItsNameTypeAndAttributes) {
    const KyRxMember* host = TestClasses::thingMember(L"Width");
    const KyRxMember* wrapper = PropertyWrapping::wrapMember(host);
    ASSERT_NE(wrapper, nullptr);
    EXPECT_NE(wrapper, host);
    EXPECT_EQ(PropertyWrapping::wrapMember(host), wrapper) << "one wrapper per member";
    EXPECT_EQ(PropertyWrapping::wrapMember(wrapper), wrapper) << "a wrapper is not wrapped";
    EXPECT_EQ(PropertyWrapping::sourceMember(wrapper), host);
    EXPECT_EQ(PropertyWrapping::sourceMember(host), nullptr);
    EXPECT_STREQ(wrapper->name(), L"Width");
    EXPECT_EQ(&wrapper->type(), &host->type());
    EXPECT_EQ(wrapper->attributes().get(KyRxUiPlacementAttribute::desc()),
              host->attributes().get(KyRxUiPlacementAttribute::desc()));
    EXPECT_EQ(wrapper->localName(), host->localName());
    EXPECT_EQ(PropertyWrapping::wrapMember(nullptr), nullptr);
}

TEST_F(Wrappers, AWrapperReadsAndWritesAPlainHostObject) {
    Thing thing;
    KyRxValue value;
    ASSERT_EQ(wrappedProperty(L"Width")->getValue(&thing, value), Kyro::eOk);
    EXPECT_EQ(value, KyRxValue(1.5));
    ASSERT_EQ(wrappedProperty(L"Width")->setValue(&thing, KyRxValue(4.0)), Kyro::eOk);
    EXPECT_EQ(thing.width, 4.0);
    // A null id stays an id; a real one becomes the item of its record.
    ASSERT_EQ(wrappedProperty(L"Layer")->getValue(&thing, value), Kyro::eOk);
    EXPECT_EQ(value, KyRxValue(KyDbObjectId()));
    thing.layer = addLayer(L"Walls");
    ASSERT_EQ(wrappedProperty(L"Layer")->getValue(&thing, value), Kyro::eOk);
    EXPECT_EQ(itemIn(value), itemOf(thing.layer));
    // Written back, the item becomes its id again.
    thing.layer = KyDbObjectId();
    ASSERT_EQ(wrappedProperty(L"Layer")->setValue(&thing, value), Kyro::eOk);
    EXPECT_EQ(thing.layer, layerId(L"Walls"));
}

TEST_F(Wrappers, AProxyAnswersEveryAccessThroughTheWrapper) {
    ProxyThing proxy;
    KyRxValue value;
    ASSERT_EQ(wrappedProperty(L"Width")->getValue(&proxy, value), Kyro::eOk);
    EXPECT_EQ(value, KyRxValue(5));
    wrappedProperty(L"Count")->setValue(&proxy, KyRxValue(3));
    const auto* marks = kyrxCast<KyRxIndexedProperty>(wrapped(L"Marks"));
    ASSERT_NE(marks, nullptr);
    marks->getValue(&proxy, 1, value);
    int count = 0;
    ASSERT_EQ(marks->tryGetCount(&proxy, count), Kyro::eOk);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(proxy.calls, (std::vector<std::wstring>{L"get Width -1", L"set Count -1 3",
                                                      L"get Marks 1", L"values Marks"}));
}

TEST_F(Wrappers, ValuesByPositionReadThroughTheWrapperAndRefuseInsertion) {
    Thing thing;
    const auto* marks = kyrxCast<KyRxIndexedProperty>(wrapped(L"Marks"));
    ASSERT_NE(marks, nullptr);
    KyRxValue value;
    ASSERT_EQ(marks->getValue(&thing, 1, value), Kyro::eOk);
    EXPECT_EQ(value, KyRxValue(20.0));
    int count = 0;
    ASSERT_EQ(marks->tryGetCount(&thing, count), Kyro::eOk);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(marks->insertValue(&thing, 0, KyRxValue(1.0)), Kyro::eNotSupported);
    EXPECT_EQ(marks->removeValue(&thing, 0), Kyro::eNotSupported);
    // A scalar property read by position, or by key, is the wrong kind.
    EXPECT_EQ(wrappedProperty(L"Width")->getValue(nullptr, value), Kyro::eInvalidInput);
}

TEST_F(Wrappers, TheChildrenOfAWrapperAreWrappersThatBelongToIt) {
    const KyRxMember* corner = wrapped(L"Corner");
    const KyRxMemberArray* children = corner->children();
    ASSERT_NE(children, nullptr);
    ASSERT_EQ(children->length(), 3);
    const KyRxMemberArray* hostChildren = TestClasses::thingMember(L"Corner")->children();
    for (int i = 0; i < 3; ++i) {
        const KyRxMember* child = (*children)[i];
        EXPECT_EQ(PropertyWrapping::sourceMember(child), (*hostChildren)[i]);
        EXPECT_EQ(child->owner(), corner);
    }
    EXPECT_EQ(corner->children(), children) << "made once";
    EXPECT_EQ(wrapped(L"Width")->children(), nullptr);
}

TEST_F(Wrappers, AHostMemberDeletedWhileWrappedTakesItsWrapperWithIt) {
    const KyRxMember* before = wrapped(L"Width");
    wrapped(L"Corner")->children();
    wrapped(L"Marks");
    const int live = KyRxMember::liveCount();
    TestClasses::unregisterAll();
    // Every wrapper went with its member: the host's members and the
    // wrappers, the children of both, and the collection side of "Marks".
    EXPECT_LT(KyRxMember::liveCount(), live);
    TestClasses::registerAll();
    const KyRxMember* after = wrapped(L"Width");
    EXPECT_EQ(PropertyWrapping::sourceMember(after), TestClasses::thingMember(L"Width"));
    (void)before;
}

TEST_F(Wrappers, DataItemsBecomeTheHostsValuesAgain) {
    const KyDbObjectId walls = addLayer(L"Walls");
    const KyRxPropertyBase* any = kyrxCast<KyRxPropertyBase>(TestClasses::thingMember(L"Width"));
    KyRxValue value(itemOf(walls));
    EXPECT_TRUE(KyDiConvertFromDataItem(any, value));
    EXPECT_EQ(value, KyRxValue(walls));

    value = KyRxValue(createDataItem(L"red", KyRxValue(indexColor(1))));
    KyDiConvertFromDataItem(any, value);
    EXPECT_EQ(value, KyRxValue(indexColor(1)));
    value = KyRxValue(createDataItem(L"", KyRxValue(KyCmTransparency(90))));
    KyDiConvertFromDataItem(any, value);
    EXPECT_EQ(value, KyRxValue(KyCmTransparency(90)));

    // An item of an enumerated value takes the type of the property.
    struct WeightProperty : KyRxProperty {
        WeightProperty()
            : KyRxProperty(L"LineWeight", KyRxValueType::Desc<KyDb::LineWeight>::value()) {}
    };
    const std::unique_ptr<WeightProperty> weight(new WeightProperty());
    const std::unique_ptr<KyDiDynamicObject> tag(
        createDataItem(L"0.25 mm", KyRxValue(static_cast<int>(KyDb::kLnWt025))));
    value = KyRxValue(tag.get());
    KyDiConvertFromDataItem(weight.get(), value);
    EXPECT_EQ(value, KyRxValue(KyDb::kLnWt025));
    // Anything else stays as it is.
    value = KyRxValue(2.5);
    KyDiConvertFromDataItem(weight.get(), value);
    EXPECT_EQ(value, KyRxValue(2.5));
    value = KyRxValue(static_cast<KyDiDynamicObject*>(nullptr));
    KyDiConvertFromDataItem(weight.get(), value);
    EXPECT_EQ(value, KyRxValue(static_cast<KyDiDynamicObject*>(nullptr)));
}

TEST_F(Wrappers, HostValuesBecomeDataItems) {
    KyRxValue value{KyDbObjectId()};
    EXPECT_FALSE(KyDiConvertToDataItem(value));
    EXPECT_EQ(value, KyRxValue(KyDbObjectId()));
    value = KyRxValue(trueColor(1, 2, 3));
    EXPECT_TRUE(KyDiConvertToDataItem(value));
    KyDiDynamicObject* item = itemIn(value);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(KyDiGetItemName(item), trueColor(1, 2, 3).colorNameForDisplay());
    value = KyRxValue(KyDb::kLnWt025);
    EXPECT_TRUE(KyDiConvertToDataItem(value));
    EXPECT_EQ(KyDiGetItemName(itemIn(value)), KyString(L"0.25 mm"))
        << "an enumerated value becomes the item of its tag";
}

TEST_F(Wrappers, APalettesFilterKeepsPlacedScalarPropertiesThatCanBeReadNow) {
    Thing thing;
    KyRxMemberQueryEngine* engine = KyRxMemberQueryEngine::theEngine();
    const std::unique_ptr<KyRxMemberIterator> all(
        engine->newMemberIterator(&thing, engine->promotingContext()));
    const std::unique_ptr<KyRxMemberIterator> shown(KyDiFilterProperties(&thing, all.get()));
    std::vector<std::wstring> names;
    for (; !shown->done(); shown->next()) {
        names.emplace_back(shown->current()->name());
    }
    // "Count" is not placed, "Busy" can't be read now, "Marks" is by
    // position.
    EXPECT_EQ(names, (std::vector<std::wstring>{L"Width", L"Corner", L"Layer"}));
}

TEST_F(Wrappers, OnlyAContextOfAnotherModuleIsFiltered) {
    OutsideContext outside;
    EXPECT_EQ(memberNames(&outside), (std::vector<std::wstring>{L"Width", L"Corner", L"Layer"}));
    // An item shows all its members.
    const std::unique_ptr<KyDiDynamicObject> item(createDataItem(L"x", KyRxValue(1)));
    EXPECT_EQ(memberNames(item.get()), (std::vector<std::wstring>{L"Name"}));
}

}  // namespace
