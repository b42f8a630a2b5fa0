// Reference paths: each step reads a property and goes on from the object its
// value stands for; the last step names the property. Objects are reached
// through test hooks that count opens and closes.
#include <gtest/gtest.h>

#include <memory>

#include "MemberTestSupport.h"
#include "rx/KyRxStandardAttributes.h"

namespace {

// A folder: "Child" (the number of another object of the world, which fails
// without one), "Title" (text) and "Open" (a method).
class TestFolder : public KyRxObject {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override { return desc(); }
    int child = -1;
};

// A leaf: "Entries" only.
class TestLeaf : public KyRxObject {
public:
    static KyRxClass* desc();
    KyRxClass* isA() const override { return desc(); }
};

Kyro::ErrorStatus readChild(const KyRxObject* object, KyRxValue& value) {
    const TestFolder* folder = kyrxCast<TestFolder>(object);
    if (folder == nullptr || folder->child < 0) {
        return Kyro::eNotApplicable;
    }
    value = folder->child;
    return Kyro::eOk;
}

Kyro::ErrorStatus readTitle(const KyRxObject*, KyRxValue& value) {
    value = KyString(L"folder");
    return Kyro::eOk;
}

void buildFolderMembers(KyRxMemberCollectionBuilder& builder, void*) {
    builder.add(new TestProperty(L"Child", KyRxValueType::Desc<int>::value(), readChild, nullptr,
                                 builder.owner()));
    builder.add(new TestProperty(L"Title", KyRxValueType::Desc<KyString>::value(), readTitle,
                                 nullptr, builder.owner()));
    builder.add(new TestMethod(L"Open"));
}

void buildLeafMembers(KyRxMemberCollectionBuilder& builder, void*) {
    builder.add(new TestProperty(L"Entries", KyRxValueType::Desc<KyString>::value(), readTitle,
                                 nullptr, builder.owner()));
}

KyRxClass* TestFolder::desc() {
    static KyRxClass* s_class =
        newKyRxClass(L"TestFolder", L"KyRxObject", 0, 0, 0, nullptr, nullptr, nullptr, nullptr,
                     buildFolderMembers, nullptr);
    return s_class;
}

KyRxClass* TestLeaf::desc() {
    static KyRxClass* s_class = newKyRxClass(L"TestLeaf", L"KyRxObject", 0, 0, 0, nullptr, nullptr,
                                             nullptr, nullptr, buildLeafMembers, nullptr);
    return s_class;
}

// The world: object 0 is the root folder, 1 a folder under it, 2 a leaf
// under that one.
struct World {
    TestFolder root;
    TestFolder folder;
    TestLeaf leaf;
    int opened = 0;
    int openNow = 0;

    KyRxObject* at(int index) {
        switch (index) {
            case 0:
                return &root;
            case 1:
                return &folder;
            case 2:
                return &leaf;
            default:
                return nullptr;
        }
    }
};

World* g_world = nullptr;

const KyRxObject* rootOf(const KyRxObject*) {
    return &g_world->root;
}

KyRxObject* openObject(const KyRxValue& value) {
    const int* index = valueCast<int>(&value);
    KyRxObject* object = index != nullptr ? g_world->at(*index) : nullptr;
    if (object != nullptr) {
        ++g_world->opened;
        ++g_world->openNow;
    }
    return object;
}

void closeObject(KyRxObject*) {
    --g_world->openNow;
}

const KyRxPropertyBase* parse(const wchar_t* path, const KyRxObject* object,
                              KyRxRefersToAttribute::Resolve resolve = nullptr,
                              KyRxRefersToAttribute::Convert convert = nullptr) {
    return KyRxRefersToAttribute::parseReference(path, object, resolve, convert);
}

}  // namespace

class ReferencePaths : public ::testing::Test {
protected:
    void SetUp() override {
        world.root.child = 1;
        world.folder.child = 2;
        g_world = &world;
        KyRxRefersToAttribute::Hooks hooks;
        hooks.root = rootOf;
        hooks.open = openObject;
        hooks.close = closeObject;
        KyRxRefersToAttribute::setHooks(hooks);
    }
    void TearDown() override {
        KyRxRefersToAttribute::setHooks(KyRxRefersToAttribute::Hooks());
        g_world = nullptr;
    }

    World world;
};

TEST_F(ReferencePaths, APathFromTheRootFollowsTwoStepsToTheLastProperty) {
    const KyRxPropertyBase* entries = parse(L"/Child/Child/Entries", &world.leaf);
    ASSERT_NE(entries, nullptr);
    EXPECT_STREQ(entries->name(), L"Entries");
    EXPECT_EQ(entries->owner(), TestLeaf::desc());
    EXPECT_EQ(world.opened, 2);
    EXPECT_EQ(world.openNow, 0) << "every object opened on the way is closed";
}

TEST_F(ReferencePaths, APathWithoutALeadingSlashStartsAtTheObject) {
    const KyRxPropertyBase* entries = parse(L"Child/Entries", &world.folder);
    ASSERT_NE(entries, nullptr);
    EXPECT_EQ(entries->owner(), TestLeaf::desc());
    EXPECT_EQ(world.opened, 1);

    const KyRxPropertyBase* title = parse(L"Title", &world.leaf);
    EXPECT_EQ(title, nullptr) << "a leaf has no title";
    EXPECT_EQ(parse(L"Child", &world.folder)->owner(), TestFolder::desc());
    EXPECT_EQ(world.openNow, 0);
}

TEST_F(ReferencePaths, WithoutARootHookALeadingSlashStartsAtTheObject) {
    KyRxRefersToAttribute::Hooks hooks;
    hooks.open = openObject;
    hooks.close = closeObject;
    KyRxRefersToAttribute::setHooks(hooks);

    ASSERT_NE(parse(L"/Child/Entries", &world.folder), nullptr);
    EXPECT_EQ(parse(L"/Child/Child/Entries", &world.folder), nullptr);
    EXPECT_EQ(world.openNow, 0);
}

TEST_F(ReferencePaths, AStepThatCannotBeFollowedAnswersNullAndClosesWhatItOpened) {
    EXPECT_EQ(parse(L"/Child/Unknown/Entries", &world.leaf), nullptr) << "unknown step";
    EXPECT_EQ(parse(L"/Child/Open/Entries", &world.leaf), nullptr) << "a method on the way";
    EXPECT_EQ(parse(L"/Child/Open", &world.leaf), nullptr) << "a method at the end";
    EXPECT_EQ(parse(L"/Child/Child/Child/Entries", &world.leaf), nullptr) << "a step past the leaf";
    EXPECT_EQ(parse(L"/Title/Entries", &world.leaf), nullptr) << "a value that opens nothing";
    EXPECT_EQ(parse(L"/Child/Child/Missing", &world.leaf), nullptr) << "unknown last step";
    world.folder.child = -1;
    EXPECT_EQ(parse(L"/Child/Child/Entries", &world.leaf), nullptr)
        << "a property that does not read";
    EXPECT_GT(world.opened, 0);
    EXPECT_EQ(world.openNow, 0);
}

TEST_F(ReferencePaths, MalformedPathsAnswerNull) {
    EXPECT_EQ(parse(nullptr, &world.leaf), nullptr);
    EXPECT_EQ(parse(L"", &world.leaf), nullptr);
    EXPECT_EQ(parse(L"/", &world.leaf), nullptr);
    EXPECT_EQ(parse(L"/Child//Entries", &world.leaf), nullptr);
    EXPECT_EQ(parse(L"/Child/", &world.leaf), nullptr);
    EXPECT_EQ(parse(L"/Child", nullptr), nullptr);
    EXPECT_EQ(world.opened, 0);
}

TEST_F(ReferencePaths, AGivenResolverAndConverterTakeOverTheirSteps) {
    // Resolves names without regard to case.
    const KyRxRefersToAttribute::Resolve anyCase =
        [](const KyRxObject* object, const wchar_t* name) -> const KyRxPropertyBase* {
        std::unique_ptr<KyRxMemberIterator> it(
            KyRxMemberQueryEngine::theEngine()->newMemberIterator(object));
        for (; it != nullptr && !it->done(); it->next()) {
            if (KyString(it->current()->name()).compareNoCase(name) == 0) {
                return kyrxCast<KyRxPropertyBase>(it->current());
            }
        }
        return nullptr;
    };
    // Skips one object: each number read counts one further.
    const KyRxRefersToAttribute::Convert skipOne = [](const KyRxPropertyBase*, KyRxValue& value) {
        value = *valueCast<int>(&value) + 1;
        return true;
    };
    const KyRxRefersToAttribute::Convert refuse = [](const KyRxPropertyBase*, KyRxValue&) {
        return false;
    };

    EXPECT_EQ(parse(L"/child/child/entries", &world.leaf), nullptr) << "names compare exactly";
    const KyRxPropertyBase* entries = parse(L"/child/child/entries", &world.leaf, anyCase);
    ASSERT_NE(entries, nullptr);
    EXPECT_STREQ(entries->name(), L"Entries");

    entries = parse(L"/Child/Entries", &world.leaf, nullptr, skipOne);
    ASSERT_NE(entries, nullptr) << "the root's child 1 became 2, the leaf";
    EXPECT_EQ(entries->owner(), TestLeaf::desc());

    EXPECT_EQ(parse(L"/Child/Child/Entries", &world.leaf, nullptr, refuse), nullptr);
    EXPECT_EQ(world.openNow, 0);
}
