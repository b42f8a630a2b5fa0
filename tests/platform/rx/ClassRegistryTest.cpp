// The class registry: registration in any order, hierarchy linking, lookups,
// protocol extensions, and the fatal stop on a class name taken by another
// descriptor.
#include <gtest/gtest.h>

#include <memory>

#include "rx/KyRxClass.h"
#include "rx/KyRxDictionary.h"
#include "rx/KyRxMember.h"
#include "rx/KyRxProperty.h"

namespace {

class Shape : public KyRxObject {
public:
    KYRX_DECLARE_MEMBERS(Shape);
    static KyRxObject* make() { return new Shape(); }
    Kyro::ErrorStatus copyFrom(const KyRxObject* other) override {
        const Shape* shape = kyrxCast<Shape>(other);
        if (shape == nullptr) {
            return Kyro::eNotThatKindOfClass;
        }
        sides = shape->sides;
        return Kyro::eOk;
    }
    int sides = 0;
};
KYRX_DEFINE_MEMBERS_EX(Shape, KyRxObject, &Shape::make, nullptr)

// A protocol: how to describe an object, registered per class.
class Describer : public KyRxObject {
public:
    KYRX_DECLARE_MEMBERS(Describer);
    explicit Describer(const wchar_t* text = L"") : text(text) {}
    const wchar_t* text;
};
KYRX_DEFINE_MEMBERS(Describer, KyRxObject)

// A class whose name a client takes before the platform registers it.
class Taken : public KyRxObject {
public:
    KYRX_DECLARE_MEMBERS(Taken);
};
KYRX_DEFINE_MEMBERS(Taken, KyRxObject)

// Keeps the class's descriptor accessor referenced.
[[maybe_unused]] const KyRxClass* takenClass(const Taken& taken) {
    return taken.isA();
}

}  // namespace

TEST(ClassRegistry, ChildrenRegisteredBeforeTheirParentsAreLinkedByTheHierarchyBuild) {
    KyRxClass* leaf = newKyRxClass(L"TestLeaf", L"TestMiddle");
    KyRxClass* middle = newKyRxClass(L"TestMiddle", L"TestRoot");
    ASSERT_NE(leaf, nullptr);
    EXPECT_EQ(leaf->myParent(), nullptr) << "the parent is not registered yet";
    EXPECT_EQ(middle->myParent(), nullptr);
    EXPECT_FALSE(kyrxBuildClassHierarchy()) << "TestRoot is still missing";

    KyRxClass* root = newKyRxClass(L"TestRoot", L"KyRxObject");
    EXPECT_EQ(root->myParent(), KyRxObject::desc()) << "a parent that exists links at once";
    EXPECT_TRUE(kyrxBuildClassHierarchy());
    EXPECT_EQ(leaf->myParent(), middle);
    EXPECT_EQ(middle->myParent(), root);
    EXPECT_TRUE(KyRxClass::isDerivedFrom(leaf, KyRxObject::desc()));
    EXPECT_TRUE(leaf->isDerivedFrom(leaf));
    EXPECT_FALSE(root->isDerivedFrom(leaf));
    EXPECT_FALSE(KyRxClass::isDerivedFrom(nullptr, root));
}

TEST(ClassRegistry, LookupsByNameAnswerTheRegisteredDescriptorOrNull) {
    KyRxClass* cls =
        newKyRxClass(L"TestLookup", L"KyRxObject", 0, nullptr, L"TESTLOOKUP", L"TestApp");
    EXPECT_EQ(kyrxFindKyRxClass(L"TestLookup"), cls);
    EXPECT_EQ(kyrxFindKyRxClass(L"testlookup"), nullptr) << "names are case-sensitive";
    EXPECT_EQ(kyrxFindKyRxClass(L"NoSuchClass"), nullptr);
    EXPECT_EQ(kyrxFindKyRxClass(nullptr), nullptr);
    EXPECT_STREQ(cls->dxfName(), L"TESTLOOKUP");
    EXPECT_STREQ(cls->appName(), L"TestApp");
    EXPECT_EQ(kyrxClassDictionary()->at(L"TestLookup"), cls);
    EXPECT_EQ(newKyRxClass(L"TestLookup", L"KyRxObject"), cls)
        << "a taken name answers the class there";
}

TEST(ClassRegistry, PlatformClassesAreFoundByNameWithoutBeingUsedFirst) {
    KyRxClass* property = kyrxFindKyRxClass(L"KyRxProperty");
    ASSERT_NE(property, nullptr);
    EXPECT_EQ(property, KyRxProperty::desc());
    EXPECT_TRUE(property->isDerivedFrom(kyrxFindKyRxClass(L"KyRxMember")));
    EXPECT_NE(kyrxFindKyRxClass(L"KyRxDictionary"), nullptr);
    EXPECT_NE(kyrxFindKyRxClass(L"KyRxUiPlacementAttribute"), nullptr);
}

TEST(ClassRegistry, DeletingAParentUnlinksItsChildrenUntilItComesBack) {
    KyRxClass* parent = newKyRxClass(L"TestParent", L"KyRxObject");
    KyRxClass* child = newKyRxClass(L"TestChild", L"TestParent");
    ASSERT_EQ(child->myParent(), parent);
    deleteKyRxClass(parent);
    EXPECT_EQ(kyrxFindKyRxClass(L"TestParent"), nullptr);
    EXPECT_EQ(child->myParent(), nullptr);

    KyRxClass* again = newKyRxClass(L"TestParent", L"KyRxObject");
    EXPECT_TRUE(kyrxBuildClassHierarchy());
    EXPECT_EQ(child->myParent(), again);
    deleteKyRxClass(child);
    deleteKyRxClass(again);
    deleteKyRxClass(nullptr);
}

TEST(ClassRegistry, ObjectsAreMadeAndClonedThroughTheirClass) {
    Shape shape;
    shape.sides = 5;
    const KyRxClass* cls = shape.isA();
    EXPECT_EQ(kyrxFindKyRxClass(L"Shape"), cls) << "registered at its first use";
    std::unique_ptr<KyRxObject> copy(shape.clone());
    ASSERT_NE(copy, nullptr);
    ASSERT_EQ(copy->isA(), Shape::desc());
    EXPECT_EQ(static_cast<Shape*>(copy.get())->sides, 5);

    Describer describer;
    EXPECT_EQ(describer.clone(), nullptr) << "a class without a constructor can't clone";
    EXPECT_EQ(kyrxCast<Shape>(&describer), nullptr);
    EXPECT_EQ(kyrxCast<KyRxObject>(&describer), &describer);
}

TEST(ClassRegistry, ProtocolExtensionsAreFoundAlongTheClassChain) {
    Shape::desc();
    KyRxClass* base = newKyRxClass(L"TestBase", L"Shape", 0, &Shape::make);
    KyRxClass* derived = newKyRxClass(L"TestDerived", L"TestBase", 0, &Shape::make);
    Describer forShapes(L"shape");
    Describer forBase(L"base");
    EXPECT_EQ(Shape::desc()->addX(Describer::desc(), &forShapes), nullptr);

    Shape shape;
    EXPECT_EQ(shape.queryX(Describer::desc()), &forShapes);
    EXPECT_EQ(derived->queryX(Describer::desc()), &forShapes) << "inherited from Shape";
    base->addX(Describer::desc(), &forBase);
    EXPECT_EQ(derived->queryX(Describer::desc()), &forBase) << "the nearest class wins";
    EXPECT_EQ(base->delX(Describer::desc()), &forBase);
    EXPECT_EQ(derived->queryX(Describer::desc()), &forShapes);

    EXPECT_EQ(shape.queryX(KyRxObject::desc()), &shape) << "an object serves its own classes";
    EXPECT_EQ(shape.queryX(nullptr), nullptr);
    EXPECT_EQ(Shape::desc()->delX(Describer::desc()), &forShapes);
    EXPECT_EQ(shape.queryX(Describer::desc()), nullptr);
}

TEST(ClassRegistry, MembersAreBuiltOnceAtTheFirstRequest) {
    static int s_calls = 0;
    auto builder = [](KyRxMemberCollectionBuilder& b, void* userData) {
        ++s_calls;
        EXPECT_EQ(userData, &s_calls);
        EXPECT_STREQ(b.owner()->name(), L"TestWithMembers");
    };
    KyRxClass* cls = newKyRxClass(L"TestWithMembers", L"KyRxObject", 0, 0, 0, nullptr, nullptr,
                                  nullptr, nullptr, builder, &s_calls);
    EXPECT_EQ(s_calls, 0) << "registration builds nothing";
    const KyRxMemberCollection* members = cls->members();
    ASSERT_NE(members, nullptr);
    EXPECT_EQ(members->count(), 0);
    EXPECT_EQ(cls->members(), members);
    EXPECT_EQ(s_calls, 1);
    deleteKyRxClass(cls);
}

TEST(ClassRegistryDeathTest, APlatformClassWhoseNameIsTakenStopsWithClassMismatch) {
    EXPECT_DEATH(
        {
            newKyRxClass(L"Taken", L"KyRxObject");
            Taken::desc();
        },
        "Class mismatch");
}

TEST(ClassRegistryDeathTest, AbortPrintsItsFormattedMessage) {
    EXPECT_DEATH(kyrx_abort(L"Class mismatch in %ls", L"KyDiItem"), "Class mismatch in KyDiItem");
}
