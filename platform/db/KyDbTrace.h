// The drawing trace: while a host shows a trace over a drawing, it hides some
// records from lists. Tests and hosts set the state here.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbObjectId.h"

// True for a record that lists leave out while the trace is shown.
KYPLATFORM_API bool kydbiSkipDisplayForTrace(const KyDbObjectId& id);
// Shows or hides the trace. Hidden, no record is skipped.
KYPLATFORM_API void kydbiSetDrawingTraceShown(bool shown);
KYPLATFORM_API bool kydbiIsDrawingTraceShown();
// Marks a record as one that the trace hides, or no longer.
KYPLATFORM_API void kydbiSetSkipDisplayForTrace(const KyDbObjectId& id, bool skip);
