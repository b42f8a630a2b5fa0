// Refresh passes read every variable that was asked for and tell its
// reactors what changed: the value first, then the activity. A value that is
// the same for the user is no change.
#include <gtest/gtest.h>

#include "kydi/KyDiManager.h"
#include "sysvars/EditorLosingFixture.h"
#include "sysvars/SysVarFixture.h"

namespace {

using kytest::Lines;
using kytest::SysVarSpy;

class SysVarRefresh : public kytest::SysVarFixture {
protected:
    void SetUp() override {
        SysVarFixture::SetUp();
        // A first pass: the host's own requests after a command now fall
        // within the throttle's gap, so that each test runs its passes itself.
        KyDiManager::refresh();
    }
};

}  // namespace

TEST_F(SysVarRefresh, HostChangeReachesReactorsAtTheNextPassOnly) {
    SysVarSpy spy(sysVar(L"LUPREC"));
    type(L"LUPREC\n6\n");
    EXPECT_EQ(valueOf(L"LUPREC"), L"4");
    EXPECT_TRUE(spy.lines.empty());

    KyDiManager::refresh();
    KyDiManager::refresh();
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged LUPREC 6"})) << "told once";
    EXPECT_EQ(valueOf(L"LUPREC"), L"6");
}

TEST_F(SysVarRefresh, TextsDifferingOnlyInCaseAreTheSame) {
    SysVarSpy spy(sysVar(L"HPNAME"));
    type(L"HPNAME\nansi31\n");
    ASSERT_EQ(hostValue(L"HPNAME"), L"ansi31");
    KyDiManager::refresh();
    EXPECT_TRUE(spy.lines.empty());
    type(L"HPNAME\nANSI37\n");
    KyDiManager::refresh();
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged HPNAME ANSI37"}));
}

TEST_F(SysVarRefresh, RealsCloserThanOneMillionthAreTheSame) {
    SysVarSpy spy(sysVar(L"FILLETRAD"));
    type(L"FILLETRAD\n0.0000009\n");
    KyDiManager::refresh();
    EXPECT_TRUE(spy.lines.empty());
    type(L"FILLETRAD\n0.000001\n");
    KyDiManager::refresh();
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged FILLETRAD 1e-06"})) << "exactly 1e-6 is a move";
}

TEST_F(SysVarRefresh, PointsCompareCoordinateByCoordinate) {
    type(L"SNAPBASE\n1,2\n");
    SysVarSpy spy(sysVar(L"SNAPBASE"));
    type(L"SNAPBASE\n1,2.0000001\n");
    KyDiManager::refresh();
    EXPECT_TRUE(spy.lines.empty());
    type(L"SNAPBASE\n1,2.5\n");
    KyDiManager::refresh();
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged SNAPBASE (1,2.5)"}));
}

TEST_F(SysVarRefresh, OrientationCountsAsChangedInEveryPass) {
    type(L"SNAPANG\n0.5\n");
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
    ASSERT_EQ(hostValue(L"VSEDGES"), L"1");
    SysVarSpy spy(sysVar(L"VSEDGECOLOR"));
    type(L"VSEDGES\n0\nVSEDGECOLOR\nred\n");
    KyDiManager::refresh();
    EXPECT_EQ(spy.lines,
              (Lines{L"valueChanged VSEDGECOLOR red", L"activeChanged VSEDGECOLOR false"}));
}

TEST_F(SysVarRefresh, EdgeSettingsFollowTheEdgesShownAndTheEditingState) {
    type(L"VSINTERSECTIONEDGES\n1\n");
    KyDiSysVar* edgeColor = sysVar(L"VSEDGECOLOR");
    KyDiSysVar* intersectionColor = sysVar(L"VSINTERSECTIONCOLOR");
    EXPECT_TRUE(edgeColor->isActive());
    EXPECT_FALSE(intersectionColor->isActive()) << "intersections need facet edges (2)";

    type(L"VSEDGES\n2\n");
    KyDiManager::refresh();
    EXPECT_TRUE(intersectionColor->isActive());

    host.setVariable(L"BLOCKEDITOR", kytest::shortValue(1), KyRefSysVarStore::kIgnoreReadOnly);
    KyDiManager::refresh();
    EXPECT_FALSE(edgeColor->isActive()) << "not in the block editor";
    EXPECT_FALSE(intersectionColor->isActive());

    host.setVariable(L"BLOCKEDITOR", kytest::shortValue(0), KyRefSysVarStore::kIgnoreReadOnly);
    type(L"CTAB\nLayout1\n");
    KyDiManager::refresh();
    EXPECT_FALSE(edgeColor->isActive()) << "not in paper space";
    type(L"CTAB\nModel\n");
    KyDiManager::refresh();
    EXPECT_TRUE(edgeColor->isActive());
}

TEST_F(SysVarRefresh, SkyIsOnlyOfferedInPerspective) {
    SysVarSpy spy(sysVar(L"SKYSTATUS"));
    EXPECT_FALSE(sysVar(L"SKYSTATUS")->isActive());
    type(L"PERSPECTIVE\n1\n");
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
    KyDiSysVar* edgeColor = sysVar(L"VSEDGECOLOR");
    LeavingSpy leaving(edgeColor);
    SysVarSpy spy(edgeColor);
    type(L"VSEDGES\n0\nVSEDGECOLOR\nred\n");
    KyDiManager::refresh();
    EXPECT_EQ(leaving.calls, 1) << "gone before the activity was told";
    EXPECT_EQ(spy.lines,
              (Lines{L"valueChanged VSEDGECOLOR red", L"activeChanged VSEDGECOLOR false"}));
}

namespace {

class SysVarRefreshWithoutEditor : public kytest::EditorLosingFixture {};

}  // namespace

TEST_F(SysVarRefreshWithoutEditor, ActivityThatNeedsAHostVariableEnds) {
    KyDiSysVar* edgeColor = sysVar(L"VSEDGECOLOR");
    ASSERT_TRUE(edgeColor->isActive());
    detachEditor();
    KyDiManager::refresh();
    EXPECT_FALSE(edgeColor->isActive()) << "the test needs the host's VSEDGES";
}
