#include "KyRefSysVarTable.h"

#include <string>
#include <unordered_map>

#include "KyRefSysVarAccessors.h"

namespace {

namespace Acc = KyRefSysVarAccessors;

constexpr auto kDrawing = KyRefSysVarHome::kDrawing;
constexpr auto kSession = KyRefSysVarHome::kSession;

constexpr short kShort = KYRB_SHORT;
constexpr short kLong = KYRB_LONG;
constexpr short kReal = KYRB_REAL;
constexpr short kAngle = KYRB_ANGLE;
constexpr short kText = KYRB_STRING;
constexpr short kPoint2d = KYRB_POINT;
constexpr short kPoint3d = KYRB_3DPOINT;

constexpr unsigned kReadOnly = kSysVarReadOnly;
constexpr unsigned kComputed = kSysVarComputed | kSysVarReadOnly;
constexpr unsigned kPositive = kSysVarAboveMinimum;
constexpr unsigned kNotNegative = kSysVarFromMinimum;

constexpr double kNoMin = 0.0;
constexpr double kNoMax = -1.0;

// The standard lineweights and the three sentinels (-1 ByLayer, -2 ByBlock,
// -3 Default).
constexpr const wchar_t* kLineweights =
    L"-3 -2 -1 0 5 9 13 15 18 20 25 30 35 40 50 53 60 70 80 90 100 106 120 140 158 200 211";

// Name, type, home, value of a new drawing or session, minimum, maximum,
// flags, values allowed, accessor.
const KyRefSysVarRow kRows[] = {
    // Current items of the drawing, by name.
    {L"CLAYER", kText, kDrawing, L"0", kNoMin, kNoMax, 0, nullptr, &Acc::kLayer},
    {L"CELTYPE", kText, kDrawing, L"ByLayer", kNoMin, kNoMax, 0, nullptr, &Acc::kLinetype},
    {L"TEXTSTYLE", kText, kDrawing, L"Standard", kNoMin, kNoMax, 0, nullptr, &Acc::kTextStyle},
    {L"DIMSTYLE", kText, kDrawing, L"Standard", kNoMin, kNoMax, 0, nullptr, &Acc::kDimStyle},
    {L"CTABLESTYLE", kText, kDrawing, L"Standard", kNoMin, kNoMax, 0, nullptr, &Acc::kTableStyle},
    {L"CMLEADERSTYLE", kText, kDrawing, L"Standard", kNoMin, kNoMax, 0, nullptr,
     &Acc::kMLeaderStyle},
    {L"CMATERIAL", kText, kDrawing, L"ByLayer", kNoMin, kNoMax, 0, nullptr, &Acc::kMaterial},
    {L"CVIEWDETAILSTYLE", kText, kDrawing, L"Standard", kNoMin, kNoMax, 0, nullptr,
     &Acc::kDetailViewStyle},
    {L"CVIEWSECTIONSTYLE", kText, kDrawing, L"Standard", kNoMin, kNoMax, 0, nullptr,
     &Acc::kSectionViewStyle},
    {L"CPLOTSTYLE", kText, kDrawing, L"ByLayer", kNoMin, kNoMax, 0, nullptr, &Acc::kPlotStyle},
    {L"CANNOSCALE", kText, kDrawing, L"1:1", kNoMin, kNoMax, 0, nullptr, &Acc::kAnnotationScale},

    // Properties of new objects.
    {L"CECOLOR", kText, kDrawing, L"BYLAYER", kNoMin, kNoMax, 0, nullptr, &Acc::kColor},
    {L"CETRANSPARENCY", kText, kDrawing, L"ByLayer", kNoMin, kNoMax, 0, nullptr,
     &Acc::kTransparency},
    {L"CELWEIGHT", kShort, kDrawing, L"-1", kNoMin, kNoMax, 0, kLineweights, &Acc::kLineweight},
    {L"CELTSCALE", kReal, kDrawing, L"1", 0.0, kNoMax, kPositive},
    {L"CSHADOW", kShort, kDrawing, L"0", 0, 3, 0, nullptr, &Acc::kShadow},
    {L"TEXTSIZE", kReal, kDrawing, L"2.5", 0.0, kNoMax, kPositive},
    {L"THICKNESS", kReal, kDrawing, L"0"},
    {L"ELEVATION", kReal, kDrawing, L"0"},
    {L"PLINEWID", kReal, kDrawing, L"0", 0.0, kNoMax, kNotNegative},

    // Space, layouts and viewports.
    {L"TILEMODE", kShort, kDrawing, L"1", 0, 1, 0, nullptr, &Acc::kTileMode},
    {L"CTAB", kText, kDrawing, L"Model", kNoMin, kNoMax, 0, nullptr, &Acc::kLayout},
    {L"CVPORT", kShort, kDrawing, L"2", 1, 32767, 0, nullptr, &Acc::kViewport},
    {L"PSTYLEMODE", kShort, kDrawing, L"1", 0, 1, kComputed, nullptr, &Acc::kPlotStyleMode},
    {L"RASTERDPI", kShort, kDrawing, L"300", 100, 32767},
    {L"UCSNAME", kText, kDrawing, L"", kNoMin, kNoMax, kReadOnly},
    {L"UCSORG", kPoint3d, kDrawing, L"0,0,0", kNoMin, kNoMax, kReadOnly},
    {L"UCSXDIR", kPoint3d, kDrawing, L"1,0,0", kNoMin, kNoMax, kReadOnly},
    {L"UCSYDIR", kPoint3d, kDrawing, L"0,1,0", kNoMin, kNoMax, kReadOnly},
    {L"UCSVP", kShort, kDrawing, L"1", 0, 1},
    {L"PERSPECTIVE", kShort, kDrawing, L"0", 0, 1},
    {L"BLOCKEDITOR", kShort, kSession, L"0", 0, 1, kReadOnly},

    // Units and scales.
    {L"LUNITS", kShort, kDrawing, L"2", 1, 5},
    {L"LUPREC", kShort, kDrawing, L"4", 0, 8},
    {L"AUNITS", kShort, kDrawing, L"0", 0, 4},
    {L"AUPREC", kShort, kDrawing, L"0", 0, 8},
    {L"ANGBASE", kAngle, kDrawing, L"0"},
    {L"ANGDIR", kShort, kDrawing, L"0", 0, 1},
    {L"INSUNITS", kShort, kDrawing, L"4", 0, 24},
    {L"MEASUREMENT", kShort, kDrawing, L"1", 0, 1},
    {L"LTSCALE", kReal, kDrawing, L"1", 0.0, kNoMax, kPositive},
    {L"PSLTSCALE", kShort, kDrawing, L"1", 0, 1},
    {L"MSLTSCALE", kShort, kDrawing, L"1", 0, 1},
    {L"DIMSCALE", kReal, kDrawing, L"1", 0.0, kNoMax, kNotNegative},
    {L"HIDEXREFSCALES", kShort, kDrawing, L"1", 0, 1},
    {L"INSBASE", kPoint3d, kDrawing, L"0,0,0"},
    {L"LIMMIN", kPoint2d, kDrawing, L"0,0"},
    {L"LIMMAX", kPoint2d, kDrawing, L"420,297"},
    {L"LIMCHECK", kShort, kDrawing, L"0", 0, 1},

    // Drawing modes.
    {L"FILLMODE", kShort, kDrawing, L"1", 0, 1},
    {L"MIRRTEXT", kShort, kDrawing, L"0", 0, 1},
    {L"ORTHOMODE", kShort, kDrawing, L"0", 0, 1},
    {L"SNAPMODE", kShort, kDrawing, L"0", 0, 1},
    {L"SNAPANG", KYRB_ORIENT, kDrawing, L"0"},
    {L"SNAPBASE", kPoint2d, kDrawing, L"0,0"},
    {L"FILLETRAD", kReal, kDrawing, L"0", 0.0, kNoMax, kNotNegative},
    {L"GRIDMODE", kShort, kDrawing, L"0", 0, 1},
    {L"PDMODE", kShort, kDrawing, L"0", 0, 100},
    {L"PDSIZE", kReal, kDrawing, L"0"},

    // Visual styles of the current viewport.
    {L"VSEDGES", kShort, kDrawing, L"1", 0, 2},
    {L"VSEDGECOLOR", kText, kDrawing, L"BYENTITY"},
    {L"VSEDGEJITTER", kShort, kDrawing, L"-2", -3, 3},
    {L"VSEDGELEX", kShort, kDrawing, L"-6", -100, 100},
    {L"VSEDGEOVERHANG", kShort, kDrawing, L"-6", -100, 100},
    {L"VSFACECOLORMODE", kShort, kDrawing, L"0", 0, 3},
    {L"VSFACEOPACITY", kShort, kDrawing, L"-60", -100, 100},
    {L"VSFACESTYLE", kShort, kDrawing, L"0", 0, 2},
    {L"VSINTERSECTIONCOLOR", kText, kDrawing, L"7"},
    {L"VSINTERSECTIONEDGES", kShort, kDrawing, L"0", 0, 1},
    {L"VSLIGHTINGQUALITY", kShort, kDrawing, L"1", 0, 2},
    {L"VSMATERIALMODE", kShort, kDrawing, L"0", 0, 2},
    {L"VSOBSCUREDCOLOR", kText, kDrawing, L"BYENTITY"},
    {L"VSOBSCUREDEDGES", kShort, kDrawing, L"1", 0, 1},
    {L"VSSHADOWS", kShort, kDrawing, L"0", 0, 2},
    {L"VSSILHEDGES", kShort, kDrawing, L"0", 0, 1},
    {L"VSSILHWIDTH", kShort, kDrawing, L"5", 1, 25},

    // Lights, sun and sky.
    {L"DEFAULTLIGHTING", kShort, kDrawing, L"1", 0, 1},
    {L"LIGHTINGUNITS", kShort, kDrawing, L"2", 0, 2},
    {L"SUNSTATUS", kShort, kDrawing, L"0", 0, 1},
    {L"SKYSTATUS", kShort, kDrawing, L"0", 0, 2},

    // Walking through the model.
    {L"STEPSIZE", kReal, kDrawing, L"6", 0.0, kNoMax, kPositive},
    {L"STEPSPERSEC", kReal, kDrawing, L"2", 1, 30},

    // Hatches and gradients: the settings of the next hatch.
    {L"HPNAME", kText, kSession, L"ANSI31"},
    {L"HPLAYER", kText, kSession, L"."},
    {L"HPANG", kAngle, kSession, L"0"},
    {L"HPDOUBLE", kShort, kSession, L"0", 0, 1},
    {L"HPSCALE", kReal, kSession, L"1", 0.0, kNoMax, kPositive},
    {L"HPSPACE", kReal, kSession, L"1", 0.0, kNoMax, kPositive},
    {L"HPANNOTATIVE", kShort, kSession, L"0", 0, 1},
    {L"HPDRAWORDER", kShort, kSession, L"3", 0, 4},
    {L"HPISLANDDETECTION", kShort, kSession, L"1", 0, 2},
    {L"HPISLANDDETECTIONMODE", kShort, kSession, L"1", 0, 1},
    {L"HPTRANSPARENCY", kText, kSession, L"use current"},
    {L"HPBOUNDRETAIN", kShort, kSession, L"0", 0, 1},
    {L"HPRELATIVEPS", kShort, kSession, L"0", 0, 1, kReadOnly},
    {L"HATCHTYPE", kShort, kSession, L"0", 0, 2, kReadOnly},
    {L"HATCHBOUNDSET", kShort, kSession, L"0", 0, 1, kReadOnly},
    {L"GFANG", kAngle, kSession, L"0"},
    {L"GFCLR1", kText, kSession, L"RGB 000,000,255"},
    {L"GFCLR2", kText, kSession, L"RGB 255,255,153"},
    {L"GFCLRLUM", kReal, kSession, L"1", 0, 1},
    {L"GFCLRSTATE", kShort, kSession, L"0", 0, 1},
    {L"GFNAME", kShort, kSession, L"1", 1, 9},
    {L"GFSHIFT", kShort, kSession, L"0", 0, 1},

    // The host's session.
    {L"CMDNAMES", kText, kSession, L"", kNoMin, kNoMax, kComputed | kSysVarNotReported, nullptr,
     &Acc::kCommandNames},
    {L"DRAWINGNAME", kText, kSession, L"", kNoMin, kNoMax, kComputed, nullptr, &Acc::kDrawingName},
    {L"PROPOBJLIMIT", kShort, kSession, L"25000", 0, 32767},
    {L"PICKFIRST", kShort, kSession, L"1", 0, 1},
    {L"FILEDIA", kShort, kSession, L"1", 0, 1},
    {L"CMDDIA", kShort, kSession, L"1", 0, 1},
    {L"EXPERT", kShort, kSession, L"0", 0, 5},
    {L"OSMODE", kShort, kSession, L"0", 0, 16383},
    {L"LASTPOINT", kPoint3d, kSession, L"0,0,0"},
    {L"VIEWRES", kLong, kSession, L"1000", 1, 20000},
    // The units lineweights are shown and typed in: 0 inches, 1 millimetres.
    {L"LWEIGHTUNITS", kShort, kSession, L"1", 0, 1, 0, nullptr, &Acc::kLineweightUnits},
    // Whether the drawing window shows its navigation box (1) or not (0).
    {L"NAVBOX", kShort, kSession, L"1", 0, 1},
};

}  // namespace

std::span<const KyRefSysVarRow> KyRefSysVarTable::rows() {
    return kRows;
}

const KyRefSysVarRow* KyRefSysVarTable::find(const wchar_t* name) {
    if (name == nullptr) {
        return nullptr;
    }
    // The rows by their names in upper case: every read and write of a
    // variable looks its row up, many in each refresh pass.
    static const std::unordered_map<std::wstring, const KyRefSysVarRow*> s_rows = [] {
        std::unordered_map<std::wstring, const KyRefSysVarRow*> rows;
        for (const KyRefSysVarRow& row : kRows) {
            rows.emplace(KyString(row.name).makeUpper().kwszPtr(), &row);
        }
        return rows;
    }();
    const auto found = s_rows.find(KyString(name).makeUpper().kwszPtr());
    return found != s_rows.end() ? found->second : nullptr;
}
