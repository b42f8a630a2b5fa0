// Platform library calls: process mode, main module, the replaceable steady
// clock and the counters behind the performance marks.
#include "pal/KyPal.h"

#include <dlfcn.h>

#include <chrono>

namespace {

bool g_fabric = false;

KyPal::PluginLoader::ModuleId g_mainModule = nullptr;
bool g_mainModuleSet = false;

KyPal::SteadyClock::Source g_clockSource = nullptr;
void* g_clockContext = nullptr;

// Counters by mark kind, [0] for ends and [1] for beginnings.
int g_lifetimeEvents[2] = {0, 0};
int g_notifyEvents[2] = {0, 0};

// Stands for the main module when the process gives no handle for it.
const char g_mainModuleStandIn = 0;

}  // namespace

namespace KyPal {

namespace Process {
bool isFabric() {
    return g_fabric;
}
void setFabric(bool fabric) {
    g_fabric = fabric;
}
}  // namespace Process

namespace PluginLoader {
ModuleId mainModuleId() {
    if (!g_mainModuleSet) {
        // The handle of the program itself; the process keeps it open.
        void* handle = dlopen(nullptr, RTLD_NOW);
        g_mainModule = handle != nullptr ? handle : &g_mainModuleStandIn;
        g_mainModuleSet = true;
    }
    return g_mainModule;
}

// Null goes back to the program's own handle.
void setMainModuleId(ModuleId id) {
    g_mainModule = id;
    g_mainModuleSet = id != nullptr;
}
}  // namespace PluginLoader

namespace SteadyClock {
int64_t now() {
    if (g_clockSource != nullptr) {
        return g_clockSource(g_clockContext);
    }
    return std::chrono::duration_cast<std::chrono::nanoseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

void setSource(Source source, void* context) {
    g_clockSource = source;
    g_clockContext = source != nullptr ? context : nullptr;
}
}  // namespace SteadyClock

namespace PerfLog {
int lifetimeEventCount(bool begin) {
    return g_lifetimeEvents[begin ? 1 : 0];
}
int notifyEventCount(bool begin) {
    return g_notifyEvents[begin ? 1 : 0];
}
}  // namespace PerfLog

}  // namespace KyPal

void PerfLog_WriteDilLifetimeEvent(bool begin) {
    ++g_lifetimeEvents[begin ? 1 : 0];
}
void PerfLog_WriteDilNotifyEvent(bool begin) {
    ++g_notifyEvents[begin ? 1 : 0];
}
