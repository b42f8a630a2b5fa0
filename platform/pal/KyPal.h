// Platform library calls: process mode, the main module, performance marks and
// the steady clock that a host may replace.
#pragma once

#include <cstdint>

#include "KyPlatformExport.h"

namespace KyPal {

namespace Process {
// True when the host process runs in its reduced service mode.
KYPLATFORM_API bool isFabric();
KYPLATFORM_API void setFabric(bool fabric);
}  // namespace Process

namespace PluginLoader {
using ModuleId = const void*;
// The handle of the host's main module; a host may name another one.
KYPLATFORM_API ModuleId mainModuleId();
KYPLATFORM_API void setMainModuleId(ModuleId id);
}  // namespace PluginLoader

// The steady clock of the process, in nanoseconds. A host may install its
// own source (a test host installs a manual clock); null restores the real one.
namespace SteadyClock {
using Source = int64_t (*)(void* context);
KYPLATFORM_API int64_t now();
KYPLATFORM_API void setSource(Source source, void* context);
}  // namespace SteadyClock

// Counters behind the performance marks, so that a test can see them.
namespace PerfLog {
KYPLATFORM_API int lifetimeEventCount(bool begin);
KYPLATFORM_API int notifyEventCount(bool begin);
}  // namespace PerfLog

}  // namespace KyPal

// Marks of the system's long operations in the host's performance log: true at
// the beginning, false at the end.
KYPLATFORM_API void PerfLog_WriteDilLifetimeEvent(bool begin);
KYPLATFORM_API void PerfLog_WriteDilNotifyEvent(bool begin);
