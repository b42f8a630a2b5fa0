// KyUiAddNotifyHandler: plain functions that the data item layer calls at the
// end of every refresh pass while a document is open.
#pragma once

#include "kydi/KyDiExport.h"

// Adds `handler` (`add` true; a handler added twice is called twice) or
// removes its first occurrence (`add` false; an unknown handler is ignored).
KYDI_API void KyUiAddNotifyHandler(void (*handler)(), bool add);
