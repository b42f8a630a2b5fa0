// A collection whose items are matched by name, as the collections of names
// the host keeps (plot style tables, filters) are: a refill keeps the old
// item of each name, gives the new one up, adds new names at the end and
// removes names that went.
#include <gtest/gtest.h>

#include <vector>

#include "collections/CollectionFixture.h"
#include "collections/KyDiImpNamedCollection.h"
#include "kydi/KyDiDataItemFactory.h"
#include "kydi/KyDiDataItemReactor.h"

namespace {

using kytest::CollectionSpy;
using kytest::ContractChecker;
using Lines = std::vector<std::string>;

// Lists the names of `source`, each fill with new item objects.
class NamesCollection : public KyDiImpNamedCollection {
public:
    explicit NamesCollection(const std::vector<std::wstring>& source)
        : KyDiImpNamedCollection(L"NAMES"), m_source(source) {}

    bool subFill(bool /*initial*/, KyDbDatabase* /*db*/, KyDiItemArray& list,
                 void** /*context*/) override {
        list.setLogicalLength(0);
        for (const std::wstring& name : m_source) {
            list.append(createDataItem(name.c_str(), KyRxValue(static_cast<int>(name.size()))));
        }
        return true;
    }

private:
    const std::vector<std::wstring>& m_source;
};

class Deletions : public KyDiDataItemReactor {
public:
    Deletions() { KyDiManager::addReactor(this); }
    ~Deletions() override { KyDiManager::removeReactor(this); }
    Deletions(const Deletions&) = delete;
    Deletions& operator=(const Deletions&) = delete;
    void itemDeleted(KyDiItem*) override { ++count; }
    int count = 0;
};

class NamedCollections : public kytest::CollectionFixture {};

TEST_F(NamedCollections, ARefillKeepsTheOldItemOfEachNameAndGivesTheNewOneUp) {
    std::vector<std::wstring> source{L"A", L"B", L"C"};
    auto* body = new NamesCollection(source);
    KyDiObservableCollection collection(body);
    body->bindToDocument(host.documents().currentDocument());
    body->update();
    ContractChecker checker(&collection, "NAMES");
    CollectionSpy spy(&collection);
    KyDiDynamicObject* b = collection.getItems()[1];

    source = {L"D", L"C", L"B"};
    body->requestRefill();
    Deletions deletions;
    body->update();
    EXPECT_EQ(spy.take(), (Lines{"itemsChanged added=[D] removed=[A]"}));
    EXPECT_EQ(names(&collection), (std::vector<std::string>{"B", "C", "D"}))
        << "survivors keep their order; a new name stands at the end";
    EXPECT_EQ(collection.getItems()[0], b) << "the old item of a name stays";
    // Given up: the new items of B and C, and A once its report was over.
    EXPECT_EQ(deletions.count, 3);
    checker.expectInStep();

    body->requestReset();
    body->update();
    EXPECT_EQ(spy.take(), Lines{"collectionReset"});
    EXPECT_EQ(names(&collection), (std::vector<std::string>{"D", "C", "B"}))
        << "a reset brings the fill's order back";
    collection.destroy();
}

}  // namespace
