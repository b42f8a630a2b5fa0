// The real drawings beside the checkout: each opens, holds what its manifest
// row counts, and saved back gives the same document.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <vector>

#include "DrawingTestSupport.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbSymbolTableIterator.h"
#include "io/KyRefDrawingExtras.h"
#include "io/KyRefDrawingReader.h"

using namespace drawingio;

namespace {

struct ManifestRow {
    std::string file;
    std::map<std::string, int> counts;
};

class DrawingFiles : public ::testing::Test {
protected:
    void SetUp() override {
        const auto folder = drawingsFolder();
        if (!folder) {
            GTEST_SKIP() << "The real drawings are not there: set KYDI_DRAWINGS_DIR to the "
                            "drawings folder beside the checkout (../shared/drawings).";
        }
        m_folder = *folder;
        std::istringstream manifest(readText(m_folder / "MANIFEST.tsv"));
        std::string line;
        std::getline(manifest, line);
        std::vector<std::string> columns = split(line);
        while (std::getline(manifest, line)) {
            const std::vector<std::string> cells = split(line);
            if (cells.size() < columns.size()) {
                continue;
            }
            ManifestRow row{cells[0], {}};
            for (std::size_t i = 1; i + 1 < columns.size(); ++i) {
                row.counts[columns[i]] = std::stoi(cells[i]);
            }
            m_rows.push_back(row);
        }
        ASSERT_FALSE(m_rows.empty()) << "MANIFEST.tsv lists no drawing";
    }

    static std::vector<std::string> split(const std::string& line) {
        std::vector<std::string> cells;
        std::istringstream in(line);
        std::string cell;
        while (std::getline(in, cell, '\t')) {
            cells.push_back(cell);
        }
        return cells;
    }

    Reading open(const std::string& file) const {
        KyString error;
        Reading reading;
        reading.db = KyRefDrawingReader::readFile((m_folder / file).wstring().c_str(), error);
        reading.error = error.utf8();
        return reading;
    }

    std::filesystem::path m_folder;
    std::vector<ManifestRow> m_rows;
};

// Records of a table that came from the file (not those the reader added).
int recordsFromFile(KyDbDatabase* db, KyDbObjectId tableId) {
    const KyRefDrawingExtras* extras = KyRefDrawingExtras::find(db);
    KyDbObjectPointer<KyDbSymbolTable> table(tableId, KyDb::kForRead);
    KyDbSymbolTableIterator* raw = nullptr;
    table->newIterator(raw);
    std::unique_ptr<KyDbSymbolTableIterator> it(raw);
    int count = 0;
    for (; !it->done(); it->step()) {
        KyDbObjectId id;
        it->getRecordId(id);
        count += extras->isAdded(KyDbHandle(id.handle())) ? 0 : 1;
    }
    return count;
}

int entities(KyDbDatabase* db) {
    KyDbObjectPointer<KyDbSymbolTable> table(db->blockTableId(), KyDb::kForRead);
    KyDbSymbolTableIterator* raw = nullptr;
    table->newIterator(raw);
    std::unique_ptr<KyDbSymbolTableIterator> it(raw);
    int count = 0;
    for (; !it->done(); it->step()) {
        KyDbObjectId id;
        it->getRecordId(id);
        KyDbObjectPointer<KyDbBlockTableRecord> block(id, KyDb::kForRead);
        count += block->entityCount();
    }
    return count;
}

TEST_F(DrawingFiles, EveryDrawingOfTheFolderHasAManifestRow) {
    std::set<std::string> listed;
    for (const ManifestRow& row : m_rows) {
        listed.insert(row.file);
    }
    for (const auto& entry : std::filesystem::directory_iterator(m_folder)) {
        if (entry.path().extension() == ".kyd") {
            EXPECT_TRUE(listed.count(entry.path().filename().string()) == 1)
                << entry.path().filename() << " is not in MANIFEST.tsv";
        }
    }
}

TEST_F(DrawingFiles, EveryDrawingOpensWithTheCountsOfItsManifestRow) {
    for (const ManifestRow& row : m_rows) {
        SCOPED_TRACE(row.file);
        const Reading reading = open(row.file);
        ASSERT_NE(reading.db, nullptr) << reading.error;
        KyDbDatabase* db = reading.db.get();
        EXPECT_EQ(recordsFromFile(db, db->layerTableId()), row.counts.at("layers"));
        EXPECT_EQ(recordsFromFile(db, db->linetypeTableId()), row.counts.at("linetypes"));
        EXPECT_EQ(recordsFromFile(db, db->textStyleTableId()), row.counts.at("textStyles"));
        EXPECT_EQ(recordsFromFile(db, db->dimStyleTableId()), row.counts.at("dimStyles"));
        EXPECT_EQ(recordsFromFile(db, db->blockTableId()), row.counts.at("blocks"));
        EXPECT_EQ(entities(db), row.counts.at("entities"));
    }
}

TEST_F(DrawingFiles, EveryDrawingSavedBackIsEqualToItsFile) {
    for (const ManifestRow& row : m_rows) {
        SCOPED_TRACE(row.file);
        const KyRefJson original = KyRefJson::parse(readText(m_folder / row.file));
        const Reading reading = open(row.file);
        ASSERT_NE(reading.db, nullptr) << reading.error;
        const KyRefJson saved = save(reading.db.get());
        EXPECT_TRUE(unordered(saved) == unordered(original))
            << "differences: " << nlohmann::json::diff(unordered(original), unordered(saved));
        // The saved file reads again into the same document.
        const Reading again = read(saved);
        ASSERT_NE(again.db, nullptr) << again.error;
        EXPECT_TRUE(unordered(save(again.db.get())) == unordered(original));
    }
}

TEST_F(DrawingFiles, CurrentItemsOfARealDrawingAreItsRecordsAndStyles) {
    const Reading reading = open("generated_200_layers.kyd");
    ASSERT_NE(reading.db, nullptr) << reading.error;
    KyDbDatabase* db = reading.db.get();
    EXPECT_EQ(recordName(db->clayer()), "L010");
    EXPECT_EQ(recordName(db->celtype()), "DASHED");
    EXPECT_EQ(recordName(db->textstyle()), "ISO");
    EXPECT_EQ(recordName(db->dimstyle()), "MY_DIM");
    EXPECT_EQ(db->cecolor().colorIndex(), 5);
    // Kept in the variable dictionary of the file.
    EXPECT_EQ(db->mleaderstyle().handle(), 0x19Du);
}

TEST_F(DrawingFiles, NonAsciiNamesAndLargeTablesReadWhole) {
    const Reading names = open("unicode_names.kyd");
    ASSERT_NE(names.db, nullptr) << names.error;
    const KyRefJson file = KyRefJson::parse(readText(m_folder / "unicode_names.kyd"));
    for (const KyRefJson& layer : file["layers"]) {
        const KyString name = kyrefWide(layer["name"].get<std::string>());
        EXPECT_FALSE(recordNamed(names.db->layerTableId(), name).isNull()) << name.utf8();
    }
    const Reading styles = open("qcad_din7200.kyd");
    ASSERT_NE(styles.db, nullptr) << styles.error;
    EXPECT_FALSE(recordNamed(styles.db->textStyleTableId(), L"textstyle1768").isNull());
}

}  // namespace
