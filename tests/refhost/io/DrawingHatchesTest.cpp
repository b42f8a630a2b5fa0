// Hatches in drawing files: read into hatches of the database and written
// back as the file had them, changes written, malformed loops refused at
// their path, the hatches of the real drawings, and the sample's hatches that
// overlap.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

#include "DrawingTestSupport.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbBlockTableRecordIterator.h"
#include "db/KyDbHatch.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbSymbolTableIterator.h"
#include "io/KyRefDrawingReader.h"

using namespace drawingio;

namespace {

KyRefJson withHatches() {
    KyRefJson document = smallDrawing();
    KyRefJson& model = document["blocks"][0]["entities"];
    model.push_back(KyRefJson::parse(R"({
        "type": "HATCH", "handle": "40", "layer": "WALLS", "color": 3, "transparency": 255,
        "pattern": "ANSI31", "angle": 45,
        "loops": [[[0, 0], [10, 0], [10, 10], [0, 10]], [[2, 2], [4, 2], [4, 4.5]]]})"));
    model.push_back(KyRefJson::parse(R"({"type": "HATCH", "handle": "41", "loops": []})"));
    model.push_back(KyRefJson::parse(R"({
        "type": "HATCH", "handle": "42", "pattern": "solid",
        "loops": [[[0, 0, 1.5], [1, 0, 1.5], [1, 1, 1.5]]]})"));
    return document;
}

KyDbObjectId idOf(KyDbDatabase* db, unsigned handle) {
    KyDbObjectId id;
    db->getKyDbObjectId(id, KyDbHandle(handle));
    return id;
}

// Calls `visit` with every entity of every block, open for read.
void forEachEntity(KyDbDatabase* db, const std::function<void(const KyDbEntity&)>& visit) {
    KyDbObjectPointer<KyDbSymbolTable> blocks(db->blockTableId(), KyDb::kForRead);
    KyDbSymbolTableIterator* rawBlocks = nullptr;
    blocks->newIterator(rawBlocks);
    const std::unique_ptr<KyDbSymbolTableIterator> block(rawBlocks);
    for (; !block->done(); block->step()) {
        KyDbObjectId blockId;
        block->getRecordId(blockId);
        KyDbObjectPointer<KyDbBlockTableRecord> record(blockId, KyDb::kForRead);
        KyDbBlockTableRecordIterator* rawEntities = nullptr;
        record->newIterator(rawEntities);
        const std::unique_ptr<KyDbBlockTableRecordIterator> entities(rawEntities);
        for (; !entities->done(); entities->step()) {
            KyDbObjectId id;
            entities->getEntityId(id);
            KyDbObjectPointer<KyDbEntity> entity(id, KyDb::kForRead);
            visit(*entity.object());
        }
    }
}

int hatchesOfTheFile(const KyRefJson& document) {
    int count = 0;
    for (const KyRefJson& block : document.value("blocks", KyRefJson::array())) {
        for (const KyRefJson& entity : block.value("entities", KyRefJson::array())) {
            count += entity.value("type", "") == "HATCH" ? 1 : 0;
        }
    }
    return count;
}

TEST(DrawingHatches, AHatchIsReadIntoAHatchAndWrittenBackAsItWas) {
    const KyRefJson original = withHatches();
    const Reading reading = read(original);
    ASSERT_NE(reading.db, nullptr) << reading.error;
    KyDbDatabase* db = reading.db.get();
    {
        KyDbObjectPointer<KyDbHatch> hatch(idOf(db, 0x40), KyDb::kForRead);
        ASSERT_EQ(hatch.openStatus(), Kyro::eOk) << "a hatch of the database";
        EXPECT_EQ(hatch->patternName(), KyString(L"ANSI31"));
        EXPECT_EQ(hatch->numLoops(), 2);
        EXPECT_DOUBLE_EQ(hatch->area(), 100.0 - 2.5);
        EXPECT_EQ(recordName(hatch->layerId()), "Walls");
        EXPECT_EQ(hatch->color().colorIndex(), 3);
        KyDbObjectPointer<KyDbHatch> empty(idOf(db, 0x41), KyDb::kForRead);
        EXPECT_EQ(empty->patternName(), KyString(L"SOLID"));
        EXPECT_EQ(empty->numLoops(), 0);
        EXPECT_EQ(empty->getRegionArea(), nullptr);
        KyDbObjectPointer<KyDbHatch> raised(idOf(db, 0x42), KyDb::kForRead);
        EXPECT_EQ(raised->loops()[0][2], KyGePoint3d(1, 1, 1.5));
    }
    const KyRefJson saved = save(db);
    EXPECT_TRUE(unordered(saved) == unordered(original))
        << nlohmann::json::diff(unordered(original), unordered(saved));

    // Changes are written; what the file gave beside them stays.
    {
        KyDbObjectPointer<KyDbHatch> hatch(idOf(db, 0x40), KyDb::kForWrite);
        ASSERT_EQ(hatch->removeLoopAt(1), Kyro::eOk);
        KyDbObjectPointer<KyDbHatch> empty(idOf(db, 0x41), KyDb::kForWrite);
        KyDbLoop loop;
        loop.append(KyGePoint3d(0, 0, 0));
        loop.append(KyGePoint3d(5, 0, 0));
        loop.append(KyGePoint3d(0, 5, 0));
        ASSERT_EQ(empty->appendLoop(loop), Kyro::eOk);
        ASSERT_EQ(empty->setPatternName(L"ANSI37"), Kyro::eOk);
    }
    const KyRefJson changed = save(db);
    const KyRefJson& first = changed["blocks"][0]["entities"][2];
    EXPECT_EQ(first["loops"], KyRefJson::parse("[[[0, 0], [10, 0], [10, 10], [0, 10]]]"));
    EXPECT_EQ(first["angle"], 45);
    EXPECT_EQ(first["layer"], "WALLS");
    const KyRefJson& second = changed["blocks"][0]["entities"][3];
    EXPECT_EQ(second["pattern"], "ANSI37");
    EXPECT_EQ(second["loops"], KyRefJson::parse("[[[0, 0], [5, 0], [0, 5]]]"));

    // A hatch the host made is written whole but for its defaults.
    const Reading again = read(changed);
    ASSERT_NE(again.db, nullptr) << again.error;
    EXPECT_TRUE(unordered(save(again.db.get())) == unordered(changed));
}

TEST(DrawingHatches, MalformedMembersAreRefusedAtTheirPath) {
    const auto errorWith = [](const char* member, const char* json) {
        KyRefJson document = withHatches();
        KyRefJson& hatch = document["blocks"][0]["entities"][2];
        if (json == nullptr) {
            hatch.erase(member);
        } else {
            hatch[member] = KyRefJson::parse(json);
        }
        const Reading reading = read(document);
        EXPECT_EQ(reading.db, nullptr) << "the drawing was read";
        return reading.error;
    };
    const std::string at = "blocks[0].entities[2].";
    EXPECT_EQ(
        errorWith("loops", nullptr),
        at + "loops: missing; expected an array of loops, each an array of at least 3 points");
    EXPECT_EQ(errorWith("loops", "{}"), at + "loops: expected an array, found an object");
    EXPECT_EQ(errorWith("loops", "[[[0, 0], [1, 0], [1, 1]], [[0, 0], [1, 1]]]"),
              at + "loops[1]: expected a closed polygon of at least 3 points, found 2 points");
    EXPECT_EQ(errorWith("loops", "[[[0, 0]]]"),
              at + "loops[0]: expected a closed polygon of at least 3 points, found 1 point");
    EXPECT_EQ(errorWith("loops", "[7]"), at + "loops[0]: expected an array, found an integer");
    EXPECT_EQ(errorWith("loops", "[[[0, 0], [1], [1, 1]]]"),
              at + "loops[0][1]: expected a point [x, y] or [x, y, z], found an array of 1");
    EXPECT_EQ(errorWith("loops", "[[[0, 0], \"1, 0\", [1, 1]]]"),
              at + "loops[0][1]: expected a point [x, y] or [x, y, z], found a string");
    EXPECT_EQ(errorWith("loops", "[[[0, 0], [1, \"0\"], [1, 1]]]"),
              at + "loops[0][1][1]: expected a number, found a string");
    EXPECT_EQ(errorWith("pattern", "\"\""),
              at + "pattern: expected a pattern name that is not empty; the drawing refused it "
                   "as a value the drawing can't take");
    EXPECT_EQ(errorWith("pattern", "31"), at + "pattern: expected a string, found an integer");
}

TEST(DrawingHatches, TheHatchesOfTheRealDrawingsAreHatches) {
    const auto folder = drawingsFolder();
    if (!folder) {
        GTEST_SKIP() << "The real drawings are not there: set KYDI_DRAWINGS_DIR to the drawings "
                        "folder beside the checkout (../shared/drawings).";
    }
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(*folder)) {
        if (entry.path().extension() != ".kyd") {
            continue;
        }
        const KyRefJson original = KyRefJson::parse(readText(entry.path()));
        const int expected = hatchesOfTheFile(original);
        if (expected == 0) {
            continue;
        }
        SCOPED_TRACE(entry.path().filename().string());
        ++files;
        KyString error;
        const std::unique_ptr<KyDbDatabase> db =
            KyRefDrawingReader::readFile(entry.path().wstring().c_str(), error);
        ASSERT_NE(db, nullptr) << error.utf8();
        int hatches = 0;
        forEachEntity(db.get(), [&](const KyDbEntity& entity) {
            if (const auto* hatch = kyrxCast<KyDbHatch>(&entity)) {
                ++hatches;
                EXPECT_GE(hatch->area(), 0.0);
            }
        });
        EXPECT_EQ(hatches, expected);
    }
    EXPECT_GT(files, 0) << "some real drawings hold hatches";
}

TEST(DrawingHatches, TheSamplesHatchesOverlapSoTheirUnionIsLessThanTheirSum) {
    KyString error;
    const std::unique_ptr<KyDbDatabase> db =
        KyRefDrawingReader::readFile(KyString::fromUtf8(KYDI_TEST_SAMPLE).kwszPtr(), error);
    ASSERT_NE(db, nullptr) << error.utf8();
    std::vector<std::unique_ptr<KyDbRegion>> regions;
    double sum = 0.0;
    forEachEntity(db.get(), [&](const KyDbEntity& entity) {
        const auto* hatch = kyrxCast<KyDbHatch>(&entity);
        if (hatch != nullptr && recordName(hatch->layerId()) == "Hatch") {
            sum += hatch->area();
            regions.emplace_back(hatch->getRegionArea());
        }
    });
    ASSERT_GE(regions.size(), 2u);
    for (std::size_t i = 1; i < regions.size(); ++i) {
        ASSERT_EQ(regions[0]->booleanOper(KyDb::kBoolUnite, regions[i].get()), Kyro::eOk);
    }
    double united = 0.0;
    ASSERT_EQ(regions[0]->getArea(united), Kyro::eOk);
    // The floor: 6000 by 2500 less a hole of 500 by 500; the rug: 2000 by
    // 800, of which 500 by 300 lies over the floor's hole.
    EXPECT_NEAR(sum, 14750000.0 + 1600000.0, 1e-6);
    EXPECT_NEAR(united, 14750000.0 + 150000.0, 1e-6);
}

}  // namespace
