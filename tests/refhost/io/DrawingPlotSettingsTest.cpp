// The plot settings a layout keeps in the file: its plot style table, page
// setup and raster resolution are read into the layout and written back as
// the file gave them; a file that leaves them out gets none and keeps
// leaving them out; a value the layout can't take is an error at its path.
#include <gtest/gtest.h>

#include "DrawingTestSupport.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbLayout.h"
#include "db/KyDbObjectPointer.h"

using namespace drawingio;

namespace {

KyRefJson& sheet(KyRefJson& document) {
    return document["objects"]["entries"]["KYRO_LAYOUT"]["entries"]["Layout1"];
}

KyDbObjectId layoutNamed(KyDbDatabase* db, const wchar_t* name) {
    KyDbObjectPointer<KyDbDictionary> layouts(db->layoutDictionaryId(), KyDb::kForRead);
    KyDbObjectId id;
    layouts->getAt(name, id);
    return id;
}

TEST(DrawingPlotSettings, TheLayoutHoldsWhatTheFileGivesAndWritesItBackAsGiven) {
    KyRefJson original = smallDrawing();
    sheet(original)["plotStyleTable"] = "monochrome.stb";
    sheet(original)["pageSetup"] = "A3 Landscape";
    sheet(original)["rasterDpi"] = 300;
    // Defaults the file spelled out come back too.
    original["objects"]["entries"]["KYRO_LAYOUT"]["entries"]["Model"]["rasterDpi"] = 0;
    const Reading reading = read(original);
    ASSERT_NE(reading.db, nullptr) << reading.error;
    {
        KyDbObjectPointer<KyDbLayout> layout(layoutNamed(reading.db.get(), L"Layout1"),
                                             KyDb::kForRead);
        EXPECT_EQ(layout->plotStyleTable().utf8(), "monochrome.stb");
        EXPECT_EQ(layout->pageSetupName().utf8(), "A3 Landscape");
        EXPECT_EQ(layout->rasterDpi(), 300);
    }
    const KyRefJson saved = save(reading.db.get());
    EXPECT_TRUE(unordered(saved) == unordered(original))
        << nlohmann::json::diff(unordered(original), unordered(saved));
}

TEST(DrawingPlotSettings, AFileWithoutThemGetsNoneAndChangesAreWritten) {
    const Reading reading = read(smallDrawing());
    ASSERT_NE(reading.db, nullptr) << reading.error;
    const KyDbObjectId sheetId = layoutNamed(reading.db.get(), L"Layout1");
    {
        KyDbObjectPointer<KyDbLayout> layout(sheetId, KyDb::kForWrite);
        EXPECT_TRUE(layout->plotStyleTable().isEmpty());
        EXPECT_TRUE(layout->pageSetupName().isEmpty());
        EXPECT_EQ(layout->rasterDpi(), 0);
        EXPECT_EQ(layout->setRasterDpi(600), Kyro::eOk);
        EXPECT_EQ(layout->setPlotStyleTable(L"standard.stb"), Kyro::eOk);
    }
    KyRefJson expected = smallDrawing();
    sheet(expected)["plotStyleTable"] = "standard.stb";
    sheet(expected)["rasterDpi"] = 600;
    const KyRefJson saved = save(reading.db.get());
    EXPECT_TRUE(unordered(saved) == unordered(expected))
        << nlohmann::json::diff(unordered(expected), unordered(saved));
}

TEST(DrawingPlotSettings, AValueTheLayoutCantTakeIsAnErrorAtItsPath) {
    struct Case {
        const char* member;
        KyRefJson value;
        std::string error;
    };
    const Case cases[] = {
        {"plotStyleTable", 12, "expected a string, found an integer"},
        {"pageSetup", KyRefJson::array(), "expected a string, found an array"},
        {"rasterDpi", 50,
         "expected 0 (none) or a resolution from 100 to 32767 dots per inch; the drawing "
         "refused it as a value the drawing can't take"},
        {"rasterDpi", 40000, "expected an integer from 0 to 32767, found 40000"},
        {"rasterDpi", "300", "expected an integer from 0 to 32767, found a string"},
    };
    for (const Case& fault : cases) {
        KyRefJson document = smallDrawing();
        sheet(document)[fault.member] = fault.value;
        const Reading reading = read(document);
        EXPECT_EQ(reading.db, nullptr) << fault.member;
        EXPECT_EQ(reading.error, std::string("objects.entries.KYRO_LAYOUT.entries.Layout1.") +
                                     fault.member + ": " + fault.error);
    }
}

}  // namespace
