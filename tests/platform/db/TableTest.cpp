// Tables: what a palette reads and writes of one, its cell styles with undo,
// its sub-selection of cells (state of the session: no change, no undo, no
// notification), and the selected cells opened through the sub-entity
// provider as an object of their own.
#include <gtest/gtest.h>

#include "DbTestSupport.h"
#include "db/KyDbSubEntityProvider.h"
#include "db/KyDbTable.h"
#include "db/KyDbTableCellSelection.h"
#include "db/KyDbTableStyle.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"
#include "rx/KyRxStandardAttributes.h"

namespace dbtest {
namespace {

const KyRxProperty* findProperty(const KyRxObject* object, const wchar_t* name) {
    KyRxMemberQueryEngine* engine = KyRxMemberQueryEngine::theEngine();
    return kyrxCast<KyRxProperty>(engine->find(object, name, engine->promotingContext()));
}

template <typename T>
T valueOf(const KyRxObject* object, const wchar_t* name) {
    const KyRxProperty* property = findProperty(object, name);
    EXPECT_NE(property, nullptr) << KyString(name).utf8();
    KyRxValue value;
    if (property == nullptr || property->getValue(object, value) != Kyro::eOk) {
        return T();
    }
    const T* typed = valueCast<T>(&value);
    return typed != nullptr ? *typed : T();
}

Kyro::ErrorStatus setValue(KyRxObject* object, const wchar_t* name, const KyRxValue& value) {
    const KyRxProperty* property = findProperty(object, name);
    return property != nullptr ? property->setValue(object, value) : Kyro::eKeyNotFound;
}

std::string text(const KyString& value) {
    return value.utf8();
}

// The cell styles of a table, a row a line.
Lines rowsOf(const KyDbTable& table) {
    Lines rows;
    for (int row = 0; row < table.numRows(); ++row) {
        std::string line;
        for (int column = 0; column < table.numColumns(); ++column) {
            line += (column == 0 ? "" : " ") + text(table.cellStyle(row, column));
        }
        rows.push_back(line);
    }
    return rows;
}

class TableTest : public DbTest {
protected:
    TableTest() {
        KyDbObjectPointer<KyDbDictionary> styles(db->tableStyleDictionaryId(), KyDb::kForWrite);
        auto* style = new KyDbTableStyle();
        style->setName(L"Schedule");
        styles->setAt(L"Schedule", style, schedule);
        style->close();
        styles.close();

        auto* table = new KyDbTable();
        table->setNumRows(3);
        table->setNumColumns(2);
        tableId = addEntity(table);
    }

    KyDbObjectPointer<KyDbTable> open(KyDb::OpenMode mode = KyDb::kForRead) {
        return KyDbObjectPointer<KyDbTable>(tableId, mode);
    }

    KyDbObjectId schedule;
    KyDbObjectId tableId;
};

TEST_F(TableTest, APaletteReadsTheStyleAndSizeAndWritesThemWhenOpenForWrite) {
    {
        auto table = open();
        EXPECT_EQ(table->tableStyle(), db->tablestyle()) << "appended in the current style";
        const KyRxProperty* style = findProperty(table.object(), L"TableStyleId");
        ASSERT_NE(style, nullptr);
        const auto* refersTo = static_cast<const KyRxRefersToAttribute*>(
            style->attributes().get(KyRxRefersToAttribute::desc()));
        ASSERT_NE(refersTo, nullptr);
        EXPECT_STREQ(refersTo->path(), L"/TableStyleDictionaryId/Items");
        EXPECT_EQ(valueOf<int>(table.object(), L"Rows"), 3);
        EXPECT_EQ(valueOf<int>(table.object(), L"Columns"), 2);
        EXPECT_EQ(setValue(table.object(), L"Rows", KyRxValue(4)), Kyro::eWasNotOpenForWrite);
    }
    auto table = open(KyDb::kForWrite);
    EXPECT_EQ(setValue(table.object(), L"TableStyleId", KyRxValue(schedule)), Kyro::eOk);
    EXPECT_EQ(table->tableStyle(), schedule);
    EXPECT_EQ(table->setTableStyle(L"standard"), Kyro::eOk) << "a style by name, in any case";
    EXPECT_EQ(table->setTableStyle(L"Ledger"), Kyro::eKeyNotFound);
    EXPECT_EQ(setValue(table.object(), L"TableStyleId", KyRxValue(db->clayer())),
              Kyro::eNotThatKindOfClass);
    EXPECT_EQ(setValue(table.object(), L"Rows", KyRxValue(4)), Kyro::eOk);
    EXPECT_EQ(setValue(table.object(), L"Columns", KyRxValue(0)), Kyro::eInvalidInput);
    EXPECT_EQ(table->setNumColumns(KyDbTable::kMaxCells), Kyro::eInvalidInput)
        << "4 rows of that many columns are more cells than a table holds";
    EXPECT_EQ(table->numColumns(), 2);
}

TEST_F(TableTest, CellsHaveDataUntilGivenAStyleAndKeepTheirsWhenTheTableGrowsOrUndoes) {
    {
        auto table = open(KyDb::kForWrite);
        EXPECT_EQ(table->setCellStyle(0, 1, L"Data"), Kyro::eOk);
        EXPECT_TRUE(table->cellStyles().isEmpty()) << "the style it has is no change";
        EXPECT_FALSE(table->isModified());
        EXPECT_EQ(table->setCellStyle(3, 0, L"Title"), Kyro::eInvalidIndex);
        EXPECT_EQ(table->setCellStyle(0, 0, L""), Kyro::eInvalidInput);
    }
    undo()->beginUndoGroup();
    {
        auto table = open(KyDb::kForWrite);
        table->setCellStyle(0, 0, L"Title");
        table->setCellStyle(0, 1, L"Title");
        table->setNumColumns(3);
        table->setNumRows(2);
        EXPECT_EQ(rowsOf(*table.object()), (Lines{"Title Title Data", "Data Data Data"}));
    }
    undo()->endUndoGroup();
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    auto table = open();
    EXPECT_EQ(rowsOf(*table.object()), (Lines{"Data Data", "Data Data", "Data Data"}));
    EXPECT_TRUE(table->cellStyles().isEmpty());
}

TEST_F(TableTest, TheSubSelectionBelongsToTheSessionNotToTheTable) {
    ObjectSpy spy(log);
    watch(tableId, &spy);
    const int recorded = undo()->undoCount();
    {
        auto table = open(KyDb::kForNotify);
        EXPECT_EQ(table->setSubSelection(KyDbCellRange(1, 0, 2, 1)), Kyro::eOk);
        EXPECT_EQ(table->setSubSelection(KyDbCellRange(1, 0, 3, 1)), Kyro::eInvalidIndex);
        EXPECT_EQ(table->setSubSelection(KyDbCellRange(1, 1, 1, 0)), Kyro::eInvalidInput);
        EXPECT_EQ(table->subSelection(), KyDbCellRange(1, 0, 2, 1)) << "a refusal keeps it";
    }
    EXPECT_TRUE(log.lines().empty()) << "no change: reactors hear nothing";
    EXPECT_EQ(undo()->undoCount(), recorded);
    KyDbTable* closed = nullptr;
    ASSERT_EQ(kydbOpenObject(closed, tableId, KyDb::kForRead), Kyro::eOk);
    closed->close();
    EXPECT_EQ(closed->clearSubSelection(), Kyro::eInvalidOpenState) << "only while open";

    undo()->beginUndoGroup();
    open(KyDb::kForWrite)->setPosition(KyGePoint3d(5, 5, 0));
    undo()->endUndoGroup();
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    log.clear();
    {
        auto table = open(KyDb::kForWrite);
        EXPECT_EQ(table->subSelection(), KyDbCellRange(1, 0, 2, 1)) << "undo leaves it alone";
        table->setNumRows(2);
        EXPECT_FALSE(table->hasSubSelection()) << "cells that went are selected no longer";
    }
    EXPECT_EQ(log.lines(),
              (Lines{"openedForModify KyDbTable", "modified KyDbTable", "objectClosed KyDbTable"}));
    unwatch(tableId, &spy);
}

TEST_F(TableTest, TheSelectedCellsOpenAsAnObjectWithTheirCellStyle) {
    {
        auto table = open(KyDb::kForWrite);
        table->setCellStyle(1, 1, L"Header");
        table->setCellStyle(2, 0, L"Title");
    }
    auto table = open(KyDb::kForRead);
    KyRxObject* part = nullptr;
    EXPECT_EQ(KyDbSubEntityProvider::open(table.object(), part, KyDbSubentId(), KyDb::kForRead),
              Kyro::eNullSubentity)
        << "a table without a sub-selection has no such part";
    ASSERT_EQ(table->setSubSelection(KyDbCellRange(1, 1, 2, 1)), Kyro::eOk);
    EXPECT_EQ(KyDbSubEntityProvider::open(table.object(), part,
                                          KyDbSubentId(KyDb::kFaceSubentType, 0), KyDb::kForRead),
              Kyro::eNullSubentity)
        << "only the default id names the selected cells";
    EXPECT_EQ(KyDbSubEntityProvider::open(table.object(), part, KyDbSubentId(), KyDb::kForWrite),
              Kyro::eWasNotOpenForWrite);
    EXPECT_EQ(part, nullptr);

    ASSERT_EQ(KyDbSubEntityProvider::open(table.object(), part, KyDbSubentId(), KyDb::kForRead),
              Kyro::eOk);
    auto* cells = kyrxCast<KyDbTableCellSelection>(part);
    ASSERT_NE(cells, nullptr);
    EXPECT_EQ(cells->range(), KyDbCellRange(1, 1, 2, 1));
    EXPECT_EQ(text(valueOf<KyString>(part, L"CellStyle")), "Header") << "the first cell's";
    EXPECT_EQ(text(KyRxLocalizedNameAttribute::getLocalizedName(findProperty(part, L"CellStyle"))),
              "Cell style");
    EXPECT_EQ(setValue(part, L"CellStyle", KyRxValue(KyString(L"Data"))),
              Kyro::eWasNotOpenForWrite);
    EXPECT_EQ(KyDbSubEntityProvider::close(table.object(), part), Kyro::eOk);
    EXPECT_EQ(part, nullptr);

    ASSERT_EQ(table->upgradeOpen(), Kyro::eOk);
    ASSERT_EQ(KyDbSubEntityProvider::open(table.object(), part, KyDbSubentId(), KyDb::kForWrite),
              Kyro::eOk);
    EXPECT_EQ(setValue(part, L"CellStyle", KyRxValue(KyString(L""))), Kyro::eInvalidInput);
    EXPECT_EQ(setValue(part, L"CellStyle", KyRxValue(KyString(L"Total"))), Kyro::eOk);
    EXPECT_EQ(KyDbSubEntityProvider::close(table.object(), part), Kyro::eOk);
    EXPECT_EQ(rowsOf(*table.object()), (Lines{"Data Data", "Data Total", "Title Total"}));
    table.close();
    EXPECT_EQ(kydbOpenObjectCount(), 0);
}

}  // namespace
}  // namespace dbtest
