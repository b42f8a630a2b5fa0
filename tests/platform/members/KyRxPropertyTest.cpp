// Properties: the refusals of the defaults, collection properties with their
// value iterators, sub-properties that read and write one coordinate of a
// composite value through the property that holds it, and which properties
// say they are read-only.
#include <gtest/gtest.h>

#include <memory>

#include "MemberTestSupport.h"
#include "ge/KyGePoint3d.h"
#include "rx/KyRxArrayValueIterator.h"

namespace {

KyRxMemberQueryEngine* engine() {
    return KyRxMemberQueryEngine::theEngine();
}

const KyRxProperty* shapeProperty(const wchar_t* name) {
    TestShape probe;
    return kyrxCast<KyRxProperty>(engine()->find(&probe, name));
}

// An object holding a list of numbers.
class NumberList : public KyRxObject {
public:
    std::vector<int> numbers;
};

// "Numbers" by position: reads and an iterator, no writes, no insertion.
class NumbersProperty : public KyRxIndexedProperty {
public:
    NumbersProperty() : KyRxIndexedProperty(L"Numbers", KyRxValueType::Desc<int>::value()) {}

protected:
    Kyro::ErrorStatus subGetValue(const KyRxObject* object, int index,
                                  KyRxValue& value) const override {
        const auto* list = dynamic_cast<const NumberList*>(object);
        if (list == nullptr || index < 0 || index >= static_cast<int>(list->numbers.size())) {
            return Kyro::eInvalidIndex;
        }
        value = list->numbers[static_cast<size_t>(index)];
        return Kyro::eOk;
    }
    KyRxValueIterator* subNewValueIterator(const KyRxObject* object) const override {
        const auto* list = dynamic_cast<const NumberList*>(object);
        if (list == nullptr) {
            return nullptr;
        }
        KyArray<int> numbers;
        for (int number : list->numbers) {
            numbers.append(number);
        }
        return new KyRxArrayValueIterator<int>(std::move(numbers));
    }
    Kyro::ErrorStatus subTryGetCount(const KyRxObject* object, int& count) const override {
        const auto* list = dynamic_cast<const NumberList*>(object);
        if (list == nullptr) {
            return Kyro::eNotThatKindOfClass;
        }
        count = static_cast<int>(list->numbers.size());
        return Kyro::eOk;
    }
};

// An object with a position in space, and its "Position" property.
class Marker : public KyRxObject {
public:
    KyGePoint3d position;
};

KyRxProperty* newPositionProperty() {
    return new TestProperty(
        L"Position", KyRxValueType::Desc<KyGePoint3d>::value(),
        [](const KyRxObject* object, KyRxValue& value) {
            const auto* marker = dynamic_cast<const Marker*>(object);
            if (marker == nullptr) {
                return Kyro::eNotThatKindOfClass;
            }
            value = marker->position;
            return Kyro::eOk;
        },
        [](KyRxObject* object, const KyRxValue& value) {
            auto* marker = dynamic_cast<Marker*>(object);
            const KyGePoint3d* point = valueCast<KyGePoint3d>(&value);
            if (marker == nullptr || point == nullptr) {
                return Kyro::eInvalidInput;
            }
            marker->position = *point;
            return Kyro::eOk;
        });
}

// Properties that override nothing.
class BareProperty : public KyRxProperty {
public:
    BareProperty() : KyRxProperty(L"Bare", KyRxValueType::Desc<int>::value()) {}
};
class BareCollectionProperty : public KyRxCollectionProperty {
public:
    BareCollectionProperty()
        : KyRxCollectionProperty(L"BareCollection", KyRxValueType::Desc<int>::value()) {}
};
class BareDictionaryProperty : public KyRxDictionaryProperty {
public:
    BareDictionaryProperty()
        : KyRxDictionaryProperty(L"BareDictionary", KyRxValueType::Desc<int>::value()) {}
};

template <typename T>
struct MemberDeleter {
    void operator()(T* member) const { KyRxMember::deleteMember(member); }
};
template <typename T>
using MemberPtr = std::unique_ptr<T, MemberDeleter<T>>;

}  // namespace

TEST(Properties, APropertyWithoutASetterRefusesWritesAndKeepsItsValue) {
    TestShape shape;
    shape.width = 4.0;
    const KyRxProperty* width = shapeProperty(L"Width");
    ASSERT_NE(width, nullptr);

    EXPECT_EQ(width->setValue(&shape, KyRxValue(9.0)), Kyro::eNotApplicable);
    KyRxValue value;
    ASSERT_EQ(width->getValue(&shape, value), Kyro::eOk);
    EXPECT_EQ(*valueCast<double>(&value), 4.0);

    const KyRxProperty* name = shapeProperty(L"Name");
    ASSERT_EQ(name->setValue(&shape, KyRxValue(KyString(L"Door"))), Kyro::eOk);
    EXPECT_STREQ(shape.name.kwszPtr(), L"Door") << "a property with a setter writes";
}

TEST(Properties, DefaultsOfEveryKindRefuse) {
    MemberPtr<BareProperty> bare(new BareProperty());
    KyRxValue value;
    EXPECT_EQ(bare->getValue(nullptr, value), Kyro::eNotImplementedYet);
    EXPECT_EQ(bare->setValue(nullptr, KyRxValue(1)), Kyro::eNotApplicable);

    MemberPtr<BareCollectionProperty> collection(new BareCollectionProperty());
    int count = -1;
    EXPECT_EQ(collection->newValueIterator(nullptr), nullptr);
    EXPECT_EQ(collection->tryGetCount(nullptr, count), Kyro::eNotImplementedYet);
    EXPECT_EQ(count, -1);

    MemberPtr<BareDictionaryProperty> dictionary(new BareDictionaryProperty());
    EXPECT_EQ(dictionary->getValue(nullptr, L"key", value), Kyro::eNotImplementedYet);
    EXPECT_EQ(dictionary->setValue(nullptr, L"key", KyRxValue(1)), Kyro::eNotApplicable);
    EXPECT_TRUE(dictionary->isKindOf(KyRxCollectionProperty::desc()));
}

TEST(Properties, IndexedPropertiesReadByPositionAndRefuseInsertionWith431) {
    NumberList list;
    list.numbers = {7, 8, 9};
    MemberPtr<NumbersProperty> numbers(new NumbersProperty());

    KyRxValue value;
    ASSERT_EQ(numbers->getValue(&list, 1, value), Kyro::eOk);
    EXPECT_EQ(*valueCast<int>(&value), 8);
    EXPECT_EQ(numbers->setValue(&list, 1, KyRxValue(5)), Kyro::eNotApplicable);
    EXPECT_EQ(numbers->insertValue(&list, 0, KyRxValue(5)), 431);
    EXPECT_EQ(numbers->removeValue(&list, 0), 431);
    EXPECT_EQ(list.numbers, (std::vector<int>{7, 8, 9}));
}

TEST(Properties, ACollectionPropertyWalksItsValuesWithAnIterator) {
    NumberList list;
    list.numbers = {7, 8};
    MemberPtr<NumbersProperty> numbers(new NumbersProperty());

    int count = 0;
    ASSERT_EQ(numbers->tryGetCount(&list, count), Kyro::eOk);
    EXPECT_EQ(count, 2);

    std::unique_ptr<KyRxValueIterator> iterator(numbers->newValueIterator(&list));
    ASSERT_NE(iterator, nullptr);
    KyRxValue value;
    ASSERT_FALSE(iterator->done());
    ASSERT_EQ(iterator->current(value), Kyro::eOk);
    EXPECT_EQ(*valueCast<int>(&value), 7);
    EXPECT_FALSE(iterator->next());
    ASSERT_EQ(iterator->current(value), Kyro::eOk);
    EXPECT_EQ(*valueCast<int>(&value), 8);
    EXPECT_TRUE(iterator->next()) << "the step onto the end answers true";
    EXPECT_TRUE(iterator->done());

    TestShape notAList;
    EXPECT_EQ(numbers->newValueIterator(&notAList), nullptr);
}

TEST(SubProperties, ACompositePropertyHasASubPropertyForEachCoordinate) {
    TestShape shape;
    shape.corner = {3.0, 4.0};
    const KyRxProperty* corner = shapeProperty(L"Corner");
    ASSERT_NE(corner, nullptr);

    const KyRxMemberArray* children = corner->children();
    ASSERT_NE(children, nullptr);
    ASSERT_EQ(children->length(), 2);
    EXPECT_STREQ((*children)[0]->name(), L"U");
    EXPECT_STREQ((*children)[1]->name(), L"V");
    EXPECT_EQ((*children)[1]->owner(), corner);
    EXPECT_EQ(&(*children)[1]->type(), &KyRxValueType::Desc<double>::value());

    const auto* v = kyrxCast<KyRxProperty>((*children)[1]);
    ASSERT_NE(v, nullptr);
    KyRxValue value;
    ASSERT_EQ(v->getValue(&shape, value), Kyro::eOk);
    EXPECT_EQ(*valueCast<double>(&value), 4.0);

    ASSERT_EQ(v->setValue(&shape, KyRxValue(-1.5)), Kyro::eOk);
    EXPECT_EQ(shape.corner, (TestPoint{3.0, -1.5})) << "written back through the base property";

    EXPECT_EQ(shapeProperty(L"Width")->children(), nullptr) << "a plain number has none";
}

TEST(SubProperties, ASubPropertyMayCarryAnotherNameAndBeInactiveOrReadOnly) {
    TestShape shape;
    shape.corner = {3.0, 4.0};
    const KyRxProperty* corner = shapeProperty(L"Corner");

    MemberPtr<KyRxProperty> across(makeSubProperty(corner, L"Across", L"U", true, false));
    ASSERT_NE(across, nullptr);
    EXPECT_STREQ(across->name(), L"Across");
    ASSERT_EQ(across->setValue(&shape, KyRxValue(10.0)), Kyro::eOk);
    EXPECT_EQ(shape.corner, (TestPoint{10.0, 4.0}));

    MemberPtr<KyRxProperty> inactive(makeSubProperty(corner, L"U", L"U", false, false));
    KyRxValue value;
    EXPECT_EQ(inactive->getValue(&shape, value), Kyro::eNotApplicable);
    EXPECT_EQ(inactive->setValue(&shape, KyRxValue(1.0)), Kyro::eNotApplicable);

    MemberPtr<KyRxProperty> readOnly(makeSubProperty(corner, L"V", L"V", true, true));
    ASSERT_EQ(readOnly->getValue(&shape, value), Kyro::eOk);
    EXPECT_EQ(*valueCast<double>(&value), 4.0);
    EXPECT_EQ(readOnly->setValue(&shape, KyRxValue(1.0)), Kyro::eNotApplicable);
    EXPECT_EQ(shape.corner, (TestPoint{10.0, 4.0}));
}

TEST(SubProperties, FailuresOfTheBaseOrOfTheValuePassThrough) {
    TestShape shape;
    const KyRxProperty* corner = shapeProperty(L"Corner");
    MemberPtr<KyRxProperty> u(makeSubProperty(corner, L"U", L"U", true, false));

    KyRxValue value;
    EXPECT_EQ(u->getValue(nullptr, value), Kyro::eNotThatKindOfClass) << "the base's refusal";
    EXPECT_EQ(u->setValue(&shape, KyRxValue(KyString(L"text"))), Kyro::eInvalidInput)
        << "the coordinate's refusal";
    EXPECT_EQ(shape.corner, TestPoint{});

    // A composite property that can't be written: the coordinate can't either.
    MemberPtr<TestProperty> fixedCorner(new TestProperty(L"FixedCorner",
                                                         KyRxValueType::Desc<TestPoint>::value(),
                                                         [](const KyRxObject*, KyRxValue& fixed) {
                                                             fixed = TestPoint{1.0, 2.0};
                                                             return Kyro::eOk;
                                                         }));
    MemberPtr<KyRxProperty> fixedU(makeSubProperty(fixedCorner.get(), L"U", L"U", true, false));
    ASSERT_EQ(fixedU->getValue(&shape, value), Kyro::eOk);
    EXPECT_EQ(*valueCast<double>(&value), 1.0);
    EXPECT_EQ(fixedU->setValue(&shape, KyRxValue(5.0)), Kyro::eNotApplicable);
}

TEST(SubProperties, TheCoordinatesOfAPointPropertyReadAndWriteThroughIt) {
    Marker marker;
    marker.position.set(1.0, 2.0, 3.0);
    MemberPtr<KyRxProperty> position(newPositionProperty());

    const KyRxMemberArray* children = position->children();
    ASSERT_NE(children, nullptr);
    ASSERT_EQ(children->length(), 3);
    EXPECT_STREQ((*children)[2]->name(), L"Z");

    MemberPtr<KyRxProperty> y(makeSubProperty(position.get(), L"Y", L"Y", true, false));
    ASSERT_NE(y, nullptr);
    KyRxValue value;
    ASSERT_EQ(y->getValue(&marker, value), Kyro::eOk);
    EXPECT_EQ(*valueCast<double>(&value), 2.0);
    ASSERT_EQ(y->setValue(&marker, KyRxValue(-7.0)), Kyro::eOk);
    EXPECT_EQ(marker.position.x, 1.0);
    EXPECT_EQ(marker.position.y, -7.0);
    EXPECT_EQ(marker.position.z, 3.0);
}

TEST(SubProperties, NoSubPropertyForAnUnknownCoordinateOrANonCompositeBase) {
    const KyRxProperty* corner = shapeProperty(L"Corner");
    EXPECT_EQ(makeSubProperty(corner, L"W", L"W", true, false), nullptr);
    EXPECT_EQ(makeSubProperty(shapeProperty(L"Width"), L"U", L"U", true, false), nullptr);
    EXPECT_EQ(makeSubProperty(nullptr, L"U", L"U", true, false), nullptr);
}

TEST(ReadOnlyProperties, APropertyWithoutAWayToWriteSaysSoAndTheRestDoNot) {
    EXPECT_TRUE(shapeProperty(L"Width")->isReadOnly()) << "no setter";
    EXPECT_FALSE(shapeProperty(L"Name")->isReadOnly());
    MemberPtr<BareProperty> bare(new BareProperty());
    EXPECT_FALSE(bare->isReadOnly()) << "a property class is writable unless it says otherwise";
    MemberPtr<BareCollectionProperty> collection(new BareCollectionProperty());
    EXPECT_TRUE(collection->isReadOnly()) << "a plain collection has no write at all";
    MemberPtr<BareDictionaryProperty> dictionary(new BareDictionaryProperty());
    EXPECT_FALSE(dictionary->isReadOnly());
    MemberPtr<NumbersProperty> numbers(new NumbersProperty());
    EXPECT_FALSE(numbers->isReadOnly());
}

TEST(ReadOnlyProperties, ASubPropertyIsReadOnlyWhenMadeSoOrWhenItsValueCantBeWrittenBack) {
    const KyRxProperty* corner = shapeProperty(L"Corner");
    EXPECT_FALSE(kyrxCast<KyRxProperty>((*corner->children())[0])->isReadOnly());
    MemberPtr<KyRxProperty> across(makeSubProperty(corner, L"Across", L"U", true, false));
    EXPECT_FALSE(across->isReadOnly());
    MemberPtr<KyRxProperty> readOnly(makeSubProperty(corner, L"V", L"V", true, true));
    EXPECT_TRUE(readOnly->isReadOnly());
    MemberPtr<KyRxProperty> inactive(makeSubProperty(corner, L"U", L"U", false, false));
    EXPECT_TRUE(inactive->isReadOnly());

    MemberPtr<TestProperty> fixedCorner(new TestProperty(L"FixedCorner",
                                                         KyRxValueType::Desc<TestPoint>::value(),
                                                         [](const KyRxObject*, KyRxValue& fixed) {
                                                             fixed = TestPoint{1.0, 2.0};
                                                             return Kyro::eOk;
                                                         }));
    MemberPtr<KyRxProperty> fixedU(makeSubProperty(fixedCorner.get(), L"U", L"U", true, false));
    EXPECT_TRUE(fixedU->isReadOnly()) << "the whole corner can't be written";
    EXPECT_TRUE(kyrxCast<KyRxProperty>((*fixedCorner->children())[1])->isReadOnly());
}
