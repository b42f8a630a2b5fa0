// -PAGESETUP as a user types it: the plot settings of the layout shown change
// one option at a time, the host tells them when the command ends (both forms
// of plotSettingsChanged, then layoutChanged), U takes them back and tells
// them again, and an answer the layout can't take ends the command with an
// error line and nothing changed.
#include "KyRefReadAccess.h"
#include "RefHostTestSupport.h"
#include "base/KyRxResourceInstance.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLayout.h"

namespace refhost {
namespace {

const std::string kOptions = "Enter an option [Name/Table/Resolution]: ";
const std::string kTablePrompt = "Enter a plot style table name or [?/None] ";
const std::string kResolutionPrompt =
    "Enter the raster resolution in dots per inch (100 to 32767, 0 for none) ";
const Lines kTold = {"plotSettingsChanged", "plotSettingsChangedForLayout Model", "layoutChanged"};

// What the layout shown plots with, as one line.
class PageSetupCommandTest : public RefHostTest {
protected:
    std::string settings() const {
        KyRefReadAccess<KyDbLayout> layout(kydbCurrentLayoutId(db()));
        return "setup=" + layout->pageSetupName().utf8() +
               " table=" + layout->plotStyleTable().utf8() +
               " dpi=" + std::to_string(layout->rasterDpi());
    }

    // Runs -PAGESETUP with `answers` and the empty answer that ends it.
    void pageSetup(const wchar_t* answers) {
        run((std::wstring(L"-PAGESETUP\n") + answers + L"\n").c_str());
        EXPECT_TRUE(host->commandNames().isEmpty()) << utf8(answers);
    }

    static Lines commandEvents(const char* command, const Lines& told) {
        Lines lines{std::string("commandWillStart ") + command};
        lines.insert(lines.end(), told.begin(), told.end());
        lines.push_back(std::string("commandEnded ") + command);
        lines.push_back("refreshNeeded false");
        return lines;
    }
};

TEST_F(PageSetupCommandTest, EachOptionChangesTheLayoutShownAndTheChangeIsToldWhenTheCommandEnds) {
    pageSetup(L"Name\nFinal A1\nT\nmonochrome.CTB\nres\n600\n");
    EXPECT_EQ(settings(), "setup=Final A1 table=Monochrome.ctb dpi=600")
        << "the table in its own spelling";
    EXPECT_EQ(takeLog(),
              (Lines{"Command: -PAGESETUP", "Current layout: \"Model\"", kOptions + "Name",
                     "Enter a page setup name or [None] <None>: Final A1", kOptions + "T",
                     kTablePrompt + "<None>: monochrome.CTB", kOptions + "res",
                     kResolutionPrompt + "<0>: 600", kOptions}));
    EXPECT_EQ(spy.take(), commandEvents("-PAGESETUP", kTold)) << "one layout changed, told once";

    pageSetup(L"Table\n\nName\n\nResolution\n\n");
    EXPECT_EQ(settings(), "setup=Final A1 table=Monochrome.ctb dpi=600");
    EXPECT_EQ(takeLog()[3], kTablePrompt + "<Monochrome.ctb>: ") << "the value as the default";
    EXPECT_EQ(spy.take(), commandEvents("-PAGESETUP", {})) << "empty answers keep every value";

    pageSetup(L"Resolution\n600\n");
    EXPECT_EQ(spy.take(), commandEvents("-PAGESETUP", {})) << "an equal value is no change";
}

TEST_F(PageSetupCommandTest, NoneClearsAValueAndAnEqualsSignTakesTheWordAsAName) {
    pageSetup(L"Name\nDraft\nTable\nGrayscale.ctb\nResolution\n300\n");
    pageSetup(L"Name\nNone\nTable\nnone\nResolution\n0\n");
    EXPECT_EQ(settings(), "setup= table= dpi=0");
    pageSetup(L"Name\n=None\n");
    EXPECT_EQ(settings(), "setup=None table= dpi=0");
    takeLog();
    pageSetup(L"Table\n?\n\n");
    EXPECT_EQ(takeLog(),
              (Lines{"Command: -PAGESETUP", "Current layout: \"Model\"", kOptions + "Table",
                     kTablePrompt + "<None>: ?",
                     "Plot style tables on offer: Default.ctb, Grayscale.ctb, Monochrome.ctb",
                     kTablePrompt + "<None>: ", kOptions}))
        << "a drawing with colour-dependent plot styles is offered those tables";
}

TEST_F(PageSetupCommandTest, TheLayoutShownIsTheOneThatChanges) {
    run(L"CTAB\nLayout1\n");
    spy.take();
    pageSetup(L"Resolution\n1200\n");
    EXPECT_EQ(spy.take(), commandEvents("-PAGESETUP",
                                        {"plotSettingsChanged",
                                         "plotSettingsChangedForLayout Layout1", "layoutChanged"}));
    EXPECT_EQ(settings(), "setup= table= dpi=1200");
    run(L"CTAB\nModel\n");
    EXPECT_EQ(settings(), "setup= table= dpi=0");
}

TEST_F(PageSetupCommandTest, UndoAndRedoPutTheValuesBackAndTellThemAgain) {
    pageSetup(L"Name\nDraft\nResolution\n300\n");
    pageSetup(L"Table\nGrayscale.ctb\n");
    spy.take();
    run(L"U\n");
    EXPECT_EQ(settings(), "setup=Draft table= dpi=300");
    const Lines undone = {"plotSettingsChanged", "plotSettingsChangedForLayout Model",
                          "layoutChanged", "drawingContentChanged"};
    EXPECT_EQ(spy.take(), commandEvents("U", undone));
    run(L"U\n");
    EXPECT_EQ(settings(), "setup= table= dpi=0") << "the two changes of one command at once";
    EXPECT_EQ(spy.take(), commandEvents("U", undone));
    run(L"REDO\n");
    EXPECT_EQ(settings(), "setup=Draft table= dpi=300");
    EXPECT_EQ(spy.take(), commandEvents("REDO", undone));
}

TEST_F(PageSetupCommandTest,
       ATableNotOnOfferOrAResolutionOutOfRangeEndsTheCommandWithNothingChanged) {
    pageSetup(L"Name\nKept\n");
    spy.take();
    takeLog();
    const std::pair<const wchar_t*, const char*> cases[] = {
        {L"Name\nDraft\nTable\nDefault.stb\n",
         "The plot style table \"Default.stb\" is not on offer for this drawing."},
        {L"Table\nNowhere.ctb\n",
         "The plot style table \"Nowhere.ctb\" is not on offer for this drawing."},
        {L"Resolution\n99\n",
         "Invalid raster resolution \"99\": expected 0 or 100 to 32767 dots per inch."},
        {L"Resolution\n32768\n",
         "Invalid raster resolution \"32768\": expected 0 or 100 to 32767 dots per inch."},
        {L"Resolution\n-300\n",
         "Invalid raster resolution \"-300\": expected 0 or 100 to 32767 dots per inch."},
        {L"Name\nDraft\nResolution\nhigh\n",
         "Invalid raster resolution \"high\": expected 0 or 100 to 32767 dots per inch."},
    };
    for (const auto& [answers, error] : cases) {
        run((std::wstring(L"-PAGESETUP\n") + answers).c_str());
        EXPECT_TRUE(host->commandNames().isEmpty());
        EXPECT_EQ(takeLog().back(), error);
        EXPECT_EQ(settings(), "setup=Kept table= dpi=0") << error;
        EXPECT_EQ(spy.take(), (Lines{"commandWillStart -PAGESETUP", "refreshNeeded false"}))
            << "a command taken back tells nothing of what it changed first";
    }
}

TEST_F(PageSetupCommandTest, TheSecondLanguageHasItsOwnWords) {
    pageSetup(L"Name\nDraft\n");
    spy.take();
    takeLog();
    KyRxResourceInstance::setLanguage(L"de");
    run(L"-SEITENEINR\nTabelle\nGrayscale.ctb\nAufloesung\n400\nName\nKeine\n\n");
    KyRxResourceInstance::setLanguage(L"");
    EXPECT_EQ(settings(), "setup= table=Grayscale.ctb dpi=400");
    const Lines log = takeLog();
    ASSERT_EQ(log.size(), 9u);
    EXPECT_EQ(log[0], "Command: -SEITENEINR");
    EXPECT_EQ(log[2], "Enter an option [Name/Tabelle/Aufloesung]: Tabelle");
    EXPECT_EQ(log[3], "Enter a plot style table name or [?/Keine] <Keine>: Grayscale.ctb");
    EXPECT_EQ(log[7], "Enter a page setup name or [Keine] <Draft>: Keine");
    EXPECT_EQ(spy.take(), commandEvents("-PAGESETUP", kTold)) << "under the global name";
}

}  // namespace
}  // namespace refhost
