// The member query engine: which members an object shows under the default
// and the promoting context, facets that providers add, lookups by name, and
// boxed values that show the members of their value's type.
#include <gtest/gtest.h>

#include <memory>

#include "MemberTestSupport.h"
#include "ge/KyGePoint3d.h"
#include "rx/KyRxBoxedValue.h"

using Names = std::vector<std::wstring>;

namespace {

KyRxMemberQueryEngine* engine() {
    return KyRxMemberQueryEngine::theEngine();
}

// Adds the shape facet to circles only.
class CircleFacetProvider : public KyRxFacetProvider {
public:
    void getFacets(const KyRxObject* object, const KyRxMemberQueryContext*,
                   KyRxClassArray& facets) override {
        if (object->isKindOf(TestCircle::desc())) {
            facets.append(testShapeFacetClass());
        }
    }
};

// Adds the extra facet to every object, and the shape facet once more.
class EveryObjectFacetProvider : public KyRxFacetProvider {
public:
    void getFacets(const KyRxObject*, const KyRxMemberQueryContext*,
                   KyRxClassArray& facets) override {
        facets.append(testExtraFacetClass());
        facets.append(testShapeFacetClass());
    }
};

// A box of a class of its own: it keeps the members of its class.
class LabelledBox : public KyRxBoxedValueOnStack {
public:
    using KyRxBoxedValueOnStack::KyRxBoxedValueOnStack;
    static KyRxClass* desc() {
        static KyRxClass* s_class =
            newKyRxClass(L"TestLabelledBox", L"KyRxBoxedValueOnStack", 0, 0, 0, nullptr, nullptr,
                         nullptr, nullptr, nullptr, nullptr);
        return s_class;
    }
    KyRxClass* isA() const override { return desc(); }
};

// Registers a provider for the length of a test.
class ScopedProvider {
public:
    explicit ScopedProvider(KyRxFacetProvider& provider) : m_provider(provider) {
        engine()->addFacetProvider(&m_provider);
    }
    ~ScopedProvider() { engine()->removeFacetProvider(&m_provider); }
    ScopedProvider(const ScopedProvider&) = delete;
    ScopedProvider& operator=(const ScopedProvider&) = delete;

private:
    KyRxFacetProvider& m_provider;
};

}  // namespace

TEST(MemberQueryEngine, DefaultContextListsEveryMemberFromTheObjectsClassUpInBuilderOrder) {
    TestCircle circle;
    EXPECT_EQ(memberNames(&circle, engine()->defaultContext()),
              (Names{L"Radius", L"Name", L"Name", L"Width", L"Corner", L"Reset"}));
    EXPECT_EQ(memberNames(&circle, nullptr), memberNames(&circle, engine()->defaultContext()))
        << "no context means the default context";

    TestShape shape;
    EXPECT_EQ(memberNames(&shape, nullptr), (Names{L"Name", L"Width", L"Corner", L"Reset"}));
}

TEST(MemberQueryEngine, PromotingContextLetsADerivedClassHideItsBaseMembersByName) {
    TestCircle circle;
    EXPECT_EQ(memberNames(&circle, engine()->promotingContext()),
              (Names{L"Radius", L"Name", L"Width", L"Corner", L"Reset"}));

    KyRxMember* name = engine()->find(&circle, L"Name", engine()->promotingContext());
    ASSERT_NE(name, nullptr);
    EXPECT_EQ(name->owner(), TestCircle::desc());
    KyRxValue value;
    ASSERT_EQ(static_cast<KyRxProperty*>(name)->getValue(&circle, value), Kyro::eOk);
    EXPECT_STREQ(valueCast<KyString>(&value)->kwszPtr(), L"a circle");
}

TEST(MemberQueryEngine, ClassListIsTheClassChainThenFacetsOfProvidersInOrder) {
    TestCircle circle;
    TestShape shape;
    CircleFacetProvider circlesOnly;
    EveryObjectFacetProvider everyObject;
    ScopedProvider first(circlesOnly);
    ScopedProvider second(everyObject);

    KyRxClassArray classes;
    engine()->getClasses(&circle, engine()->defaultContext(), classes);
    ASSERT_EQ(classes.length(), 5);
    EXPECT_EQ(classes[0], TestCircle::desc());
    EXPECT_EQ(classes[1], TestShape::desc());
    EXPECT_EQ(classes[2], KyRxObject::desc());
    EXPECT_EQ(classes[3], testShapeFacetClass());
    EXPECT_EQ(classes[4], testExtraFacetClass()) << "a facet already listed is not added again";

    KyRxClassArray shapeClasses;
    engine()->getClasses(&shape, engine()->defaultContext(), shapeClasses);
    ASSERT_EQ(shapeClasses.length(), 4);
    EXPECT_EQ(shapeClasses[2], testExtraFacetClass()) << "the second provider comes in its turn";
    EXPECT_EQ(shapeClasses[3], testShapeFacetClass());
}

TEST(MemberQueryEngine, FacetMembersShowOnlyOnTheObjectsTheProviderChooses) {
    TestCircle circle;
    TestShape shape;
    CircleFacetProvider circlesOnly;
    {
        ScopedProvider scoped(circlesOnly);
        EXPECT_EQ(memberNames(&circle, engine()->defaultContext()),
                  (Names{L"Radius", L"Name", L"Name", L"Width", L"Corner", L"Reset", L"Label",
                         L"Width"}));
        EXPECT_EQ(memberNames(&circle, engine()->promotingContext()),
                  (Names{L"Radius", L"Name", L"Width", L"Corner", L"Reset", L"Label"}))
            << "the object's own Width hides the facet's";
        EXPECT_NE(engine()->find(&circle, L"Label"), nullptr);
        EXPECT_EQ(engine()->find(&shape, L"Label"), nullptr);

        engine()->addFacetProvider(&circlesOnly);  // a second add changes nothing
        EXPECT_EQ(memberNames(&circle, engine()->promotingContext()).size(), 6u);
    }
    EXPECT_EQ(engine()->find(&circle, L"Label"), nullptr) << "gone with its provider";
}

TEST(MemberQueryEngine, ASecondProviderAddsItsFacetsToo) {
    TestShape shape;
    CircleFacetProvider circlesOnly;
    EveryObjectFacetProvider everyObject;
    ScopedProvider first(circlesOnly);
    ScopedProvider second(everyObject);

    EXPECT_EQ(memberNames(&shape, engine()->promotingContext()),
              (Names{L"Name", L"Width", L"Corner", L"Reset", L"Extra", L"Label"}));
    KyRxMember* extra = engine()->find(&shape, L"Extra");
    ASSERT_NE(extra, nullptr);
    EXPECT_EQ(extra->owner(), testExtraFacetClass());

    engine()->removeFacetProvider(nullptr);
    engine()->removeFacetProvider(&everyObject);
    engine()->removeFacetProvider(&everyObject);  // unknown by now: ignored
    EXPECT_EQ(engine()->find(&shape, L"Extra"), nullptr);
}

TEST(MemberQueryEngine, FindAnswersNullForWhatIsNotThere) {
    TestShape shape;
    EXPECT_EQ(engine()->find(&shape, L"Radius"), nullptr) << "a member of a derived class";
    EXPECT_EQ(engine()->find(&shape, L"name"), nullptr) << "names compare exactly";
    EXPECT_EQ(engine()->find(&shape, nullptr), nullptr);
    EXPECT_EQ(engine()->find(nullptr, L"Name"), nullptr);
    EXPECT_EQ(engine()->newMemberIterator(nullptr), nullptr);

    KyRxMember* reset = engine()->find(&shape, L"Reset");
    ASSERT_NE(reset, nullptr);
    EXPECT_NE(kyrxCast<KyRxMethod>(reset), nullptr);
}

TEST(MemberQueryEngine, IteratorStepsToItsEndAndFindsFromWhereItStands) {
    TestCircle circle;
    KyRxMemberIterator* iterator = engine()->newMemberIterator(&circle, engine()->defaultContext());
    ASSERT_NE(iterator, nullptr);

    KyRxMember* first = iterator->find(L"Name");
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->owner(), TestCircle::desc());
    iterator->next();
    KyRxMember* second = iterator->find(L"Name");
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(second->owner(), TestShape::desc()) << "the search goes on from the current member";

    EXPECT_FALSE(iterator->next());  // on Width
    EXPECT_FALSE(iterator->next());  // on Corner
    EXPECT_FALSE(iterator->next());  // on Reset
    EXPECT_TRUE(iterator->next()) << "the step onto the end answers true";
    EXPECT_TRUE(iterator->done());
    EXPECT_EQ(iterator->find(L"Radius"), nullptr) << "nothing is left behind the end";
    delete iterator;
}

TEST(MemberQueryEngine, ABoxedValueShowsTheMembersOfItsValueType) {
    KyRxValue corner(TestPoint{1.5, -2.0});
    KyRxBoxedValueOnStack box(corner);
    EXPECT_EQ(memberNames(&box, nullptr), (Names{L"U", L"V"}));

    auto* v = kyrxCast<KyRxProperty>(engine()->find(&box, L"V"));
    ASSERT_NE(v, nullptr);
    KyRxValue value;
    ASSERT_EQ(v->getValue(&box, value), Kyro::eOk);
    EXPECT_EQ(*valueCast<double>(&value), -2.0);
}

TEST(MemberQueryEngine, BoxesOnTheHeapShowTheirValuesMembersButDerivedBoxesKeepTheirOwn) {
    std::unique_ptr<KyRxBoxedValue> onHeap(
        KyRxBoxedValue::newBoxedValueOnHeap(KyRxValue(KyGePoint3d(1.0, 2.0, 3.0))));
    EXPECT_EQ(memberNames(onHeap.get(), nullptr), (Names{L"X", L"Y", L"Z"}));
    auto* z = kyrxCast<KyRxProperty>(engine()->find(onHeap.get(), L"Z"));
    ASSERT_NE(z, nullptr);
    KyRxValue value;
    ASSERT_EQ(z->getValue(onHeap.get(), value), Kyro::eOk);
    EXPECT_EQ(*valueCast<double>(&value), 3.0);

    KyRxValue corner(TestPoint{1.0, 2.0});
    LabelledBox labelled(corner);
    EXPECT_EQ(engine()->find(&labelled, L"U"), nullptr);
    KyRxClassArray classes;
    engine()->getClasses(&labelled, engine()->defaultContext(), classes);
    ASSERT_FALSE(classes.isEmpty());
    EXPECT_EQ(classes[0], LabelledBox::desc());
}
