// When a variable may be offered: the model-space-only rows, and the edge
// settings of visual styles, each of which means something only while the
// edges it sets are shown. The reactors hear each change of activity at the
// next pass, in the name order of the variables.
#include <gtest/gtest.h>

#include "kydi/KyDiManager.h"
#include "sysvars/SysVarFixture.h"

namespace {

using kytest::Lines;
using kytest::SysVarSpy;

class SysVarActivity : public kytest::SysVarFixture {
protected:
    void SetUp() override {
        SysVarFixture::SetUp();
        // A first pass: the host's own requests after a command now fall
        // within the throttle's gap, so that each test runs its passes itself.
        KyDiManager::refresh();
    }

    // Types `text` and runs a pass.
    void typeAndRefresh(const wchar_t* text) {
        type(text);
        KyDiManager::refresh();
    }
    void enterBlockEditor(bool inside) {
        host.setVariable(L"BLOCKEDITOR", kytest::shortValue(inside ? 1 : 0),
                         KyRefSysVarStore::kIgnoreReadOnly);
        KyDiManager::refresh();
    }

    Lines lines;
};

}  // namespace

TEST_F(SysVarActivity, ModelSpaceOnlyRowsIgnoreTheEdgesAndLeaveWithModelSpace) {
    SysVarSpy silhouettes(sysVar(L"VSSILHEDGES"), &lines);
    SysVarSpy stepSize(sysVar(L"STEPSIZE"), &lines);
    SysVarSpy stepsPerSecond(sysVar(L"STEPSPERSEC"), &lines);
    ASSERT_TRUE(sysVar(L"STEPSIZE")->isActive());

    typeAndRefresh(L"VSEDGES\n0\n");
    EXPECT_TRUE(lines.empty()) << "edges or none, the rows stay";

    typeAndRefresh(L"CTAB\nLayout1\n");
    typeAndRefresh(L"CTAB\nModel\n");
    enterBlockEditor(true);
    EXPECT_EQ(lines, (Lines{
                         L"activeChanged STEPSIZE false",
                         L"activeChanged STEPSPERSEC false",
                         L"activeChanged VSSILHEDGES false",
                         L"activeChanged STEPSIZE true",
                         L"activeChanged STEPSPERSEC true",
                         L"activeChanged VSSILHEDGES true",
                         L"activeChanged STEPSIZE false",
                         L"activeChanged STEPSPERSEC false",
                         L"activeChanged VSSILHEDGES false",
                     }));
}

TEST_F(SysVarActivity, SilhouetteWidthFollowsTheSilhouettesShown) {
    ASSERT_EQ(hostValue(L"VSSILHEDGES"), L"0");
    KyDiSysVar* width = sysVar(L"VSSILHWIDTH");
    EXPECT_FALSE(width->isActive());
    SysVarSpy spy(width);

    typeAndRefresh(L"VSSILHEDGES\n1\n");
    typeAndRefresh(L"VSEDGES\n0\n");
    EXPECT_TRUE(width->isActive()) << "silhouettes show without the other edges";
    typeAndRefresh(L"CTAB\nLayout1\n");
    EXPECT_EQ(spy.lines,
              (Lines{L"activeChanged VSSILHWIDTH true", L"activeChanged VSSILHWIDTH false"}));
    EXPECT_EQ(valueOf(L"VSSILHWIDTH"), L"5") << "the value is read all the same";
}

TEST_F(SysVarActivity, FacetEdgeSettingsNeedFacetEdgesNotJustEdges) {
    ASSERT_EQ(hostValue(L"VSEDGES"), L"1");
    SysVarSpy intersections(sysVar(L"VSINTERSECTIONEDGES"), &lines);
    SysVarSpy obscured(sysVar(L"VSOBSCUREDEDGES"), &lines);
    EXPECT_TRUE(sysVar(L"VSEDGECOLOR")->isActive());
    EXPECT_FALSE(sysVar(L"VSOBSCUREDEDGES")->isActive()) << "isolines are no facet edges";

    typeAndRefresh(L"VSEDGES\n2\n");
    typeAndRefresh(L"VSEDGES\n0\n");
    typeAndRefresh(L"VSEDGES\n2\n");
    enterBlockEditor(true);
    EXPECT_EQ(lines, (Lines{
                         L"activeChanged VSINTERSECTIONEDGES true",
                         L"activeChanged VSOBSCUREDEDGES true",
                         L"activeChanged VSINTERSECTIONEDGES false",
                         L"activeChanged VSOBSCUREDEDGES false",
                         L"activeChanged VSINTERSECTIONEDGES true",
                         L"activeChanged VSOBSCUREDEDGES true",
                         L"activeChanged VSINTERSECTIONEDGES false",
                         L"activeChanged VSOBSCUREDEDGES false",
                     }));
}

TEST_F(SysVarActivity, ObscuredColourNeedsFacetEdgesWithObscuredEdgesShown) {
    ASSERT_EQ(hostValue(L"VSOBSCUREDEDGES"), L"1");
    ASSERT_EQ(hostValue(L"VSINTERSECTIONEDGES"), L"0");
    KyDiSysVar* color = sysVar(L"VSOBSCUREDCOLOR");
    EXPECT_FALSE(color->isActive()) << "no facet edges yet";
    SysVarSpy spy(color);

    typeAndRefresh(L"VSEDGES\n2\n");
    EXPECT_TRUE(color->isActive()) << "the intersection edges play no part";
    typeAndRefresh(L"VSOBSCUREDEDGES\n0\n");
    typeAndRefresh(L"VSOBSCUREDEDGES\n1\nVSOBSCUREDCOLOR\nred\n");
    typeAndRefresh(L"CTAB\nLayout1\n");
    EXPECT_EQ(spy.lines, (Lines{
                             L"activeChanged VSOBSCUREDCOLOR true",
                             L"activeChanged VSOBSCUREDCOLOR false",
                             L"valueChanged VSOBSCUREDCOLOR red",
                             L"activeChanged VSOBSCUREDCOLOR true",
                             L"activeChanged VSOBSCUREDCOLOR false",
                         }));
}
