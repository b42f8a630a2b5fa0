#include "sysvars/SysVarTable.h"

#include <cwchar>

#include "sysvars/CPlotStyleName.h"
#include "sysvars/DisplayedWhiteColorSysVar.h"
#include "sysvars/HatchSymbolSysVar.h"
#include "sysvars/KeepValidInZeroDocSysVar.h"
#include "sysvars/KyUiImpSysVar.h"
#include "sysvars/ModelSpaceOnlySysVar.h"
#include "sysvars/PaperSpaceSysVar.h"
#include "sysvars/ReadOnlySysVar.h"
#include "sysvars/SkyStatusSysVar.h"
#include "sysvars/VSEdgeSysVar.h"
#include "sysvars/VSFacetEdgeSysVar.h"
#include "sysvars/VSIntersectionEdgeColorSysVar.h"
#include "sysvars/VSObscuredColorSysVar.h"
#include "sysvars/VSSilhouetteEdgeWidthSysVar.h"
#include "sysvars/VpOverrideBackgroundColorSysVar.h"
#include "sysvars/XrefOverrideBackgroundColorSysVar.h"
#include "sysvars/ZeroDocSysVar.h"

namespace {

using SysVarFactory = KyUiImpSysVar* (*)(const wchar_t* name, double minimum, double maximum);

template <typename SysVar>
KyUiImpSysVar* make(const wchar_t* name, double minimum, double maximum) {
    return new SysVar(name, minimum, maximum);
}

struct SysVarRow {
    const wchar_t* name;
    SysVarFactory factory;
    double minimum;
    double maximum;
};

// A maximum below the minimum: the variable has no range to offer.
constexpr double kNoMinimum = 0.0;
constexpr double kNoMaximum = -1.0;

// Lookup takes the first row that matches; the table ends with a null name.
const SysVarRow kRows[] = {
    {L"VSEDGEOVERHANG", make<VSEdgeSysVar>, kNoMinimum, kNoMaximum},
    {L"VSEDGEJITTER", make<VSEdgeSysVar>, kNoMinimum, kNoMaximum},
    {L"VSSILHWIDTH", make<VSSilhouetteEdgeWidthSysVar>, kNoMinimum, kNoMaximum},
    {L"VSSILHEDGES", make<ModelSpaceOnlySysVar>, kNoMinimum, kNoMaximum},
    {L"VSINTERSECTIONEDGES", make<VSFacetEdgeSysVar>, kNoMinimum, kNoMaximum},
    {L"VSOBSCUREDEDGES", make<VSFacetEdgeSysVar>, kNoMinimum, kNoMaximum},
    {L"VSFACEOPACITY", make<VSEdgeSysVar>, -100.0, 100.0},
    {L"VSEDGECOLOR", make<VSEdgeSysVar>, kNoMinimum, kNoMaximum},
    {L"VSOBSCUREDCOLOR", make<VSObscuredColorSysVar>, kNoMinimum, kNoMaximum},
    {L"VSINTERSECTIONCOLOR", make<VSIntersectionEdgeColorSysVar>, kNoMinimum, kNoMaximum},
    {L"STEPSIZE", make<ModelSpaceOnlySysVar>, kNoMinimum, kNoMaximum},
    {L"STEPSPERSEC", make<ModelSpaceOnlySysVar>, kNoMinimum, kNoMaximum},
    {L"SKYSTATUS", make<SkyStatusSysVar>, kNoMinimum, kNoMaximum},
    {L"DISPLAYEDWHITECOLOR", make<DisplayedWhiteColorSysVar>, kNoMinimum, kNoMaximum},
    {L"PAPERSPACE", make<PaperSpaceSysVar>, kNoMinimum, kNoMaximum},
    {L"VPOVERRIDEBACKGROUNDCOLOR", make<VpOverrideBackgroundColorSysVar>, kNoMinimum, kNoMaximum},
    {L"XREFOVERRIDEBACKGROUNDCOLOR", make<XrefOverrideBackgroundColorSysVar>, kNoMinimum,
     kNoMaximum},
    {L"ZERODOC", make<ZeroDocSysVar>, kNoMinimum, kNoMaximum},
    {L"HPLAYER", make<HatchSymbolSysVar>, kNoMinimum, kNoMaximum},
    {L"HATCHTYPE", make<ReadOnlySysVar>, kNoMinimum, kNoMaximum},
    {L"HATCHBOUNDSET", make<ReadOnlySysVar>, kNoMinimum, kNoMaximum},
    {L"HPRELATIVEPS", make<ReadOnlySysVar>, kNoMinimum, kNoMaximum},
    {L"HPBOUNDRETAIN", make<KeepValidInZeroDocSysVar>, kNoMinimum, kNoMaximum},
    {L"HPANG", make<KeepValidInZeroDocSysVar>, kNoMinimum, kNoMaximum},
    {L"HPDOUBLE", make<KeepValidInZeroDocSysVar>, kNoMinimum, kNoMaximum},
    {L"HPNAME", make<KeepValidInZeroDocSysVar>, kNoMinimum, kNoMaximum},
    {L"HPSCALE", make<KeepValidInZeroDocSysVar>, kNoMinimum, kNoMaximum},
    {L"HPSPACE", make<KeepValidInZeroDocSysVar>, kNoMinimum, kNoMaximum},
    {L"HPANNOTATIVE", make<KeepValidInZeroDocSysVar>, kNoMinimum, kNoMaximum},
    {L"HPDRAWORDER", make<KeepValidInZeroDocSysVar>, kNoMinimum, kNoMaximum},
    {L"HPISLANDDETECTION", make<KeepValidInZeroDocSysVar>, kNoMinimum, kNoMaximum},
    {L"HPISLANDDETECTIONMODE", make<KeepValidInZeroDocSysVar>, kNoMinimum, kNoMaximum},
    {L"HPTRANSPARENCY", make<KeepValidInZeroDocSysVar>, kNoMinimum, kNoMaximum},
    {L"GFANG", make<KeepValidInZeroDocSysVar>, kNoMinimum, kNoMaximum},
    {L"GFCLR1", make<KeepValidInZeroDocSysVar>, kNoMinimum, kNoMaximum},
    {L"GFCLR2", make<KeepValidInZeroDocSysVar>, kNoMinimum, kNoMaximum},
    {L"GFCLRLUM", make<KeepValidInZeroDocSysVar>, kNoMinimum, kNoMaximum},
    {L"GFCLRSTATE", make<KeepValidInZeroDocSysVar>, kNoMinimum, kNoMaximum},
    {L"GFNAME", make<KeepValidInZeroDocSysVar>, kNoMinimum, kNoMaximum},
    {L"GFSHIFT", make<KeepValidInZeroDocSysVar>, kNoMinimum, kNoMaximum},
    {L"SUNSTATUS", make<KeepValidInZeroDocSysVar>, 0.0, 1.0},
    {L"CTAB", make<KeepValidInZeroDocSysVar>, 0.0, 1.0},
    {L"DEFAULTLIGHTING", make<KeepValidInZeroDocSysVar>, 0.0, 1.0},
    {L"LIGHTINGUNITS", make<KeepValidInZeroDocSysVar>, 1.0, 3.0},
    {L"CPLOTSTYLE", make<CPlotStyleName>, kNoMinimum, kNoMaximum},
    {nullptr, nullptr, 0.0, 0.0},
};

}  // namespace

KyUiImpSysVar* SysVarTable::newSysVar(const wchar_t* name) {
    for (const SysVarRow* row = kRows; row->name != nullptr; ++row) {
        if (std::wcscmp(row->name, name) == 0) {
            // A factory that makes nothing leaves the plain class to serve.
            if (KyUiImpSysVar* made = row->factory(name, row->minimum, row->maximum)) {
                return made;
            }
            break;
        }
    }
    return new KyUiImpSysVar(name, kNoMinimum, kNoMaximum);
}
