// What a layout plots with (plot style table, page setup, raster
// resolution): the members take writes only open for write, a resolution out
// of range is refused with nothing changed, a change is told at the close and
// an equal value is none, and undo and redo put the values back.
#include <gtest/gtest.h>

#include "DbTestSupport.h"
#include "db/KyDbLayout.h"

namespace dbtest {
namespace {

class LayoutPlotSettingsTest : public DbTest {
protected:
    LayoutPlotSettingsTest() {
        KyDbObjectPointer<KyDbDictionary> layouts(db->layoutDictionaryId(), KyDb::kForRead);
        layouts->getAt(L"Layout1", sheet);
    }

    std::string settings() const {
        KyDbObjectPointer<KyDbLayout> layout(sheet, KyDb::kForRead);
        return layout->plotStyleTable().utf8() + "|" + layout->pageSetupName().utf8() + "|" +
               std::to_string(layout->rasterDpi());
    }

    KyDbObjectId sheet;
};

TEST_F(LayoutPlotSettingsTest, TheMembersChangeOnlyOpenForWriteAndTellTheChangeAtTheClose) {
    ObjectSpy spy(log);
    watch(sheet, &spy);
    EXPECT_EQ(settings(), "||0") << "a new drawing's layout names nothing";
    {
        KyDbObjectPointer<KyDbLayout> layout(sheet, KyDb::kForRead);
        EXPECT_EQ(layout->setPlotStyleTable(L"monochrome.stb"), Kyro::eWasNotOpenForWrite);
        EXPECT_EQ(layout->setPageSetupName(L"A3"), Kyro::eWasNotOpenForWrite);
        EXPECT_EQ(layout->setRasterDpi(300), Kyro::eWasNotOpenForWrite);
    }
    {
        KyDbObjectPointer<KyDbLayout> layout(sheet, KyDb::kForWrite);
        for (const short refused : {-1, 1, 99}) {
            EXPECT_EQ(layout->setRasterDpi(refused), Kyro::eInvalidInput) << refused;
        }
        EXPECT_EQ(layout->setRasterDpi(0), Kyro::eOk);
        EXPECT_FALSE(layout->isModified()) << "refusals and an equal value change nothing";
        EXPECT_EQ(layout->setPlotStyleTable(L"monochrome.stb"), Kyro::eOk);
        EXPECT_EQ(layout->setPageSetupName(L"A3"), Kyro::eOk);
        EXPECT_EQ(layout->setRasterDpi(32767), Kyro::eOk);
        EXPECT_EQ(log.lines(), (Lines{"openedForModify KyDbLayout"}));
    }
    EXPECT_EQ(settings(), "monochrome.stb|A3|32767");
    EXPECT_EQ(log.lines(), (Lines{"openedForModify KyDbLayout", "modified KyDbLayout",
                                  "objectClosed KyDbLayout"}));
    log.clear();
    {
        KyDbObjectPointer<KyDbLayout> layout(sheet, KyDb::kForWrite);
        layout->setPlotStyleTable(L"monochrome.stb");
        layout->setRasterDpi(32767);
    }
    EXPECT_EQ(log.lines(), Lines{}) << "equal values are no change";
}

TEST_F(LayoutPlotSettingsTest, UndoAndRedoPutTheValuesBack) {
    {
        KyDbObjectPointer<KyDbLayout> layout(sheet, KyDb::kForWrite);
        layout->setPlotStyleTable(L"standard.stb");
        layout->setRasterDpi(600);
    }
    {
        KyDbObjectPointer<KyDbLayout> layout(sheet, KyDb::kForWrite);
        layout->setPageSetupName(L"Final");
        layout->setRasterDpi(1200);
    }
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_EQ(settings(), "standard.stb||600");
    ASSERT_EQ(undo()->undo(), Kyro::eOk);
    EXPECT_EQ(settings(), "||0");
    ASSERT_EQ(undo()->redo(), Kyro::eOk);
    ASSERT_EQ(undo()->redo(), Kyro::eOk);
    EXPECT_EQ(settings(), "standard.stb|Final|1200");
}

}  // namespace
}  // namespace dbtest
