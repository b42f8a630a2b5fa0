// The context manager: contexts by name and by factory, what the contexts
// report summed up once a pass (the active contexts, or each record), and
// the built contexts' lives.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "contexts/ContextFactories.h"
#include "contexts/ManagerSpy.h"
#include "kydi/KyDiContextBase.h"
#include "kydi/KyDiContextChange.h"
#include "kydi/KyDiContextIterator.h"
#include "kydi/KyDiContextManager.h"
#include "kydi/KyDiContextReactor.h"
#include "manager/KyDiManagerState.h"
#include "manager/RefHostFixture.h"

namespace {

using kytest::ManagerSpy;

using Lines = std::vector<std::string>;

// A context whose activity a test sets and which reports what it is told to.
class TestContext : public KyDiContextBase {
public:
    explicit TestContext(const wchar_t* name, Lines* journal = nullptr)
        : KyDiContextBase(name), m_journal(journal) {}
    ~TestContext() override {
        if (m_journal != nullptr) {
            m_journal->push_back("deleted " + name().utf8());
        }
    }
    void report(const wchar_t* member, void* data = nullptr) { notifyChanged(this, member, data); }
    bool active = true;

    void subTerminate() override {
        if (m_journal != nullptr) {
            m_journal->push_back("terminate " + name().utf8());
        }
    }

protected:
    KyRxMemberIterator* subNewMemberIterator() override { return nullptr; }
    bool subIsActive() const override { return active; }

private:
    Lines* m_journal;
};

Lines* g_journal = nullptr;
int g_built = 0;

KyDiContext* buildAlpha(const wchar_t* name) {
    ++g_built;
    return new TestContext(name, g_journal);
}

KyDiContext* buildNothing(const wchar_t*) {
    return nullptr;
}

// Registers another row while it is called.
KyDiContext* buildAndRegister(const wchar_t* name) {
    ContextFactories::registerFactory(L"LATE", &buildAlpha);
    return new TestContext(name, g_journal);
}

class Contexts : public kytest::RefHostFixture {
protected:
    void SetUp() override {
        RefHostFixture::SetUp();
        g_journal = &journal;
        g_built = 0;
        manager = KyDiManager::getContextManager();
    }
    void TearDown() override {
        RefHostFixture::TearDown();
        g_journal = nullptr;
    }
    static void pass() { KyDiManager::refresh(); }

    Lines journal;
    KyDiContextManager* manager = nullptr;
};

TEST_F(Contexts, AFactoryBuildsAContextOnceAndNamesMatchExactly) {
    ContextFactories::registerFactory(L"ALPHA", &buildNothing);
    ContextFactories::registerFactory(L"ALPHA", &buildAlpha);
    EXPECT_EQ(KyDiManager::getContextManager(), manager);
    EXPECT_EQ(manager->getContext(L"ALPHA", false), nullptr);
    KyDiContext* alpha = manager->getContext(L"ALPHA", true);
    ASSERT_NE(alpha, nullptr) << "a row that builds nothing hands on to the next";
    EXPECT_EQ(manager->getContext(L"ALPHA", true), alpha);
    EXPECT_EQ(g_built, 1);
    EXPECT_EQ(manager->getContext(L"alpha", true), nullptr);
    EXPECT_STREQ(manager->getName(alpha), L"ALPHA");
    EXPECT_EQ(manager->getName(nullptr), nullptr);

    ContextFactories::registerFactory(L"EARLY", &buildAndRegister);
    ASSERT_NE(manager->getContext(L"EARLY", true), nullptr);
    EXPECT_NE(manager->getContext(L"LATE", true), nullptr) << "a row a factory registered";
}

TEST_F(Contexts, ASecondContextUnderANameInUseIsRefusedAndHearsNothing) {
    TestContext first(L"ONE");
    TestContext second(L"ONE");
    manager->addContext(L"ONE", &first);
    manager->addContext(L"ONE", &second);
    EXPECT_EQ(manager->getContext(L"ONE", false), &first);
    EXPECT_EQ(second.getReactors().length(), 0);
    EXPECT_EQ(first.getReactors().length(), 1);
    manager->removeContext(L"ONE");
    EXPECT_EQ(first.getReactors().length(), 0);
}

TEST_F(Contexts, ReportsOfOnePassAreSummedUpForEveryReactorInOrder) {
    TestContext a(L"A");
    TestContext b(L"B");
    manager->addContext(L"B", &b);
    manager->addContext(L"A", &a);
    ManagerSpy first(manager);
    ManagerSpy second(manager);
    first.tag = "1 ";
    second.tag = "2 ";
    Lines all;
    pass();
    EXPECT_EQ(first.take(), (Lines{"1 activeContextsChanged"})) << "the list changed";
    second.take();
    pass();
    EXPECT_EQ(first.take(), Lines{}) << "nothing reported, nothing told";

    b.report(L"Color");
    a.report(L"Layer");
    b.report(L"Color");
    b.report(L"Linetype");
    pass();
    EXPECT_EQ(first.take(),
              (Lines{"1 contextChanged A [Layer]", "1 contextChanged B [Color, Linetype]"}));
    EXPECT_EQ(second.take(),
              (Lines{"2 contextChanged A [Layer]", "2 contextChanged B [Color, Linetype]"}));

    // A context that reported and became inactive: the set changed.
    a.report(nullptr);
    a.active = false;
    pass();
    EXPECT_EQ(first.take(), (Lines{"1 activeContextsChanged"}));
    // A removed context's record is not told.
    b.report(L"Color");
    manager->removeContext(L"A");
    a.report(L"Layer");
    pass();
    EXPECT_EQ(first.take(), (Lines{"1 activeContextsChanged"})) << "the list changed";
    manager->removeContext(L"B");
}

TEST_F(Contexts, WithoutADocumentNothingIsToldAndAfterASwitchTheSetIsToldAgain) {
    TestContext a(L"A");
    manager->addContext(L"A", &a);
    ManagerSpy spy(manager);
    pass();
    spy.take();
    KyRefDocument* first = host.documents().current();
    host.documents().newDocument();
    a.report(L"Layer");
    pass();
    EXPECT_EQ(spy.take(), (Lines{"activeContextsChanged", "contextChanged A [Layer]"}))
        << "a switch tells the set, then what changed in the new document";
    pass();
    EXPECT_EQ(spy.take(), Lines{});
    host.documents().makeCurrent(first);
    pass();
    spy.take();
    host.documents().closeDocument(first);
    pass();
    EXPECT_EQ(spy.take(), (Lines{"activeContextsChanged"})) << "the other document came forward";
    host.documents().closeAll();
    host.documents().releaseClosedDocuments();
    pass();
    a.report(L"Layer");
    pass();
    EXPECT_EQ(spy.take(), Lines{}) << "without a document nothing is told, and nothing kept";
    host.documents().newDocument();
    pass();
    EXPECT_EQ(spy.take(), (Lines{"activeContextsChanged"})) << "the next document is told";
    manager->removeContext(L"A");
}

TEST_F(Contexts, ASnapshotListsTheContextsInNameOrder) {
    TestContext b(L"B");
    TestContext a(L"A");
    manager->addContext(L"B", &b);
    manager->addContext(L"A", &a);
    const std::unique_ptr<KyDiContextIterator> contexts(manager->getContexts());
    manager->removeContext(L"A");
    std::vector<const KyDiContext*> seen;
    for (; !contexts->done(); contexts->next()) {
        seen.push_back(contexts->current());
    }
    EXPECT_EQ(seen, (std::vector<const KyDiContext*>{&a, &b}));
    manager->removeContext(L"B");
}

TEST_F(Contexts, BuiltContextsEndThenGoWhenTheLayerStops) {
    ContextFactories::registerFactory(L"ALPHA", &buildAlpha);
    ContextFactories::registerFactory(L"BETA", &buildAlpha);
    manager->getContext(L"BETA", true);
    manager->getContext(L"ALPHA", true);
    stop();
    EXPECT_EQ(journal,
              (Lines{"terminate BETA", "terminate ALPHA", "deleted BETA", "deleted ALPHA"}));
}

}  // namespace
