// Refresh passes read every variable that was asked for and tell its
// reactors what changed: the value first, then the activity. A value that is
// the same for the user is no change.
#include <gtest/gtest.h>

#include "kydi/KyDiManager.h"
#include "sysvars/SysVarFixture.h"

namespace {

using kytest::Lines;
using kytest::SysVarSpy;

class SysVarRefresh : public kytest::SysVarFixture {};

}  // namespace

TEST_F(SysVarRefresh, HostChangeReachesReactorsAtTheNextPassOnly) {
    SysVarSpy spy(sysVar(L"LUPREC"));
    host.editorService.setShort(L"LUPREC", 6);
    EXPECT_EQ(valueOf(L"LUPREC"), L"4");
    EXPECT_TRUE(spy.lines.empty());

    KyDiManager::refresh();
    KyDiManager::refresh();
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged LUPREC 6"})) << "told once";
    EXPECT_EQ(valueOf(L"LUPREC"), L"6");
}

TEST_F(SysVarRefresh, TextsDifferingOnlyInCaseAreTheSame) {
    SysVarSpy spy(sysVar(L"TEXTSTYLE"));
    host.editorService.setText(L"TEXTSTYLE", L"STANDARD");
    KyDiManager::refresh();
    EXPECT_TRUE(spy.lines.empty());
    host.editorService.setText(L"TEXTSTYLE", L"Notes");
    KyDiManager::refresh();
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged TEXTSTYLE Notes"}));
}

TEST_F(SysVarRefresh, RealsCloserThanOneMillionthAreTheSame) {
    SysVarSpy spy(sysVar(L"FILLETRAD"));
    host.editorService.setReal(L"FILLETRAD", 0.0000009);
    KyDiManager::refresh();
    EXPECT_TRUE(spy.lines.empty());
    host.editorService.setReal(L"FILLETRAD", 0.000001);
    KyDiManager::refresh();
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged FILLETRAD 1e-06"})) << "exactly 1e-6 is a move";
}

TEST_F(SysVarRefresh, PointsCompareCoordinateByCoordinate) {
    host.editorService.setPoint(L"SNAPBASE", 1.0, 2.0);
    SysVarSpy spy(sysVar(L"SNAPBASE"));
    host.editorService.setPoint(L"SNAPBASE", 1.0, 2.0000001);
    KyDiManager::refresh();
    EXPECT_TRUE(spy.lines.empty());
    host.editorService.setPoint(L"SNAPBASE", 1.0, 2.5);
    KyDiManager::refresh();
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged SNAPBASE (1,2.5)"}));
}

TEST_F(SysVarRefresh, OrientationCountsAsChangedInEveryPass) {
    host.editorService.setReal(L"SNAPANG", 0.5, KYRB_ORIENT);
    SysVarSpy spy(sysVar(L"SNAPANG"));
    KyDiManager::refresh();
    KyDiManager::refresh();
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged SNAPANG 0.5", L"valueChanged SNAPANG 0.5"}));
}

TEST_F(SysVarRefresh, ClearedValueIsReportedAgainButAValueJustSetStays) {
    KyDiSysVar* luprec = sysVar(L"LUPREC");
    SysVarSpy spy(luprec);
    luprec->clearValue();
    KyDiManager::refresh();
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged LUPREC 4"}));

    ASSERT_EQ(luprec->setValue(kytest::shortValue(7), true), Kyro::eOk);
    luprec->clearValue();
    EXPECT_EQ(valueOf(L"LUPREC"), L"7");
}

TEST_F(SysVarRefresh, ValueIsToldBeforeActivity) {
    host.editorService.setShort(L"VSEDGES", 1);
    host.editorService.setShort(L"VSEDGECOLOR", 3);
    SysVarSpy spy(sysVar(L"VSEDGECOLOR"));
    host.editorService.setShort(L"VSEDGES", 0);
    host.editorService.setShort(L"VSEDGECOLOR", 5);
    KyDiManager::refresh();
    EXPECT_EQ(spy.lines,
              (Lines{L"valueChanged VSEDGECOLOR 5", L"activeChanged VSEDGECOLOR false"}));
}

TEST_F(SysVarRefresh, EdgeSettingsFollowTheEdgesShownAndTheEditingState) {
    host.editorService.setShort(L"VSEDGES", 1);
    host.editorService.setShort(L"VSEDGECOLOR", 3);
    host.editorService.setShort(L"VSINTERSECTIONCOLOR", 2);
    host.editorService.setShort(L"VSINTERSECTIONEDGES", 1);
    KyDiSysVar* edgeColor = sysVar(L"VSEDGECOLOR");
    KyDiSysVar* intersectionColor = sysVar(L"VSINTERSECTIONCOLOR");
    EXPECT_TRUE(edgeColor->isActive());
    EXPECT_FALSE(intersectionColor->isActive()) << "intersections need facet edges (2)";

    host.editorService.setShort(L"VSEDGES", 2);
    KyDiManager::refresh();
    EXPECT_TRUE(intersectionColor->isActive());

    host.editorService.setShort(L"BLOCKEDITOR", 1);
    KyDiManager::refresh();
    EXPECT_FALSE(edgeColor->isActive()) << "not in the block editor";
    EXPECT_FALSE(intersectionColor->isActive());

    host.editorService.setShort(L"BLOCKEDITOR", 0);
    host.withEditor = false;
    KyDiManager::refresh();
    EXPECT_FALSE(edgeColor->isActive()) << "the test needs the host's VSEDGES";
}

TEST_F(SysVarRefresh, SkyIsOnlyOfferedInPerspective) {
    host.editorService.setShort(L"SKYSTATUS", 0);
    host.editorService.setShort(L"PERSPECTIVE", 0);
    SysVarSpy spy(sysVar(L"SKYSTATUS"));
    EXPECT_FALSE(sysVar(L"SKYSTATUS")->isActive());
    host.editorService.setShort(L"PERSPECTIVE", 1);
    KyDiManager::refresh();
    EXPECT_EQ(spy.lines, (Lines{L"activeChanged SKYSTATUS true"}));
}

namespace {

// Leaves the variable at its first notification.
class LeavingSpy final : public KyDiDataValueReactor {
public:
    explicit LeavingSpy(KyDiSysVar* sysVar) : m_sysVar(sysVar) { m_sysVar->addReactor(this); }
    void valueChanged(const resbuf*) override {
        ++calls;
        m_sysVar->removeReactor(this);
    }
    void activeChanged(bool) override { ++calls; }
    int calls = 0;

private:
    KyDiSysVar* m_sysVar;
};

}  // namespace

TEST_F(SysVarRefresh, ReactorLeavingDuringTheNotificationDoesNotDisturbTheOthers) {
    host.editorService.setShort(L"VSEDGES", 1);
    host.editorService.setShort(L"VSEDGECOLOR", 3);
    KyDiSysVar* edgeColor = sysVar(L"VSEDGECOLOR");
    LeavingSpy leaving(edgeColor);
    SysVarSpy spy(edgeColor);
    host.editorService.setShort(L"VSEDGES", 0);
    host.editorService.setShort(L"VSEDGECOLOR", 5);
    KyDiManager::refresh();
    EXPECT_EQ(leaving.calls, 1) << "gone before the activity was told";
    EXPECT_EQ(spy.lines,
              (Lines{L"valueChanged VSEDGECOLOR 5", L"activeChanged VSEDGECOLOR false"}));
}
