// What a new drawing holds as standard (the "Standard" styles, the standard
// materials and visual styles, the model layout) keeps its name and can't be
// erased; what a header variable holds as current can't be erased either,
// record or dictionary entry alike. Records and entries of the user's own
// making can be both.
#include <gtest/gtest.h>

#include "DbTestSupport.h"
#include "db/KyDbDimStyleTableRecord.h"
#include "db/KyDbLayout.h"
#include "db/KyDbMLeaderStyle.h"
#include "db/KyDbMaterial.h"
#include "db/KyDbSectionViewStyle.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbTableStyle.h"
#include "db/KyDbTextStyleTableRecord.h"
#include "db/KyDbVisualStyle.h"

namespace dbtest {
namespace {

class FixedRecordTest : public DbTest {
protected:
    KyDbObjectId recordOf(KyDbObjectId tableId, const wchar_t* name) const {
        KyDbObjectPointer<KyDbSymbolTable> table(tableId, KyDb::kForRead);
        KyDbObjectId id;
        table->getAt(name, id);
        return id;
    }
    KyDbObjectId entryOf(KyDbObjectId dictionaryId, const wchar_t* key) const {
        KyDbObjectPointer<KyDbDictionary> dictionary(dictionaryId, KyDb::kForRead);
        KyDbObjectId id;
        dictionary->getAt(key, id);
        return id;
    }
    template <typename Record>
    KyDbObjectId addRecord(KyDbObjectId tableId, const wchar_t* name) {
        KyDbObjectPointer<KyDbSymbolTable> table(tableId, KyDb::kForWrite);
        auto* record = new Record();
        record->setName(name);
        KyDbObjectId id;
        EXPECT_EQ(table->add(id, record), Kyro::eOk);
        record->close();
        return id;
    }
    // A new entry of a dictionary, made by `make`.
    template <typename Object, typename Make>
    KyDbObjectId addEntry(KyDbObjectId dictionaryId, const wchar_t* key, Make make) {
        KyDbObjectPointer<KyDbDictionary> dictionary(dictionaryId, KyDb::kForWrite);
        auto* object = new Object();
        make(*object);
        KyDbObjectId id;
        EXPECT_EQ(dictionary->setAt(key, object, id), Kyro::eOk);
        object->close();
        return id;
    }
    // Renames the object `id` of class T with its own setter, in one open.
    template <typename T>
    Kyro::ErrorStatus rename(KyDbObjectId id, Kyro::ErrorStatus (T::*setter)(const wchar_t*),
                             const wchar_t* name) {
        KyDbObjectPointer<T> object(id, KyDb::kForWrite);
        return object ? (object.object()->*setter)(name) : object.openStatus();
    }
};

TEST_F(FixedRecordTest, TheStandardTextAndDimensionStylesKeepTheirNamesAndStay) {
    const KyDbObjectId text = recordOf(db->textStyleTableId(), KyDbStandardContent::kStandard);
    const KyDbObjectId dimension = recordOf(db->dimStyleTableId(), KyDbStandardContent::kStandard);
    ASSERT_FALSE(text.isNull());
    ASSERT_FALSE(dimension.isNull());
    // Other styles are made current: what is refused is the standard one.
    ASSERT_EQ(
        db->setTextstyle(addRecord<KyDbTextStyleTableRecord>(db->textStyleTableId(), L"Mono")),
        Kyro::eOk);
    ASSERT_EQ(db->setDimstyle(addRecord<KyDbDimStyleTableRecord>(db->dimStyleTableId(), L"Arch")),
              Kyro::eOk);
    for (const KyDbObjectId& id : {text, dimension}) {
        EXPECT_EQ(rename<KyDbSymbolTableRecord>(id, &KyDbSymbolTableRecord::setName, L"Plain"),
                  Kyro::eCannotBeRenamed);
        EXPECT_EQ(setErased(id, true), Kyro::eCannotBeErasedByCaller);
        EXPECT_FALSE(id.isErased());
    }
}

TEST_F(FixedRecordTest, TheStandardEntriesKeepTheirNamesAndStay) {
    struct Case {
        KyDbObjectId id;
        Kyro::ErrorStatus status;
    };
    const KyDbObjectId tableStyle =
        entryOf(db->tableStyleDictionaryId(), KyDbStandardContent::kStandard);
    const KyDbObjectId leaderStyle =
        entryOf(db->mleaderStyleDictionaryId(), KyDbStandardContent::kStandard);
    const KyDbObjectId sectionStyle =
        entryOf(db->sectionViewStyleDictionaryId(), KyDbStandardContent::kStandard);
    const KyDbObjectId global = entryOf(db->materialDictionaryId(), KyDbStandardContent::kGlobal);
    const KyDbObjectId realistic = entryOf(db->visualStyleDictionaryId(), L"Realistic");
    const KyDbObjectId model =
        entryOf(db->layoutDictionaryId(), KyDbStandardContent::kModelLayoutName);

    EXPECT_EQ(rename(tableStyle, &KyDbTableStyle::setName, L"Plain"), Kyro::eCannotBeRenamed);
    EXPECT_EQ(rename(leaderStyle, &KyDbMLeaderStyle::setName, L"Plain"), Kyro::eCannotBeRenamed);
    EXPECT_EQ(
        rename<KyDbModelDocViewStyle>(sectionStyle, &KyDbModelDocViewStyle::setName, L"Plain"),
        Kyro::eCannotBeRenamed);
    EXPECT_EQ(rename(global, &KyDbMaterial::setName, L"World"), Kyro::eCannotBeRenamed);
    EXPECT_EQ(rename(realistic, &KyDbVisualStyle::setName, L"Real"), Kyro::eCannotBeRenamed);
    EXPECT_EQ(rename(model, &KyDbLayout::setLayoutName, L"Space"), Kyro::eCannotBeRenamed);
    EXPECT_EQ(rename(global, &KyDbMaterial::setName, L"Global"), Kyro::eOk) << "an equal name";

    // The current table style is made another one first: what is refused is
    // the standard one, not the current one.
    const KyDbObjectId grid =
        addEntry<KyDbTableStyle>(db->tableStyleDictionaryId(), L"Grid",
                                 [](KyDbTableStyle& style) { style.setName(L"Grid"); });
    ASSERT_EQ(db->setTablestyle(grid), Kyro::eOk);
    for (const KyDbObjectId& id :
         {tableStyle, leaderStyle, sectionStyle, global, realistic, model}) {
        EXPECT_EQ(setErased(id, true), Kyro::eCannotBeErasedByCaller) << labelOf(id);
        EXPECT_FALSE(id.isErased());
    }
}

TEST_F(FixedRecordTest, WhatIsCurrentStaysAndWhatIsNotGoes) {
    const KyDbObjectId grid =
        addEntry<KyDbTableStyle>(db->tableStyleDictionaryId(), L"Grid",
                                 [](KyDbTableStyle& style) { style.setName(L"Grid"); });
    const KyDbObjectId brass =
        addEntry<KyDbMaterial>(db->materialDictionaryId(), L"Brass",
                               [](KyDbMaterial& material) { material.setName(L"Brass"); });
    ASSERT_EQ(db->setTablestyle(grid), Kyro::eOk);
    ASSERT_EQ(db->setCmaterial(brass), Kyro::eOk);
    EXPECT_EQ(setErased(grid, true), Kyro::eCannotBeErasedByCaller);
    EXPECT_EQ(setErased(brass, true), Kyro::eCannotBeErasedByCaller);

    ASSERT_EQ(db->setTablestyle(entryOf(db->tableStyleDictionaryId(), L"Standard")), Kyro::eOk);
    ASSERT_EQ(db->setCmaterial(entryOf(db->materialDictionaryId(), L"ByLayer")), Kyro::eOk);
    EXPECT_EQ(rename(grid, &KyDbTableStyle::setName, L"Lattice"), Kyro::eOk);
    EXPECT_EQ(setErased(grid, true), Kyro::eOk);
    EXPECT_EQ(setErased(brass, true), Kyro::eOk);
}

}  // namespace
}  // namespace dbtest
