// Cells of a table selected through the host's selection service: the table
// stands in the selection for them, its sub-selection holds them until the
// next change of the selection, and a command that changes properties works
// on the table.
#include "DrawingContent.h"
#include "RefHostTestSupport.h"
#include "db/KyDbOpenObject.h"
#include "db/KyDbSubEntityProvider.h"
#include "db/KyDbTable.h"
#include "db/KyDbTableStyle.h"
#include "rx/KyRxMemberQueryEngine.h"
#include "rx/KyRxProperty.h"

namespace refhost {
namespace {

class TableSelectionTest : public RefHostTest {
protected:
    TableSelectionTest()
        : content(db()),
          schedule(content.addEntry<KyDbTableStyle>(
              db()->tableStyleDictionaryId(), L"Schedule",
              [](KyDbTableStyle& style) { style.setName(L"Schedule"); })),
          table(content.addEntity<KyDbTable>([](KyDbTable& table) {
              table.setNumRows(3);
              table.setNumColumns(2);
              table.setCellStyle(0, 0, L"Title");
              table.setCellStyle(1, 1, L"Header");
          })),
          line(addEntity()) {}

    KyRefSelectionService& selection() const { return *host->selectionService(); }

    // "none" without a sub-selection, else the cell style that the provider's
    // object for the selected cells shows.
    std::string selectedCellStyle() const {
        KyDbObjectPointer<KyDbTable> opened(table, KyDb::kForRead);
        KyRxObject* cells = nullptr;
        const Kyro::ErrorStatus status =
            KyDbSubEntityProvider::open(opened.object(), cells, KyDbSubentId(), KyDb::kForRead);
        if (status == Kyro::eNullSubentity) {
            return "none";
        }
        EXPECT_EQ(status, Kyro::eOk);
        KyRxMemberQueryEngine* engine = KyRxMemberQueryEngine::theEngine();
        const auto* property =
            kyrxCast<KyRxProperty>(engine->find(cells, L"CellStyle", engine->promotingContext()));
        KyRxValue value;
        EXPECT_EQ(property->getValue(cells, value), Kyro::eOk);
        KyDbSubEntityProvider::close(opened.object(), cells);
        const KyString* text = valueCast<KyString>(&value);
        return text != nullptr ? text->utf8() : "not a text";
    }

    DrawingContent content;
    KyDbObjectId schedule;
    KyDbObjectId table;
    KyDbObjectId line;
};

TEST_F(TableSelectionTest, SelectedCellsPutTheTableAloneInTheSelectionUntilItChanges) {
    selection().setSelection({line});
    spy.take();
    ASSERT_EQ(selection().selectCells(table, KyDbCellRange(1, 1, 2, 1)), Kyro::eOk);
    EXPECT_EQ(selection().selection(), (std::vector<KyDbObjectId>{table}));
    EXPECT_EQ(selectedCellStyle(), "Header");
    EXPECT_EQ(spy.take(), (Lines{"hostStateChanged"}));

    ASSERT_EQ(selection().selectCells(table, KyDbCellRange(0, 0, 0, 1)), Kyro::eOk);
    EXPECT_EQ(selectedCellStyle(), "Title") << "other cells of the same table";

    selection().setSelection({table});
    EXPECT_EQ(selectedCellStyle(), "none") << "the table as a whole now";
    EXPECT_EQ(selection().selection(), (std::vector<KyDbObjectId>{table}));
    EXPECT_EQ(spy.take(), (Lines{"hostStateChanged", "hostStateChanged"}));

    selection().selectCells(table, KyDbCellRange(2, 0, 2, 0));
    selection().clear();
    EXPECT_EQ(selectedCellStyle(), "none");
    EXPECT_TRUE(selection().selection().empty());
    EXPECT_EQ(kydbOpenObjectCount(), 0);
}

TEST_F(TableSelectionTest, CellsThatCantBeSelectedLeaveTheSelectionAsItWas) {
    selection().setSelection({line});
    spy.take();
    EXPECT_EQ(selection().selectCells(table, KyDbCellRange(0, 0, 3, 0)), Kyro::eInvalidIndex);
    EXPECT_EQ(selection().selectCells(table, KyDbCellRange()), Kyro::eInvalidInput);
    EXPECT_EQ(selection().selectCells(line, KyDbCellRange(0, 0, 0, 0)), Kyro::eNotThatKindOfClass);
    EXPECT_EQ(selection().selection(), (std::vector<KyDbObjectId>{line}));
    EXPECT_EQ(selectedCellStyle(), "none");
    EXPECT_TRUE(spy.take().empty());

    // Erasing the table leaves its cells selected no longer, once the
    // selection moves on.
    ASSERT_EQ(selection().selectCells(table, KyDbCellRange(0, 0, 0, 0)), Kyro::eOk);
    run((L"ERASE\n" + handleOf(table) + L"\n\n").c_str());
    ASSERT_TRUE(isErased(table));
    KyDbTable* erased = nullptr;
    ASSERT_EQ(kydbOpenObject(erased, table, KyDb::kForRead, true), Kyro::eOk);
    EXPECT_FALSE(erased->hasSubSelection());
    erased->close();
    EXPECT_EQ(selection().selectCells(table, KyDbCellRange(0, 0, 0, 0)), Kyro::eWasErased);
}

TEST_F(TableSelectionTest, SelectedCellsStandForTheirTableInAChangeOfProperties) {
    ASSERT_EQ(selection().selectCells(table, KyDbCellRange(1, 0, 1, 1)), Kyro::eOk);
    run(L"_optchprop\n_tablestyle\nSchedule\n\n");
    EXPECT_EQ(takeLog()[1], "1 found");
    {
        KyDbObjectPointer<KyDbTable> changed(table, KyDb::kForRead);
        EXPECT_EQ(changed->tableStyle(), schedule);
        EXPECT_EQ(changed->cellStyle(0, 0).utf8(), "Title") << "cells keep their styles";
    }
    EXPECT_EQ(selectedCellStyle(), "Data") << "the command leaves the cells selected";
    run(L"U\n");
    KyDbObjectPointer<KyDbTable> undone(table, KyDb::kForRead);
    EXPECT_NE(undone->tableStyle(), schedule);
}

}  // namespace
}  // namespace refhost
