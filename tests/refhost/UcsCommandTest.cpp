// UCS as the data item layer's UCS tracker sends it: the orthographic planes
// and World set an unnamed UCS, Named Restore one of the drawing's table; the
// drawing's UCS variables follow, the host tells ucsChanged once, and U takes
// the change back.
#include <string>

#include "DrawingContent.h"
#include "RefHostTestSupport.h"
#include "base/KyRxResourceInstance.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbUCSTableRecord.h"

namespace refhost {
namespace {

class UcsCommandTest : public RefHostTest {
protected:
    UcsCommandTest()
        : content(db()),
          site(content.addRecord<KyDbUCSTableRecord>(db()->UCSTableId(), L"Site",
                                                     [](KyDbUCSTableRecord& ucs) {
                                                         ucs.setOrigin({10.0, 20.0, 0.0});
                                                         ucs.setXAxis({0.0, 1.0, 0.0});
                                                         ucs.setYAxis({-1.0, 0.0, 0.0});
                                                     })) {}

    KyGePoint3d point(const wchar_t* name) const {
        KyRefResbufPtr value;
        EXPECT_EQ(host->sysVars().get(name, value), KyRefSysVarStatus::kOk);
        return KyGePoint3d(value->resval.rpoint[0], value->resval.rpoint[1],
                           value->resval.rpoint[2]);
    }

    // The current UCS as the host's UCS service tells it.
    std::pair<std::string, KyDbObjectId> current() const {
        KyString name;
        KyDbObjectId id;
        EXPECT_EQ(host->ucsService()->getCurrent(name, id), Kyro::eOk);
        return {name.utf8(), id};
    }

    void expectAxes(const KyGePoint3d& origin, const KyGePoint3d& x, const KyGePoint3d& y,
                    const std::string& what) const {
        EXPECT_EQ(point(L"UCSORG"), origin) << what;
        EXPECT_EQ(point(L"UCSXDIR"), x) << what;
        EXPECT_EQ(point(L"UCSYDIR"), y) << what;
    }

    DrawingContent content;
    KyDbObjectId site;
};

TEST_F(UcsCommandTest, AnOrthographicPlaneIsAnUnnamedUcsToldOnceAfterTheCommand) {
    run(L"_.UCS\n_FRont\n");
    EXPECT_EQ(current(), std::make_pair(std::string("Front"), KyDbObjectId()));
    expectAxes({0, 0, 0}, {1, 0, 0}, {0, 0, 1}, "Front");
    EXPECT_TRUE(host->commandNames().isEmpty());
    EXPECT_EQ(takeLog(),
              (Lines{"Command: _.UCS", "Current ucs name:  *WORLD*",
                     "Specify origin of UCS or [Top/Bottom/FRont/BAck/Left/RIght/World/NAmed] "
                     "<World>: _FRont"}));
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart UCS", "sysVarChanged UCSNAME true",
                                 "sysVarChanged UCSYDIR true", "ucsChanged", "commandEnded UCS",
                                 "refreshNeeded false"}));
}

TEST_F(UcsCommandTest, EachPlaneWordTheTrackerSendsHasItsAxes) {
    struct Case {
        const wchar_t* text;
        const char* name;
        KyGePoint3d x;
        KyGePoint3d y;
    };
    const Case cases[] = {
        {L"_.UCS\n_Top\n", "Top", {1, 0, 0}, {0, 1, 0}},
        {L"_.UCS\n_Bottom\n", "Bottom", {1, 0, 0}, {0, -1, 0}},
        {L"_.UCS\n_BAck\n", "Back", {-1, 0, 0}, {0, 0, 1}},
        {L"_.UCS\n_Left\n", "Left", {0, -1, 0}, {0, 0, 1}},
        {L"_.UCS\n_RIght\n", "Right", {0, 1, 0}, {0, 0, 1}},
        {L"_.UCS\n_World\n", "World", {1, 0, 0}, {0, 1, 0}},
    };
    for (const Case& plane : cases) {
        run(plane.text);
        EXPECT_EQ(current().first, plane.name);
        expectAxes({0, 0, 0}, plane.x, plane.y, plane.name);
    }
}

TEST_F(UcsCommandTest, PlanesStandOnTheDrawingsBaseUcs) {
    {
        KyAxDocLock lock(db());
        ASSERT_EQ(db()->setUcsBase(site), Kyro::eOk);
    }
    run(L"_.UCS\n_Top\n");
    expectAxes({10, 20, 0}, {0, 1, 0}, {-1, 0, 0}, "Top of Site");
    run(L"_.UCS\n_FRont\n");
    expectAxes({10, 20, 0}, {0, 1, 0}, {0, 0, 1}, "Front of Site");
}

TEST_F(UcsCommandTest, NamedRestoreTakesTheRecordAndUTakesItBack) {
    run(L"_.UCS\n_Named\n_Restore\nsite\n");
    EXPECT_EQ(current(), std::make_pair(std::string("Site"), site));
    expectAxes({10, 20, 0}, {0, 1, 0}, {-1, 0, 0}, "Site");
    EXPECT_EQ(takeLog().back(), "Enter name of UCS to restore: site");
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart UCS", "sysVarChanged UCSNAME true",
                                 "sysVarChanged UCSORG true", "sysVarChanged UCSXDIR true",
                                 "sysVarChanged UCSYDIR true", "ucsChanged", "commandEnded UCS",
                                 "refreshNeeded false"}));

    run(L"U\n");
    EXPECT_EQ(current(), std::make_pair(std::string("World"), KyDbObjectId()));
    expectAxes({0, 0, 0}, {1, 0, 0}, {0, 1, 0}, "World again");
    EXPECT_EQ(
        spy.take(),
        (Lines{"commandWillStart U", "sysVarChanged UCSNAME true", "sysVarChanged UCSORG true",
               "sysVarChanged UCSXDIR true", "sysVarChanged UCSYDIR true", "ucsChanged",
               "drawingContentChanged", "commandEnded U", "refreshNeeded false"}));
}

TEST_F(UcsCommandTest, TheUcsItHasAlreadyIsNoChange) {
    run(L"_.UCS\n_World\nUCS\n\n");
    EXPECT_EQ(spy.take(),
              (Lines{"commandWillStart UCS", "commandEnded UCS", "refreshNeeded false",
                     "commandWillStart UCS", "commandEnded UCS", "refreshNeeded false"}));
}

TEST_F(UcsCommandTest, WhatItCantTakeIsAnErrorAndLeavesItAtNoPrompt) {
    const std::pair<const wchar_t*, const char*> cases[] = {
        {L"_.UCS\n_Named\n_Restore\nNowhere\n", "Cannot find UCS \"Nowhere\"."},
        {L"_.UCS\nSideways\n", "Invalid option keyword \"Sideways\"."},
        {L"_.UCS\n_Named\n_Save\n", "This host does not support the option Save."},
        {L"_.UCS\n_Named\n\x03", "Enter an option [Restore/Save/Delete/?]: *Cancel*"},
    };
    for (const auto& [text, error] : cases) {
        run(text);
        EXPECT_EQ(takeLog().back(), error);
        EXPECT_TRUE(host->commandNames().isEmpty()) << error;
        EXPECT_EQ(spy.take(), (Lines{"commandWillStart UCS", "refreshNeeded false"})) << error;
        EXPECT_EQ(current().first, "World");
    }
}

TEST_F(UcsCommandTest, TheHostsSecondLanguageHasItsOwnWords) {
    KyRxResourceInstance::setLanguage(L"de");
    run(L"BKS\nOben\n");
    EXPECT_EQ(current().first, "Top");
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart UCS", "sysVarChanged UCSNAME true", "ucsChanged",
                                 "commandEnded UCS", "refreshNeeded false"}))
        << "the events name the command by its global name";
    run(L"_.UCS\n_RIght\n");
    EXPECT_EQ(current().first, "Right");
    KyRxResourceInstance::setLanguage(L"");
}

}  // namespace
}  // namespace refhost
