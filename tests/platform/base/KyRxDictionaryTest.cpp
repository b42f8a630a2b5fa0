#include "rx/KyRxDictionary.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "rx/KyRxClass.h"
#include "rx/KyRxDynamicLinker.h"

namespace {

// Counts its own destruction.
class Tracked : public KyRxObject {
public:
    explicit Tracked(int* deleted) : m_deleted(deleted) {}
    ~Tracked() override { ++*m_deleted; }

private:
    int* m_deleted;
};

std::vector<std::wstring> keysOf(const KyRxDictionary& dictionary) {
    std::vector<std::wstring> keys;
    std::unique_ptr<KyRxDictionaryIterator> it(dictionary.newIterator());
    for (; !it->done(); it->next()) {
        keys.emplace_back(it->key());
    }
    return keys;
}

TEST(BaseDictionary, PutsFindsReplacesAndRemovesByName) {
    int deleted = 0;
    Tracked first(&deleted);
    Tracked second(&deleted);
    KyRxDictionary dictionary;
    EXPECT_EQ(nullptr, dictionary.atPut(L"Walls", &first));
    EXPECT_EQ(&first, dictionary.at(L"Walls"));
    EXPECT_TRUE(dictionary.has(L"Walls"));
    EXPECT_FALSE(dictionary.has(L"walls"));  // names are case-sensitive
    EXPECT_EQ(1, dictionary.numEntries());

    EXPECT_EQ(&first, dictionary.atPut(L"Walls", &second));
    EXPECT_EQ(&second, dictionary.at(L"Walls"));
    EXPECT_EQ(1, dictionary.numEntries());

    EXPECT_EQ(&second, dictionary.remove(L"Walls"));
    EXPECT_EQ(nullptr, dictionary.remove(L"Walls"));
    EXPECT_EQ(nullptr, dictionary.at(L"Walls"));
    EXPECT_EQ(0, dictionary.numEntries());
    EXPECT_EQ(nullptr, dictionary.at(nullptr));
    EXPECT_EQ(0, deleted);  // the dictionary does not own its entries
}

TEST(BaseDictionary, IteratesInKeyOrder) {
    int deleted = 0;
    Tracked a(&deleted), b(&deleted), c(&deleted);
    KyRxDictionary dictionary;
    dictionary.atPut(L"b", &b);
    dictionary.atPut(L"c", &c);
    dictionary.atPut(L"B", &a);
    dictionary.atPut(L"a", &a);
    EXPECT_EQ((std::vector<std::wstring>{L"B", L"a", L"b", L"c"}), keysOf(dictionary));

    std::unique_ptr<KyRxDictionaryIterator> it(dictionary.newIterator());
    ASSERT_FALSE(it->done());
    EXPECT_EQ(&a, it->object());
    EXPECT_TRUE(it->next());
    EXPECT_TRUE(it->next());
    EXPECT_EQ(&b, it->object());
    EXPECT_TRUE(it->next());
    EXPECT_FALSE(it->next());
    EXPECT_TRUE(it->done());
    EXPECT_EQ(nullptr, it->object());

    std::unique_ptr<KyRxDictionaryIterator> empty(KyRxDictionary().newIterator());
    EXPECT_TRUE(empty->done());
}

TEST(BaseDictionary, AnIteratorSurvivesRemovalOfTheCurrentEntry) {
    int deleted = 0;
    Tracked a(&deleted), b(&deleted), c(&deleted);
    KyRxDictionary dictionary;
    dictionary.atPut(L"a", &a);
    dictionary.atPut(L"b", &b);
    dictionary.atPut(L"c", &c);
    std::vector<std::wstring> seen;
    std::unique_ptr<KyRxDictionaryIterator> it(dictionary.newIterator());
    for (; !it->done(); it->next()) {
        seen.emplace_back(it->key());
        dictionary.remove(it->key());
    }
    EXPECT_EQ((std::vector<std::wstring>{L"a", L"b", L"c"}), seen);
    EXPECT_EQ(0, dictionary.numEntries());
}

TEST(BaseDictionary, AnOwningDictionaryDeletesItsEntries) {
    int deleted = 0;
    {
        KyRxDictionary owning(true);
        owning.atPut(L"one", new Tracked(&deleted));
        owning.atPut(L"two", new Tracked(&deleted));
        delete owning.remove(L"two");
        EXPECT_EQ(1, deleted);
    }
    EXPECT_EQ(2, deleted);
}

TEST(BaseRegistry, HoldsTheClassAndServiceDictionariesAndTheLinker) {
    KyRxDictionary* registry = kyrxSysRegistry();
    ASSERT_NE(nullptr, registry);
    EXPECT_EQ(registry, kyrxSysRegistry());
    EXPECT_EQ((std::vector<std::wstring>{KYRX_CLASS_DICTIONARY, KYRX_DYNAMIC_LINKER,
                                         KYRX_SERVICE_DICTIONARY}),
              keysOf(*registry));
    EXPECT_EQ(kyrxClassDictionary(), registry->at(L"ClassDictionary"));
    EXPECT_NE(nullptr, kyrxCast<KyRxDictionary>(registry->at(L"ServiceDictionary")));
    EXPECT_NE(nullptr, kyrxCast<KyRxDynamicLinker>(registry->at(L"DynamicLinker")));
}

TEST(BaseRegistry, TheClassDictionaryListsTheRegistryClasses) {
    KyRxClass* dictionaryClass = KyRxDictionary::desc();
    ASSERT_NE(nullptr, dictionaryClass);
    EXPECT_STREQ(L"KyRxDictionary", dictionaryClass->name());
    EXPECT_EQ(KyRxObject::desc(), dictionaryClass->myParent());
    EXPECT_EQ(dictionaryClass, kyrxClassDictionary()->at(L"KyRxDictionary"));
    EXPECT_EQ(KyRxDynamicLinker::desc(), kyrxFindKyRxClass(L"KyRxDynamicLinker"));
    EXPECT_EQ(KyRxService::desc(), kyrxFindKyRxClass(L"KyRxService"));
    EXPECT_EQ(dictionaryClass, kyrxClassDictionary()->isA());
}

}  // namespace
