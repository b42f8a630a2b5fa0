// Reactors on the deletion of data items, the wrappers that die with the
// host members they stand for, and reference paths resolved by the manager.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kydi/KyDiDataItemReactor.h"
#include "kydi/KyDiManager.h"
#include "manager/KyDiManagerModule.h"
#include "manager/RefHostFixture.h"
#include "rx/KyRxClass.h"
#include "rx/KyRxMember.h"
#include "rx/KyRxProperty.h"

namespace {

class ItemReactors : public kytest::RefHostFixture {};

// Records which reactor heard which item, in order.
struct Journal {
    std::vector<std::string> lines;
};

class NamedReactor : public KyDiDataItemReactor {
public:
    NamedReactor(const char* name, Journal& journal) : m_name(name), m_journal(journal) {}
    void itemDeleted(KyDiItem*) override {
        m_journal.lines.push_back(m_name);
        onDeleted();
    }

protected:
    virtual void onDeleted() {}

private:
    std::string m_name;
    Journal& m_journal;
};

// Takes another reactor off the list, and puts a newcomer on it.
class MeddlingReactor final : public NamedReactor {
public:
    MeddlingReactor(Journal& journal, KyDiDataItemReactor* victim, KyDiDataItemReactor* newcomer)
        : NamedReactor("meddler", journal), m_victim(victim), m_newcomer(newcomer) {}

private:
    void onDeleted() override {
        if (m_victim != nullptr) {
            KyDiManager::removeReactor(m_victim);
            KyDiManager::addReactor(m_newcomer);
            m_victim = nullptr;
        }
    }
    KyDiDataItemReactor* m_victim;
    KyDiDataItemReactor* m_newcomer;
};

// Stands for an item: the reactors only see its address.
KyDiItem* anItem() {
    static int token = 0;
    return reinterpret_cast<KyDiItem*>(&token);
}

}  // namespace

TEST_F(ItemReactors, ChangesToTheListDuringANotificationCountFromTheNextOne) {
    Journal journal;
    NamedReactor removed("removed", journal);
    NamedReactor newcomer("newcomer", journal);
    MeddlingReactor meddler(journal, &removed, &newcomer);
    KyDiManager::addReactor(&meddler);
    KyDiManager::addReactor(&removed);

    KyDiManagerModule::notifyItemDeleted(anItem());
    EXPECT_EQ(journal.lines, (std::vector<std::string>{"meddler", "removed"}));

    journal.lines.clear();
    KyDiManagerModule::notifyItemDeleted(anItem());
    EXPECT_EQ(journal.lines, (std::vector<std::string>{"meddler", "newcomer"}));
    KyDiManager::removeReactor(&meddler);
    KyDiManager::removeReactor(&newcomer);
}

TEST_F(ItemReactors, ReactorAddedTwiceHearsTwiceAndLeavesOneAtATime) {
    Journal journal;
    NamedReactor first("first", journal);
    NamedReactor second("second", journal);
    KyDiManager::addReactor(&first);
    KyDiManager::addReactor(&second);
    KyDiManager::addReactor(&first);
    KyDiManager::addReactor(static_cast<KyDiDataItemReactor*>(nullptr));
    KyDiManager::removeReactor(&first);

    KyDiManagerModule::notifyItemDeleted(anItem());
    EXPECT_EQ(journal.lines, (std::vector<std::string>{"second", "first"}))
        << "the first occurrence went; the order of the others stays";
    KyDiManager::removeReactor(&first);
    KyDiManager::removeReactor(&second);
}

namespace {

// A member of no particular kind, and a property.
class PlainMember final : public KyRxMember {
public:
    explicit PlainMember(const wchar_t* name, const KyRxObject* owner = nullptr)
        : KyRxMember(name, KyRxValueType::Desc<int>::value(), owner) {}
};

class LabelProperty final : public KyRxProperty {
public:
    explicit LabelProperty(const KyRxObject* owner)
        : KyRxProperty(L"Label", KyRxValueType::Desc<KyString>::value(), owner) {}
};

void buildTagMembers(KyRxMemberCollectionBuilder& builder, void*) {
    builder.add(new LabelProperty(builder.owner()));
    builder.add(new PlainMember(L"Plain", builder.owner()));
}

class Tag : public KyRxObject {
public:
    static KyRxClass* desc() {
        static KyRxClass* s_class =
            newKyRxClass(L"KyDiTestTag", L"KyRxObject", 0, 0, 0, nullptr, nullptr, nullptr, nullptr,
                         buildTagMembers, nullptr);
        return s_class;
    }
    KyRxClass* isA() const override { return desc(); }
};

class WrappedMembers : public kytest::RefHostFixture {};
class ReferencePaths : public kytest::RefHostFixture {};

}  // namespace

TEST_F(WrappedMembers, WrapperDiesWithTheHostMemberItStandsFor) {
    const int live = KyRxMember::liveCount();
    auto* hostMember = new PlainMember(L"Color");
    auto* other = new PlainMember(L"Layer");
    KyDiManagerModule::registerWrappedMember(hostMember, new PlainMember(L"Color"));

    KyRxMember::deleteMember(other);
    EXPECT_EQ(KyRxMember::liveCount(), live + 2) << "a member without a wrapper changes nothing";
    KyRxMember::deleteMember(hostMember);
    EXPECT_EQ(KyRxMember::liveCount(), live);
}

TEST_F(WrappedMembers, WrappersStillStandingGoAtTheStop) {
    const int live = KyRxMember::liveCount();
    auto* hostMember = new PlainMember(L"Color");
    auto* replaced = new PlainMember(L"Color");
    KyDiManagerModule::registerWrappedMember(hostMember, replaced);
    KyDiManagerModule::registerWrappedMember(hostMember, new PlainMember(L"Color"));
    KyDiManagerModule::registerWrappedMember(nullptr, replaced);

    stop();
    EXPECT_EQ(KyRxMember::liveCount(), live + 2) << "the host member and the replaced wrapper";
    KyRxMember::deleteMember(hostMember);
    KyRxMember::deleteMember(replaced);
}

TEST_F(ReferencePaths, ResolveToPropertiesOnly) {
    Tag tag;
    const KyRxPropertyBase* label = KyDiManagerModule::resolveReferenceProperty(&tag, L"Label");
    ASSERT_NE(label, nullptr);
    EXPECT_STREQ(label->name(), L"Label");
    EXPECT_EQ(KyDiManagerModule::resolveReferenceProperty(&tag, L"Plain"), nullptr);
    EXPECT_EQ(KyDiManagerModule::resolveReferenceProperty(&tag, L"label"), nullptr);
    EXPECT_EQ(KyDiManagerModule::resolveReferenceProperty(nullptr, L"Label"), nullptr);
    EXPECT_EQ(KyDiManager::parseReference(L"Label", &tag), label);
    EXPECT_EQ(KyDiManager::parseReference(L"Plain", &tag), nullptr);
}
