// The accessors of the system variables that stand for something of the
// drawing or of the host rather than for a value of their own: the current
// layer, linetype, styles and material as names, the current colour and
// transparency as text, the typed header values of the database, the current
// layout, and the variables the host computes.
#pragma once

#include "KyRefSysVarRow.h"

namespace KyRefSysVarAccessors {

// Names of current records or dictionary entries.
extern const KyRefSysVarAccessor kLayer;
extern const KyRefSysVarAccessor kLinetype;
extern const KyRefSysVarAccessor kTextStyle;
extern const KyRefSysVarAccessor kDimStyle;
extern const KyRefSysVarAccessor kTableStyle;
extern const KyRefSysVarAccessor kMLeaderStyle;
extern const KyRefSysVarAccessor kMaterial;
extern const KyRefSysVarAccessor kDetailViewStyle;
extern const KyRefSysVarAccessor kSectionViewStyle;

// Typed header values.
extern const KyRefSysVarAccessor kColor;
extern const KyRefSysVarAccessor kTransparency;
extern const KyRefSysVarAccessor kLineweight;
extern const KyRefSysVarAccessor kShadow;
extern const KyRefSysVarAccessor kTileMode;
extern const KyRefSysVarAccessor kPlotStyleMode;

// Values checked against the drawing and kept as written.
extern const KyRefSysVarAccessor kAnnotationScale;
extern const KyRefSysVarAccessor kPlotStyle;

// A setting of the platform that the host keeps for the session: the units
// lineweights are shown and typed in (gLineWeightUnits).
extern const KyRefSysVarAccessor kLineweightUnits;

// The current layout: switching it changes the space shown.
extern const KyRefSysVarAccessor kLayout;
// The current viewport (CVPORT): read as the layout shows it, written only
// with the number of a viewport that can be current (KyRefLayoutViewports).
extern const KyRefSysVarAccessor kViewport;

// Computed by the host.
extern const KyRefSysVarAccessor kCommandNames;
extern const KyRefSysVarAccessor kDrawingName;

}  // namespace KyRefSysVarAccessors
