// VSCURRENT as the data item layer's visual style tracker sends it: two
// cancels, the echo switch, then a standard style's word (its name without
// blanks) or Other and a style's name. The object holding the view shown keeps
// the style: each drawing and each viewport has its own, and U takes it back.
#include <string>

#include "DrawingContent.h"
#include "KyRefLayoutViewports.h"
#include "KyRefNamedItem.h"
#include "RefHostTestSupport.h"
#include "base/KyRxResourceInstance.h"
#include "db/KyDbViewport.h"
#include "db/KyDbViewportTableRecord.h"
#include "io/KyRefDrawingWriter.h"

namespace refhost {
namespace {

const std::string kOptionPrompt =
    "Enter an option [2dWireframe/Wireframe/Hidden/Realistic/Conceptual/ShadesofGray/Sketchy/"
    "X-Ray/Shadedwithedges/Shaded/Other] <2dWireframe>: ";

class VsCurrentCommandTest : public RefHostTest {
protected:
    std::string currentStyle() const { return host->visualStyleService()->currentName().utf8(); }

    KyDbObjectId style(const wchar_t* name) const {
        return KyRefNamedItem::find(db()->visualStyleDictionaryId(), name);
    }

    void runVsCurrent(const wchar_t* answers) {
        run((std::wstring(L"^C^C^Q_.VSCURRENT\n") + answers).c_str());
        EXPECT_TRUE(host->commandNames().isEmpty()) << utf8(answers);
    }
};

TEST_F(VsCurrentCommandTest, AStandardWordMakesTheStyleCurrentAfterTwoCancels) {
    runVsCurrent(L"_Hidden\n");
    EXPECT_EQ(currentStyle(), "Hidden");
    KyDbObjectId id;
    host->visualStyleService()->getCurrent(id);
    EXPECT_EQ(id, style(L"Hidden"));
    EXPECT_EQ(takeLog(), (Lines{"Command: *Cancel*", "Command: *Cancel*", "Command: _.VSCURRENT",
                                kOptionPrompt + "_Hidden"}));
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart VSCURRENT", "invalidateAll",
                                 "commandEnded VSCURRENT", "refreshNeeded false"}))
        << "the view is drawn anew in the style";
}

TEST_F(VsCurrentCommandTest, NamesWithBlanksAreSentAsOneWordAndWholeWordsWinOverAbbreviations) {
    const std::pair<const wchar_t*, const char*> cases[] = {
        {L"_ShadesofGray\n", "Shades of Gray"},
        {L"_Shadedwithedges\n", "Shaded with edges"},
        {L"_Shaded\n", "Shaded"},
        {L"_X-Ray\n", "X-Ray"},
        {L"_2dWireframe\n", "2dWireframe"},
        {L"_Conceptual\n", "Conceptual"},
    };
    for (const auto& [answer, name] : cases) {
        runVsCurrent(answer);
        EXPECT_EQ(currentStyle(), name);
    }
}

TEST_F(VsCurrentCommandTest, OtherTakesAnyStyleOfTheDrawingByName) {
    runVsCurrent(L"_other\nModeling\n");
    EXPECT_EQ(currentStyle(), "Modeling");
    EXPECT_EQ(takeLog().back(), "Enter a visual style name: Modeling");
    runVsCurrent(L"_other\nshades of gray\n");
    EXPECT_EQ(currentStyle(), "Shades of Gray");
}

TEST_F(VsCurrentCommandTest, AStyleItCantShowIsAnErrorAndChangesNothing) {
    const std::pair<const wchar_t*, const char*> cases[] = {
        {L"_other\nMoonlight\n", "Cannot find visual style \"Moonlight\"."},
        {L"_other\nBasic\n", "The visual style \"Basic\" is for internal use."},
        {L"_other\n\x03", "Enter a visual style name: *Cancel*"},
    };
    for (const auto& [answers, error] : cases) {
        runVsCurrent(answers);
        EXPECT_EQ(takeLog().back(), error);
        EXPECT_EQ(currentStyle(), "2dWireframe");
        EXPECT_EQ(spy.take(), (Lines{"commandWillStart VSCURRENT", "refreshNeeded false"}));
    }
}

TEST_F(VsCurrentCommandTest, TheCancelsEndACommandThatWaitsAtItsPrompt) {
    addLayer(L"Walls");
    run(L"CLAYER\n");
    ASSERT_FALSE(host->commandNames().isEmpty());
    runVsCurrent(L"_Realistic\n");
    EXPECT_EQ(currentStyle(), "Realistic");
    EXPECT_EQ(getString(L"CLAYER"), "0");
}

TEST_F(VsCurrentCommandTest, InALayoutTheCurrentViewportEntityTakesTheStyleUntilU) {
    DrawingContent content(db());
    const KyDbObjectId paper =
        content.addEntityTo<KyDbViewport>(content.paperSpaceId(), [](KyDbViewport&) {});
    const KyDbObjectId viewport =
        content.addEntityTo<KyDbViewport>(content.paperSpaceId(), [](KyDbViewport&) {});
    ASSERT_FALSE(paper.isNull());
    run(L"TILEMODE\n0\n");
    ASSERT_EQ(host->enterViewport(viewport), Kyro::eOk);
    runVsCurrent(L"_Conceptual\n");
    EXPECT_EQ(KyDbObjectPointer<KyDbViewport>(viewport, KyDb::kForRead)->visualStyleId(),
              style(L"Conceptual"));
    EXPECT_EQ(currentStyle(), "Conceptual");
    run(L"U\n");
    EXPECT_TRUE(
        KyDbObjectPointer<KyDbViewport>(viewport, KyDb::kForRead)->visualStyleId().isNull());
    EXPECT_EQ(currentStyle(), "2dWireframe");

    runVsCurrent(L"_Hidden\n");
    ASSERT_EQ(host->leaveViewport(), Kyro::eOk);
    EXPECT_EQ(currentStyle(), "2dWireframe") << "the paper shows its own";
    ASSERT_EQ(host->enterViewport(viewport), Kyro::eOk);
    EXPECT_EQ(currentStyle(), "Hidden");
}

TEST_F(VsCurrentCommandTest, EachDrawingKeepsItsStyleInItsActiveViewThroughUndoAndSaving) {
    runVsCurrent(L"_other\nModeling\n");
    const KyDbObjectId active = KyRefLayoutViewports::activeRecord(db());
    ASSERT_FALSE(active.isNull()) << "the first change of view adds the configuration";
    EXPECT_EQ(KyDbObjectPointer<KyDbViewportTableRecord>(active, KyDb::kForRead)->visualStyleId(),
              style(L"Modeling"));

    KyRefDocument* first = host->documents().current();
    host->documents().newDocument();
    EXPECT_EQ(currentStyle(), "2dWireframe") << "a new drawing shows the default";
    ASSERT_TRUE(host->documents().makeCurrent(first));
    EXPECT_EQ(currentStyle(), "Modeling");

    runVsCurrent(L"_Realistic\n");
    run(L"U\n");
    EXPECT_EQ(currentStyle(), "Modeling");
    run(L"REDO\n");
    EXPECT_EQ(currentStyle(), "Realistic");

    const KyRefJson saved = KyRefDrawingWriter::toJson(db());
    EXPECT_EQ(saved["viewports"][0]["visualStyle"], "Realistic");
}

TEST_F(VsCurrentCommandTest, TheHostsSecondLanguageTakesLocalWordsWithoutBlanks) {
    KyRxResourceInstance::setLanguage(L"de");
    run(L"VSAKTUELL\nSchattiertmitKanten\n");
    EXPECT_EQ(currentStyle(), "Shaded with edges");
    runVsCurrent(L"_Hidden\n");
    EXPECT_EQ(currentStyle(), "Hidden");
    runVsCurrent(L"_other\nVerdeckt\n");
    EXPECT_EQ(currentStyle(), "Hidden");
    KyRxResourceInstance::setLanguage(L"");
}

}  // namespace
}  // namespace refhost
