// Making a layout current: a paper layout's block takes the name *Paper_Space
// from the block that had it, tilemode follows, and undo puts the names back;
// what can't be made current is refused with its status.
#include <gtest/gtest.h>

#include "DbTestSupport.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbLayout.h"
#include "db/KyDbSymbolTable.h"

namespace dbtest {
namespace {

class CurrentLayoutTest : public DbTest {
protected:
    CurrentLayoutTest()
        : model(layoutNamed(L"Model")),
          first(layoutNamed(L"Layout1")),
          firstBlock(blockId(L"*Paper_Space")) {
        // A second sheet, as a host adds one: its own block *Paper_Space0.
        KyDbObjectPointer<KyDbSymbolTable> blocks(db->blockTableId(), KyDb::kForWrite);
        auto* block = new KyDbBlockTableRecord();
        block->setName(L"*Paper_Space0");
        blocks->add(sheetBlock, block);
        KyDbObjectPointer<KyDbDictionary> layouts(db->layoutDictionaryId(), KyDb::kForWrite);
        auto* layout = new KyDbLayout();
        layout->setLayoutName(L"Sheet");
        layout->setTabOrder(2);
        layout->setBlockTableRecordId(sheetBlock);
        layouts->setAt(L"Sheet", layout, sheet);
        layout->close();
        block->setLayoutId(sheet);
        block->close();
    }

    KyDbObjectId layoutNamed(const wchar_t* name) const {
        KyDbObjectPointer<KyDbDictionary> layouts(db->layoutDictionaryId(), KyDb::kForRead);
        KyDbObjectId id;
        layouts->getAt(name, id);
        return id;
    }

    std::string nameOf(KyDbObjectId block) const {
        KyDbObjectPointer<KyDbBlockTableRecord> record(block, KyDb::kForRead);
        return record->name().utf8();
    }

    KyDbObjectId model;
    KyDbObjectId first;
    KyDbObjectId firstBlock;
    KyDbObjectId sheet;
    KyDbObjectId sheetBlock;
};

TEST_F(CurrentLayoutTest, ASheetTakesThePaperSpaceNameAndUndoGivesItBack) {
    ObjectSpy spy(log);
    watch(sheetBlock, &spy);
    ASSERT_EQ(kydbSetCurrentLayoutId(db, sheet), Kyro::eOk);
    EXPECT_FALSE(db->tilemode());
    EXPECT_EQ(kydbCurrentLayoutId(db), sheet);
    EXPECT_EQ(nameOf(sheetBlock), "*Paper_Space");
    EXPECT_EQ(nameOf(firstBlock), "*Paper_Space0");
    EXPECT_EQ(blockId(L"*Paper_Space"), sheetBlock) << "the table finds the blocks by their names";
    EXPECT_EQ(blockId(L"*Paper_Space0"), firstBlock);
    EXPECT_EQ(log.lines(), (Lines{"openedForModify *Paper_Space0", "modified *Paper_Space",
                                  "objectClosed *Paper_Space"}));

    ASSERT_EQ(kydbSetCurrentLayoutId(db, model), Kyro::eOk);
    EXPECT_TRUE(db->tilemode());
    EXPECT_EQ(nameOf(sheetBlock), "*Paper_Space") << "model space leaves the sheets as they are";
    ASSERT_EQ(db->setTilemode(false), Kyro::eOk);
    EXPECT_EQ(kydbCurrentLayoutId(db), sheet) << "the paper shown last comes back";

    // Tilemode off, on, off, and the hand-over of the name.
    for (int i = 0; i < 4; ++i) {
        ASSERT_EQ(undo()->undo(), Kyro::eOk);
    }
    EXPECT_TRUE(db->tilemode());
    EXPECT_EQ(blockId(L"*Paper_Space"), firstBlock);
    EXPECT_EQ(blockId(L"*Paper_Space0"), sheetBlock);
    ASSERT_EQ(kydbSetCurrentLayoutId(db, first), Kyro::eOk);
    EXPECT_EQ(kydbCurrentLayoutId(db), first);
}

TEST_F(CurrentLayoutTest, OnlyALiveLayoutOfTheDrawingCanBeCurrent) {
    EXPECT_EQ(kydbSetCurrentLayoutId(db, KyDbObjectId()), Kyro::eNullObjectId);
    EXPECT_EQ(kydbSetCurrentLayoutId(db, sheetBlock), Kyro::eNotThatKindOfClass);
    KyDbDatabase other;
    EXPECT_EQ(kydbSetCurrentLayoutId(&other, sheet), Kyro::eWrongDatabase);
    ASSERT_EQ(setErased(sheet, true), Kyro::eOk);
    EXPECT_EQ(kydbSetCurrentLayoutId(db, sheet), Kyro::eWasErased);
    ASSERT_EQ(setErased(sheet, false), Kyro::eOk);

    db->setLockRequired(true);
    EXPECT_EQ(kydbSetCurrentLayoutId(db, sheet), Kyro::eLockViolation);
    db->setLockRequired(false);
    EXPECT_EQ(nameOf(firstBlock), "*Paper_Space");
    EXPECT_TRUE(db->tilemode());

    // The name stays fixed for anything but the hand-over.
    KyDbObjectPointer<KyDbBlockTableRecord> paper(firstBlock, KyDb::kForWrite);
    KyDbObjectPointer<KyDbBlockTableRecord> modelBlock(blockId(L"*Model_Space"), KyDb::kForWrite);
    EXPECT_EQ(paper->setName(L"Sheet block"), Kyro::eCannotBeRenamed);
    EXPECT_EQ(modelBlock->takePaperSpaceName(paper.object()), Kyro::eNotApplicable);
}

}  // namespace
}  // namespace dbtest
