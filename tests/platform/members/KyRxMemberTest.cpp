// Members: the reactors told when members are added and deleted (also when a
// reactor changes the reactor list while it is called), children made on
// demand and deleted with their member, the live count, methods and tags.
#include <gtest/gtest.h>

#include "MemberTestSupport.h"

using Names = std::vector<std::wstring>;

namespace {

KyRxMemberQueryEngine* engine() {
    return KyRxMemberQueryEngine::theEngine();
}

Kyro::ErrorStatus readZero(const KyRxObject*, KyRxValue& value) {
    value = 0;
    return Kyro::eOk;
}

KyRxProperty* newIntProperty(const wchar_t* name, const KyRxObject* owner = nullptr) {
    return new TestProperty(name, KyRxValueType::Desc<int>::value(), readZero, nullptr, owner);
}

// Records what it is told; the member is read while it is told of it.
class RecordingReactor : public KyRxMemberReactor {
public:
    void memberAdded(const KyRxMember* member) override { added.emplace_back(member->name()); }
    void memberDeleted(const KyRxMember* member) override {
        deleted.emplace_back(member->name());
        if (member->owner() != nullptr) {
            ownersOfDeleted.push_back(member->owner());
        }
    }
    Names added;
    Names deleted;
    std::vector<const KyRxObject*> ownersOfDeleted;
};

// Keeps a reactor on the engine for the length of a test.
class ScopedReactor {
public:
    explicit ScopedReactor(KyRxMemberReactor& reactor) : m_reactor(reactor) {
        engine()->addReactor(&m_reactor);
    }
    ~ScopedReactor() { engine()->removeReactor(&m_reactor); }
    ScopedReactor(const ScopedReactor&) = delete;
    ScopedReactor& operator=(const ScopedReactor&) = delete;

private:
    KyRxMemberReactor& m_reactor;
};

// On its first call it takes itself off the engine and puts `replacement` on.
class HandOverReactor : public RecordingReactor {
public:
    explicit HandOverReactor(KyRxMemberReactor& replacement) : m_replacement(replacement) {}
    void memberDeleted(const KyRxMember* member) override {
        RecordingReactor::memberDeleted(member);
        engine()->removeReactor(this);
        engine()->addReactor(&m_replacement);
    }

private:
    KyRxMemberReactor& m_replacement;
};

// Takes another reactor off the engine when told.
class RemovingReactor : public KyRxMemberReactor {
public:
    explicit RemovingReactor(KyRxMemberReactor& victim) : m_victim(victim) {}
    void memberDeleted(const KyRxMember*) override { engine()->removeReactor(&m_victim); }

private:
    KyRxMemberReactor& m_victim;
};

// A property with two children "First" and "Second" of its own making.
class ParentProperty : public KyRxProperty {
public:
    explicit ParentProperty(const wchar_t* name)
        : KyRxProperty(name, KyRxValueType::Desc<int>::value()) {}
    mutable int builds = 0;

protected:
    Kyro::ErrorStatus subChildren(KyRxMemberArray& children) const override {
        ++builds;
        children.append(newIntProperty(L"First", this));
        children.append(newIntProperty(L"Second", this));
        return Kyro::eOk;
    }
};

// Makes one child, then fails.
class BrokenParentProperty : public KyRxProperty {
public:
    BrokenParentProperty() : KyRxProperty(L"Broken", KyRxValueType::Desc<int>::value()) {}

protected:
    Kyro::ErrorStatus subChildren(KyRxMemberArray& children) const override {
        children.append(newIntProperty(L"Orphan", this));
        return Kyro::eInvalidInput;
    }
};

// Keeps its children itself; the array is never built on demand.
class KeptChildrenProperty : public KyRxProperty {
public:
    KeptChildrenProperty() : KyRxProperty(L"Kept", KyRxValueType::Desc<int>::value()) {
        m_children.append(newIntProperty(L"Own", this));
    }
    ~KeptChildrenProperty() override { KyRxMember::deleteMember(m_children[0]); }
    mutable int builds = 0;

protected:
    Kyro::ErrorStatus subChildrenEx(const KyRxMemberArray*& children) const override {
        children = &m_children;
        return Kyro::eOk;
    }
    Kyro::ErrorStatus subChildren(KyRxMemberArray& children) const override {
        ++builds;
        return KyRxProperty::subChildren(children);
    }

private:
    KyRxMemberArray m_children;
};

}  // namespace

TEST(MemberReactors, DeleteMemberTellsEveryReactorWhileTheMemberIsStillWhole) {
    RecordingReactor first;
    RecordingReactor second;
    ScopedReactor scopedFirst(first);
    ScopedReactor scopedSecond(second);
    engine()->addReactor(&first);  // a second add changes nothing

    KyRxMember::deleteMember(newIntProperty(L"Doomed", TestShape::desc()));
    KyRxMember::deleteMember(nullptr);

    EXPECT_EQ(first.deleted, (Names{L"Doomed"}));
    EXPECT_EQ(second.deleted, (Names{L"Doomed"}));
    EXPECT_EQ(first.ownersOfDeleted, (std::vector<const KyRxObject*>{TestShape::desc()}));
}

TEST(MemberReactors, AReactorMayTakeItselfOffAndPutAnotherOnWhileItIsTold) {
    RecordingReactor replacement;
    HandOverReactor handOver(replacement);
    RecordingReactor after;
    ScopedReactor scopedHandOver(handOver);
    ScopedReactor scopedAfter(after);
    ScopedReactor scopedReplacement(replacement);  // taken off at the end
    engine()->removeReactor(&replacement);         // only the hand-over puts it on

    KyRxMember::deleteMember(newIntProperty(L"One"));
    EXPECT_EQ(handOver.deleted, (Names{L"One"}));
    EXPECT_EQ(after.deleted, (Names{L"One"})) << "the walk goes on after a reactor left";
    EXPECT_TRUE(replacement.deleted.empty()) << "a reactor added during a walk waits for the next";

    KyRxMember::deleteMember(newIntProperty(L"Two"));
    EXPECT_EQ(handOver.deleted, (Names{L"One"}));
    EXPECT_EQ(after.deleted, (Names{L"One", L"Two"}));
    EXPECT_EQ(replacement.deleted, (Names{L"Two"}));
}

TEST(MemberReactors, AReactorTakenOffByAnEarlierOneIsNotToldAnyMore) {
    RecordingReactor victim;
    RemovingReactor remover(victim);
    ScopedReactor scopedRemover(remover);
    ScopedReactor scopedVictim(victim);

    KyRxMember::deleteMember(newIntProperty(L"Gone"));
    EXPECT_TRUE(victim.deleted.empty());
}

TEST(MemberReactors, ReactorsHearOfMembersThatAClassBuilds) {
    RecordingReactor reactor;
    ScopedReactor scoped(reactor);
    ASSERT_NE(TestShape::desc()->members(), nullptr);
    EXPECT_EQ(reactor.added, (Names{L"Name", L"Width", L"Corner", L"Reset"}));
}

TEST(MemberChildren, ChildrenAreMadeOnceAndTheReactorsHearOfThemWhenTheParentGoes) {
    RecordingReactor reactor;
    ScopedReactor scoped(reactor);
    const int start = KyRxMember::liveCount();

    auto* parent = new ParentProperty(L"Parent");
    const KyRxMemberArray* children = parent->children();
    ASSERT_NE(children, nullptr);
    ASSERT_EQ(children->length(), 2);
    EXPECT_STREQ((*children)[0]->name(), L"First");
    EXPECT_EQ((*children)[1]->owner(), parent);
    EXPECT_EQ(parent->children(), children);
    EXPECT_EQ(parent->builds, 1);
    EXPECT_EQ(KyRxMember::liveCount(), start + 3);

    KyRxMember::deleteMember(parent);
    EXPECT_EQ(reactor.deleted, (Names{L"Parent", L"Second", L"First"}));
    EXPECT_EQ(KyRxMember::liveCount(), start);
}

TEST(MemberChildren, AMemberWithoutChildrenAnswersNull) {
    const int start = KyRxMember::liveCount();
    KyRxProperty* plain = newIntProperty(L"Plain");
    EXPECT_EQ(plain->children(), nullptr);

    auto* broken = new BrokenParentProperty();
    EXPECT_EQ(broken->children(), nullptr) << "a failed build answers null";
    EXPECT_EQ(KyRxMember::liveCount(), start + 2) << "what the failed build made is gone";

    KyRxMember::deleteMember(plain);
    KyRxMember::deleteMember(broken);
    EXPECT_EQ(KyRxMember::liveCount(), start);
}

TEST(MemberChildren, ChildrenKeptByTheMemberItselfComeFirst) {
    const int start = KyRxMember::liveCount();
    auto* kept = new KeptChildrenProperty();
    const KyRxMemberArray* children = kept->children();
    ASSERT_NE(children, nullptr);
    ASSERT_EQ(children->length(), 1);
    EXPECT_STREQ((*children)[0]->name(), L"Own");
    EXPECT_EQ(kept->children(), children);
    EXPECT_EQ(kept->builds, 0);
    KyRxMember::deleteMember(kept);
    EXPECT_EQ(KyRxMember::liveCount(), start);
}

TEST(MemberLifetime, LiveCountReturnsToItsStartWhenEverythingIsDeleted) {
    const int start = KyRxMember::liveCount();
    std::vector<KyRxMember*> members;
    members.push_back(newIntProperty(L"A"));
    members.push_back(new TestMethod(L"Run"));
    members.push_back(new KyRxEnumTag(L"kRed", KyRxValue(1)));
    auto* parent = new ParentProperty(L"Parent");
    parent->children();
    members.push_back(parent);
    EXPECT_EQ(KyRxMember::liveCount(), start + 6);

    for (KyRxMember* member : members) {
        KyRxMember::deleteMember(member);
    }
    EXPECT_EQ(KyRxMember::liveCount(), start);
}

TEST(MemberKinds, MethodsAndEnumTagsKeepWhatTheyWereMadeWith) {
    auto* method = new TestMethod(L"Run");
    KyRxValue result;
    EXPECT_EQ(method->invoke(nullptr, KyRxValueArray(), result), Kyro::eNotImplementedYet);
    EXPECT_EQ(&method->type(), &KyRxValueType::Desc<void>::value());
    EXPECT_TRUE(method->isKindOf(KyRxMember::desc()));

    auto* tag = new KyRxEnumTag(L"kGreen", KyRxValue(3));
    EXPECT_STREQ(tag->name(), L"kGreen");
    EXPECT_EQ(tag->owner(), &KyRxValueType::Desc<int>::value());
    EXPECT_EQ(&tag->type(), &KyRxValueType::Desc<int>::value());
    EXPECT_EQ(*valueCast<int>(&tag->value()), 3);
    EXPECT_STREQ(tag->localName().kwszPtr(), L"kGreen") << "without a local name, its name";

    KyRxMember::deleteMember(method);
    KyRxMember::deleteMember(tag);
}
