// Layouts and viewports made current: any layout through CTAB or the plot
// service, with TILEMODE following; a viewport of the layout shown entered
// and left as a user clicks, with the events a real host raises; what can't
// be entered refused with its status and reason, and nothing told.
#include "KyRefReadAccess.h"
#include "ViewTestSupport.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLayout.h"

namespace refhost {
namespace {

const Lines kViewportChanged = {"sysVarWillChange CVPORT", "sysVarChanged CVPORT true",
                                "refreshNeeded false"};

class LayoutViewportTest : public ViewsFixture {
protected:
    std::string currentLayout() const {
        KyRefReadAccess<KyDbLayout> layout(kydbCurrentLayoutId(db()));
        return layout ? layout->layoutName().utf8() : std::string("none");
    }
    // What entering `handle` answers, with its reason.
    std::pair<Kyro::ErrorStatus, std::string> enter(const wchar_t* handle) {
        KyString reason;
        const Kyro::ErrorStatus status = host->enterViewport(object(handle), &reason);
        return {status, reason.utf8()};
    }
};

TEST_F(LayoutViewportTest, AnyLayoutBecomesCurrentAndTileModeFollows) {
    run(L"CTAB\nDetails\n");
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart CTAB", "sysVarChanged TILEMODE true",
                                 "sysVarChanged CTAB true", "sysVarChanged CVPORT true",
                                 "plotSettingsChanged", "plotSettingsChangedForLayout Details",
                                 "layoutChanged", "commandEnded CTAB", "refreshNeeded false"}));
    EXPECT_EQ(currentLayout(), "Details");
    EXPECT_EQ(getShort(L"TILEMODE"), 0);
    EXPECT_EQ(getShort(L"CVPORT"), 1);
    EXPECT_EQ(block(L"*Paper_Space"), object(L"1C")) << "the block of the layout shown";
    EXPECT_EQ(currentViewport(), object(L"50"));

    // From one sheet to the other only the layout changes.
    ASSERT_TRUE(host->plotService()->setLayoutByName(KyString(L"Plan")));
    EXPECT_EQ(spy.take(),
              (Lines{"sysVarWillChange CTAB", "sysVarChanged CTAB true", "plotSettingsChanged",
                     "plotSettingsChangedForLayout Plan", "layoutChanged"}));
    EXPECT_EQ(currentLayout(), "Plan");
    EXPECT_EQ(currentViewport(), object(L"40"));
    ASSERT_TRUE(host->plotService()->setLayoutByName(KyString(L"Model")));
    EXPECT_EQ(getShort(L"TILEMODE"), 1);
    EXPECT_EQ(getShort(L"CVPORT"), 2);
    EXPECT_FALSE(host->plotService()->setLayoutByName(KyString(L"Elevation")));
    EXPECT_EQ(currentLayout(), "Model");

    // TILEMODE 0 shows the sheet shown last; U takes a switch back.
    run(L"CTAB\nDetails\nTILEMODE\n1\nTILEMODE\n0\n");
    EXPECT_EQ(currentLayout(), "Details");
    run(L"U\nU\nU\n");
    EXPECT_EQ(currentLayout(), "Model");
    EXPECT_EQ(block(L"*Paper_Space"), object(L"1B"));
    EXPECT_EQ(block(L"*Paper_Space0"), object(L"1C"));
}

TEST_F(LayoutViewportTest, AViewportEnteredAndLeftTellsTheViewportThatChanged) {
    run(L"CTAB\nPlan\n");
    spy.take();
    ASSERT_EQ(host->enterViewport(object(L"41")), Kyro::eOk);
    EXPECT_EQ(spy.take(), kViewportChanged);
    EXPECT_EQ(getShort(L"CVPORT"), 2);
    EXPECT_EQ(currentViewport(), object(L"41"));
    ASSERT_EQ(host->enterViewport(object(L"41")), Kyro::eOk);
    EXPECT_TRUE(spy.take().empty()) << "entered already";

    ASSERT_EQ(host->enterViewport(object(L"43")), Kyro::eOk);
    EXPECT_EQ(spy.take(), kViewportChanged) << "a locked viewport can be entered";
    EXPECT_EQ(getShort(L"CVPORT"), 4);

    ASSERT_EQ(host->leaveViewport(), Kyro::eOk);
    EXPECT_EQ(spy.take(), kViewportChanged);
    EXPECT_EQ(getShort(L"CVPORT"), 1);
    KyDbObjectId entered;
    host->viewportService()->viewportId(entered);
    EXPECT_TRUE(entered.isNull());
    ASSERT_EQ(host->leaveViewport(), Kyro::eOk);
    EXPECT_TRUE(spy.take().empty()) << "on the paper already";

    // A typed CVPORT enters the viewport of that number.
    run(L"CVPORT\n2\n");
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart CVPORT", "sysVarChanged CVPORT true",
                                 "commandEnded CVPORT", "refreshNeeded false"}));
    EXPECT_EQ(currentViewport(), object(L"41"));

    // Erased, the viewport entered gives way to the paper, told at the end
    // of the command.
    run(L"ERASE\n41\n\n");
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart ERASE", "sysVarChanged CVPORT true",
                                 "commandEnded ERASE", "refreshNeeded false"}));
    EXPECT_EQ(getShort(L"CVPORT"), 1);
    EXPECT_EQ(currentViewport(), object(L"40"));
}

TEST_F(LayoutViewportTest, WhatCantBeEnteredIsRefusedAndNothingIsTold) {
    using Refusal = std::pair<Kyro::ErrorStatus, std::string>;
    EXPECT_EQ(enter(L"41"),
              Refusal(Kyro::eNotApplicable, "The viewport is not on the layout shown."))
        << "model space is shown";
    KyString reason;
    EXPECT_EQ(host->leaveViewport(&reason), Kyro::eNotApplicable);
    EXPECT_EQ(reason, KyString(L"Model space is shown."));

    run(L"CTAB\nPlan\n");
    spy.take();
    EXPECT_EQ(enter(L"51"),
              Refusal(Kyro::eNotApplicable, "The viewport is not on the layout shown."));
    EXPECT_EQ(enter(L"40"), Refusal(Kyro::eInvalidInput, "The paper viewport can't be entered."));
    EXPECT_EQ(enter(L"42"), Refusal(Kyro::eNotApplicable, "The viewport is off."));
    EXPECT_EQ(enter(L"20"), Refusal(Kyro::eNotThatKindOfClass, "The object is not a viewport."));
    EXPECT_EQ(host->enterViewport(KyDbObjectId()), Kyro::eNullObjectId);
    run(L"ERASE\n43\n\n");
    spy.take();
    EXPECT_EQ(enter(L"43"), Refusal(Kyro::eWasErased, "The viewport is erased."));
    EXPECT_TRUE(spy.take().empty());
    EXPECT_EQ(getShort(L"CVPORT"), 1);

    // Typed, the same numbers are refused with the host's reason.
    takeLog();
    run(L"CVPORT\n3\n");
    EXPECT_EQ(takeLog().back(), "The viewport is off.");
    run(L"CVPORT\n9\n");
    EXPECT_EQ(takeLog().back(), "The layout has no viewport 9.");
    run(L"CTAB\nModel\nCVPORT\n1\n");
    EXPECT_EQ(takeLog().back(), "Model space shows viewport 2 only.");
    EXPECT_EQ(getShort(L"CVPORT"), 2);
}

}  // namespace
}  // namespace refhost
