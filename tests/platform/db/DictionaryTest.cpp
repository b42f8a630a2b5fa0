// Dictionaries: entries in the order they were put in, keys without regard to
// case, replacement, removal, hidden erased entries, nesting, renaming, undo,
// and the change an entry's erase makes to its dictionary.
#include <gtest/gtest.h>

#include <memory>

#include "DbTestSupport.h"
#include "db/KyDbDictionaryIterator.h"
#include "db/KyDbDictionaryWithDefault.h"
#include "db/KyDbMaterial.h"
#include "db/KyDbPlaceHolder.h"

namespace dbtest {
namespace {

class DictionaryTest : public DbTest {
protected:
    DictionaryTest() {
        KyDbDictionary* root = nullptr;
        db->getNamedObjectsDictionary(root, KyDb::kForWrite);
        auto* dictionary = new KyDbDictionary();
        root->setAt(L"TEST_DICTIONARY", dictionary, dictionaryId);
        dictionary->close();
        root->close();
    }

    KyDbObjectId put(const wchar_t* key, const wchar_t* name) {
        KyDbObjectPointer<KyDbDictionary> dictionary(dictionaryId, KyDb::kForWrite);
        auto* material = new KyDbMaterial();
        material->setName(name);
        KyDbObjectId id;
        EXPECT_EQ(dictionary->setAt(key, material, id), Kyro::eOk);
        material->close();
        return id;
    }
    // "key=name" of every entry, in the iterator's order.
    Lines entries() const {
        KyDbObjectPointer<KyDbDictionary> dictionary(dictionaryId, KyDb::kForRead);
        std::unique_ptr<KyDbDictionaryIterator> it(dictionary->newIterator());
        Lines lines;
        for (; !it->done(); it->next()) {
            KyDbObject* object = nullptr;
            it->getObject(object, KyDb::kForRead);
            lines.push_back(KyString(it->name()).utf8() + "=" +
                            static_cast<KyDbMaterial*>(object)->name().utf8());
            EXPECT_EQ(object->objectId(), it->objectId());
            object->close();
        }
        return lines;
    }

    KyDbObjectId dictionaryId;
};

TEST_F(DictionaryTest, EntriesKeepTheOrderTheyWerePutIn) {
    put(L"Zinc", L"zinc");
    put(L"Brass", L"brass");
    put(L"Oak", L"oak");
    EXPECT_EQ(entries(), (Lines{"Zinc=zinc", "Brass=brass", "Oak=oak"}));
}

TEST_F(DictionaryTest, KeysMatchWithoutRegardToCaseAndAReplacedObjectIsErased) {
    const KyDbObjectId brass = put(L"Brass", L"brass");
    put(L"Oak", L"oak");
    const KyDbObjectId polished = put(L"BRASS", L"polished brass");
    EXPECT_TRUE(brass.isErased());
    EXPECT_EQ(entries(), (Lines{"BRASS=polished brass", "Oak=oak"})) << "the place is kept";

    KyDbObjectPointer<KyDbDictionary> dictionary(dictionaryId, KyDb::kForRead);
    KyDbObjectId found;
    ASSERT_EQ(dictionary->getAt(L"brass", found), Kyro::eOk);
    EXPECT_EQ(found, polished);
    KyString key;
    ASSERT_EQ(dictionary->nameAt(polished, key), Kyro::eOk);
    EXPECT_EQ(key, KyString(L"BRASS"));
    EXPECT_EQ(dictionary->nameAt(brass, key), Kyro::eKeyNotFound);
    EXPECT_EQ(dictionary->getAt(L"", found), Kyro::eInvalidInput);
    EXPECT_EQ(dictionary->numEntries(), 2);
}

TEST_F(DictionaryTest, RemovingAnEntryLeavesItsObjectInTheDatabase) {
    const KyDbObjectId zinc = put(L"Zinc", L"zinc");
    put(L"Oak", L"oak");
    KyDbObjectPointer<KyDbDictionary> dictionary(dictionaryId, KyDb::kForWrite);
    KyDbObjectId removed;
    ASSERT_EQ(dictionary->remove(L"ZINC", removed), Kyro::eOk);
    EXPECT_EQ(removed, zinc);
    EXPECT_FALSE(zinc.isErased());
    EXPECT_TRUE(zinc.isValid());
    EXPECT_FALSE(dictionary->has(zinc));
    EXPECT_EQ(dictionary->remove(L"Zinc"), Kyro::eKeyNotFound);
    dictionary.close();
    EXPECT_EQ(entries(), (Lines{"Oak=oak"}));
}

TEST_F(DictionaryTest, AnErasedEntryIsHiddenUntilItComesBack) {
    put(L"Zinc", L"zinc");
    const KyDbObjectId oak = put(L"Oak", L"oak");
    setErased(oak, true);
    EXPECT_EQ(entries(), (Lines{"Zinc=zinc"}));
    {
        KyDbObjectPointer<KyDbDictionary> dictionary(dictionaryId, KyDb::kForRead);
        KyDbObjectId found;
        EXPECT_EQ(dictionary->getAt(L"Oak", found), Kyro::eKeyNotFound);
        EXPECT_EQ(dictionary->numEntries(), 1);
    }
    setErased(oak, false);
    EXPECT_EQ(entries(), (Lines{"Zinc=zinc", "Oak=oak"}));
}

TEST_F(DictionaryTest, AnEntryCanBeRenamedToAFreeKey) {
    put(L"Zinc", L"zinc");
    put(L"Oak", L"oak");
    KyDbObjectPointer<KyDbDictionary> dictionary(dictionaryId, KyDb::kForWrite);
    EXPECT_EQ(dictionary->setName(L"Zinc", L"OAK"), Kyro::eDuplicateKey);
    EXPECT_EQ(dictionary->setName(L"Lead", L"Tin"), Kyro::eKeyNotFound);
    EXPECT_EQ(dictionary->setName(L"zinc", L"Tin"), Kyro::eOk);
    dictionary.close();
    EXPECT_EQ(entries(), (Lines{"Tin=zinc", "Oak=oak"}));
}

TEST_F(DictionaryTest, DictionariesNestAndTheRootFindsTheirPath) {
    KyDbObjectId inner;
    {
        KyDbObjectPointer<KyDbDictionary> outer(dictionaryId, KyDb::kForWrite);
        auto* dictionary = new KyDbDictionary();
        ASSERT_EQ(outer->setAt(L"Inner", dictionary, inner), Kyro::eOk);
        auto* material = new KyDbMaterial();
        material->setName(L"deep");
        KyDbObjectId deep;
        ASSERT_EQ(dictionary->setAt(L"Deep", material, deep), Kyro::eOk);
        material->close();
        dictionary->close();
    }
    KyDbObjectPointer<KyDbDictionary> root(db->namedObjectsDictionaryId(), KyDb::kForRead);
    KyDbObjectId step;
    ASSERT_EQ(root->getAt(L"test_dictionary", step), Kyro::eOk);
    KyDbObjectPointer<KyDbDictionary> outer(step, KyDb::kForRead);
    ASSERT_EQ(outer->getAt(L"INNER", step), Kyro::eOk);
    EXPECT_EQ(step, inner);
    KyDbObjectPointer<KyDbDictionary> nested(step, KyDb::kForRead);
    KyDbObject* deep = nullptr;
    ASSERT_EQ(nested->getAt(L"deep", deep, KyDb::kForRead), Kyro::eOk);
    EXPECT_EQ(static_cast<KyDbMaterial*>(deep)->name(), KyString(L"deep"));
    EXPECT_EQ(deep->ownerId(), inner);
    deep->close();
}

TEST_F(DictionaryTest, WritesNeedTheDictionaryOpenForWrite) {
    KyDbObjectPointer<KyDbDictionary> dictionary(dictionaryId, KyDb::kForRead);
    auto* material = new KyDbMaterial();
    KyDbObjectId id;
    EXPECT_EQ(dictionary->setAt(L"Zinc", material, id), Kyro::eWasNotOpenForWrite);
    EXPECT_EQ(dictionary->remove(L"Zinc"), Kyro::eWasNotOpenForWrite);
    delete material;
    KyDbDictionary loose;
    auto* other = new KyDbMaterial();
    EXPECT_EQ(loose.setAt(L"Zinc", other, id), Kyro::eNotInDatabase);
    delete other;
}

TEST_F(DictionaryTest, UndoOfAPutTakesTheEntryOutAndErasesItsObject) {
    put(L"Zinc", L"zinc");
    undo()->beginUndoGroup();
    const KyDbObjectId oak = put(L"Oak", L"oak");
    undo()->endUndoGroup();
    ObjectSpy spy(log);
    {
        KyDbObjectPointer<KyDbObject> dictionary(dictionaryId, KyDb::kForNotify);
        dictionary->addReactor(&spy);
    }
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_TRUE(oak.isErased());
    EXPECT_EQ(entries(), (Lines{"Zinc=zinc"}));
    EXPECT_EQ(log.lines(), (Lines{"modifyUndone KyDbDictionary", "modified KyDbDictionary",
                                  "objectClosed KyDbDictionary"}));
    ASSERT_EQ(undo()->redo(), Kyro::eOk);
    EXPECT_EQ(entries(), (Lines{"Zinc=zinc", "Oak=oak"}));
    KyDbObjectPointer<KyDbObject> dictionary(dictionaryId, KyDb::kForNotify);
    dictionary->removeReactor(&spy);
}

// An entry's erase, unerase, undo and redo each change what the dictionary
// shows: its reactors hear modified and objectClosed right after the entry's
// erased, before the entry's own close.
TEST_F(DictionaryTest, AnEntryErasedOrBroughtBackChangesItsDictionaryAtOnce) {
    put(L"Zinc", L"zinc");
    const KyDbObjectId oak = put(L"Oak", L"oak");
    ObjectSpy dictionarySpy(log, "dictionary ");
    ObjectSpy entrySpy(log, "entry ");
    DatabaseSpy databaseSpy(log);
    watch(dictionaryId, &dictionarySpy);
    watch(oak, &entrySpy);
    db->addReactor(&databaseSpy);
    const Lines erase = {
        "entry openedForModify KyDbMaterial",     "db.objectOpenedForModify KyDbMaterial",
        "entry erased(true) KyDbMaterial",        "db.objectErased(true) KyDbMaterial",
        "dictionary modified KyDbDictionary",     "db.objectModified KyDbDictionary",
        "dictionary objectClosed KyDbDictionary", "entry modified KyDbMaterial",
        "db.objectModified KyDbMaterial",         "entry objectClosed KyDbMaterial"};

    undo()->beginUndoGroup();
    ASSERT_EQ(setErased(oak, true), Kyro::eOk);
    undo()->endUndoGroup();
    EXPECT_EQ(log.lines(), erase);
    EXPECT_EQ(entries(), (Lines{"Zinc=zinc"}));
    log.clear();

    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_EQ(log.lines(),
              (Lines{"entry erased(false) KyDbMaterial", "db.objectErased(false) KyDbMaterial",
                     "dictionary modified KyDbDictionary", "db.objectModified KyDbDictionary",
                     "dictionary objectClosed KyDbDictionary", "entry modified KyDbMaterial",
                     "db.objectModified KyDbMaterial", "entry objectClosed KyDbMaterial"}));
    EXPECT_EQ(entries(), (Lines{"Zinc=zinc", "Oak=oak"}));
    log.clear();

    ASSERT_EQ(undo()->redo(), Kyro::eOk);
    EXPECT_EQ(log.lines(),
              (Lines{"entry erased(true) KyDbMaterial", "db.objectErased(true) KyDbMaterial",
                     "dictionary modified KyDbDictionary", "db.objectModified KyDbDictionary",
                     "dictionary objectClosed KyDbDictionary", "entry modified KyDbMaterial",
                     "db.objectModified KyDbMaterial", "entry objectClosed KyDbMaterial"}));
    EXPECT_EQ(entries(), (Lines{"Zinc=zinc"}));
    log.clear();

    ASSERT_EQ(setErased(oak, false), Kyro::eOk);
    EXPECT_EQ(log.lines(),
              (Lines{"entry openedForModify KyDbMaterial", "db.objectOpenedForModify KyDbMaterial",
                     "entry erased(false) KyDbMaterial", "db.objectErased(false) KyDbMaterial",
                     "dictionary modified KyDbDictionary", "db.objectModified KyDbDictionary",
                     "dictionary objectClosed KyDbDictionary", "entry modified KyDbMaterial",
                     "db.objectModified KyDbMaterial", "entry objectClosed KyDbMaterial"}));
    EXPECT_EQ(entries(), (Lines{"Zinc=zinc", "Oak=oak"}));
    db->removeReactor(&databaseSpy);
}

// A dictionary open for write while an entry of it is erased tells the
// change once, at its own close; an object taken out of the dictionary
// changes it no more.
TEST_F(DictionaryTest, ADictionaryOpenForWriteTellsAnEntrysEraseAtItsClose) {
    const KyDbObjectId zinc = put(L"Zinc", L"zinc");
    const KyDbObjectId oak = put(L"Oak", L"oak");
    ObjectSpy dictionarySpy(log, "dictionary ");
    watch(dictionaryId, &dictionarySpy);
    {
        KyDbObjectPointer<KyDbDictionary> dictionary(dictionaryId, KyDb::kForWrite);
        ASSERT_EQ(setErased(oak, true), Kyro::eOk);
        EXPECT_EQ(log.lines(), (Lines{"dictionary openedForModify KyDbDictionary"}));
        EXPECT_EQ(dictionary->numEntries(), 1);
        log.clear();
    }
    EXPECT_EQ(log.lines(), (Lines{"dictionary modified KyDbDictionary",
                                  "dictionary objectClosed KyDbDictionary"}));
    {
        KyDbObjectPointer<KyDbDictionary> dictionary(dictionaryId, KyDb::kForWrite);
        ASSERT_EQ(dictionary->remove(zinc), Kyro::eOk);
    }
    log.clear();
    ASSERT_EQ(setErased(zinc, true), Kyro::eOk);
    EXPECT_EQ(log.lines(), Lines{});
}

TEST_F(DictionaryTest, ADictionaryWithADefaultNamesOneOfItsEntries) {
    KyDbObjectPointer<KyDbDictionaryWithDefault> styles(db->plotStyleNameDictionaryId(),
                                                        KyDb::kForWrite);
    ASSERT_TRUE(styles);
    KyDbObjectId normal;
    ASSERT_EQ(styles->getAt(L"Normal", normal), Kyro::eOk);
    EXPECT_EQ(styles->defaultId(), normal);
    EXPECT_EQ(styles->setDefaultId(db->layerTableId()), Kyro::eKeyNotFound);
    auto* draft = new KyDbPlaceHolder();
    KyDbObjectId draftId;
    styles->setAt(L"Draft", draft, draftId);
    draft->close();
    EXPECT_EQ(styles->setDefaultId(draftId), Kyro::eOk);
    EXPECT_EQ(styles->defaultId(), draftId);
}

}  // namespace
}  // namespace dbtest
