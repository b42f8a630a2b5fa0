// The library's entry point. It answers success and does nothing else: the
// data item layer starts when the host calls KyDiManager::initialize.
#pragma once

#include "kydi/KyDiExport.h"

extern "C" KYDI_API int kydiEntryPoint(int message, void* applicationId);
