// Tables of a drawing file: read into tables of the database, written back as
// the file had them (a grid of cell styles or [], a style named in another
// case, a 2D position), changes written, and faults refused at their path.
#include <gtest/gtest.h>

#include <string>

#include "DrawingTestSupport.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbTable.h"
#include "db/KyDbTableStyle.h"

using namespace drawingio;

namespace {

// The small drawing with the table style "Schedule" and three tables in model
// space (entities 2, 3 and 4): one with a grid of cell styles and its style
// named in capitals, one with [], and one that leaves cellStyles out.
KyRefJson withTables() {
    KyRefJson document = smallDrawing();
    document["objects"]["entries"]["KYRO_TABLESTYLE"] = KyRefJson::parse(R"({
        "type": "DICTIONARY", "handle": "60", "entries": {
         "Standard": {"type": "TABLESTYLE", "handle": "61", "name": "Standard"},
         "Schedule": {"type": "TABLESTYLE", "handle": "62", "name": "Schedule",
                      "cellStyles": ["Title", "Header", "Data", "Total"]}}})");
    KyRefJson& entities = document["blocks"][0]["entities"];
    entities.push_back(KyRefJson::parse(R"({
        "type": "TABLE", "handle": "70", "layer": "Walls", "style": "SCHEDULE",
        "position": [100, 50], "rows": 3, "columns": 2,
        "cellStyles": [["Title", "Title"], ["Data", "Total"], ["Data", "Data"]]})"));
    entities.push_back(KyRefJson::parse(R"({
        "type": "TABLE", "handle": "71", "style": "Standard", "position": [0, 0, 0],
        "rows": 2, "columns": 2, "cellStyles": [], "rowHeight": 9})"));
    entities.push_back(KyRefJson::parse(R"({
        "type": "TABLE", "handle": "72", "style": "Schedule", "position": [5, 5],
        "rows": 1, "columns": 4})"));
    return document;
}

KyDbObjectId objectOf(KyDbDatabase* db, const char* handle) {
    KyDbObjectId id;
    db->getKyDbObjectId(id, KyDbHandle(std::stoull(handle, nullptr, 16)));
    return id;
}

std::string errorOf(const KyRefJson& document) {
    const Reading reading = read(document);
    EXPECT_EQ(reading.db, nullptr) << "the drawing was read";
    return reading.error;
}

TEST(DrawingTables, ATableIsReadIntoATableAndWrittenBackAsTheFileHadIt) {
    const KyRefJson document = withTables();
    const Reading reading = read(document);
    ASSERT_NE(reading.db, nullptr) << reading.error;
    {
        KyDbObjectPointer<KyDbTable> table(objectOf(reading.db.get(), "70"), KyDb::kForRead);
        ASSERT_EQ(table.openStatus(), Kyro::eOk);
        KyDbObjectPointer<KyDbTableStyle> style(table->tableStyle(), KyDb::kForRead);
        EXPECT_EQ(style->name().utf8(), "Schedule");
        EXPECT_EQ(table->numRows(), 3);
        EXPECT_EQ(table->numColumns(), 2);
        EXPECT_EQ(table->cellStyle(1, 1).utf8(), "Total");
        EXPECT_EQ(table->position(), KyGePoint3d(100, 50, 0));
        KyDbObjectPointer<KyDbTable> plain(objectOf(reading.db.get(), "72"), KyDb::kForRead);
        EXPECT_EQ(plain->cellStyle(0, 3).utf8(), "Data");
    }
    EXPECT_EQ(unordered(save(reading.db.get())), unordered(document));
}

TEST(DrawingTables, ChangesOfATableAreWritten) {
    const Reading reading = read(withTables());
    ASSERT_NE(reading.db, nullptr) << reading.error;
    KyDbObjectId standard;
    {
        KyDbObjectPointer<KyDbTable> grid(objectOf(reading.db.get(), "70"), KyDb::kForWrite);
        KyDbObjectPointer<KyDbDictionary> styles(reading.db->tableStyleDictionaryId(),
                                                 KyDb::kForRead);
        styles->getAt(L"Standard", standard);
        ASSERT_EQ(grid->setTableStyle(standard), Kyro::eOk);
        ASSERT_EQ(grid->setNumRows(2), Kyro::eOk);
        KyDbObjectPointer<KyDbTable> empty(objectOf(reading.db.get(), "71"), KyDb::kForWrite);
        ASSERT_EQ(empty->setCellStyle(1, 0, L"Header"), Kyro::eOk);
        KyDbObjectPointer<KyDbTable> plain(objectOf(reading.db.get(), "72"), KyDb::kForWrite);
        ASSERT_EQ(plain->setNumColumns(2), Kyro::eOk);
    }
    const KyRefJson saved = save(reading.db.get());
    const KyRefJson& entities = saved["blocks"][0]["entities"];
    EXPECT_EQ(entities[2]["style"], "Standard") << "the name of the style it has now";
    EXPECT_EQ(entities[2]["cellStyles"],
              KyRefJson::parse(R"([["Title", "Title"], ["Data", "Total"]])"));
    EXPECT_EQ(entities[3]["cellStyles"],
              KyRefJson::parse(R"([["Data", "Data"], ["Header", "Data"]])"));
    EXPECT_EQ(entities[3]["rowHeight"], 9) << "a member nobody models stays";
    EXPECT_EQ(entities[4]["columns"], 2);
    EXPECT_FALSE(entities[4].contains("cellStyles")) << "left out while every cell has Data";
}

TEST(DrawingTables, AMalformedTableIsRefusedAtItsPath) {
    const auto errorWith = [](const char* member, const KyRefJson& value) {
        KyRefJson document = withTables();
        document["blocks"][0]["entities"][2][member] = value;
        return errorOf(document);
    };
    EXPECT_EQ(errorWith("style", "Ledger"),
              "blocks[0].entities[2].style: expected the name of a table style, found "
              "\"Ledger\", which the drawing does not have");
    EXPECT_EQ(errorWith("rows", 0),
              "blocks[0].entities[2].rows: expected an integer from 1 to 1000000, found 0");
    EXPECT_EQ(errorWith("columns", -2),
              "blocks[0].entities[2].columns: expected an integer from 1 to 1000000, found -2");
    EXPECT_EQ(errorWith("columns", 1000000),
              "blocks[0].entities[2].columns: expected a table of at most 1000000 cells; the "
              "drawing refused it as a value the drawing can't take");
    EXPECT_EQ(errorWith("cellStyles", KyRefJson::parse(R"([["Title", "Title"]])")),
              "blocks[0].entities[2].cellStyles: expected [] or 3 rows of cell style names (one "
              "for each row), found 1 row");
    EXPECT_EQ(errorWith("cellStyles", KyRefJson::parse(R"([["Title"], ["Data"], ["Data"]])")),
              "blocks[0].entities[2].cellStyles[0]: expected 2 cell style names (one for each "
              "column), found 1");
    EXPECT_EQ(
        errorWith("cellStyles",
                  KyRefJson::parse(R"([["Title", ""], ["Data", 1], ["Data", "Data"]])")),
        "blocks[0].entities[2].cellStyles[0][1]: expected the name of a cell style, found \"\"");
    EXPECT_EQ(errorWith("cellStyles",
                        KyRefJson::parse(R"([["Title", "A"], ["Data", 1], ["Data", "Data"]])")),
              "blocks[0].entities[2].cellStyles[1][1]: expected a string, found an integer");
}

}  // namespace
