#include "pal/KyPal.h"

#include <gtest/gtest.h>

namespace {

int64_t manualClock(void* context) {
    return *static_cast<int64_t*>(context);
}

TEST(BasePal, FabricModeIsOffUntilSet) {
    EXPECT_FALSE(KyPal::Process::isFabric());
    KyPal::Process::setFabric(true);
    EXPECT_TRUE(KyPal::Process::isFabric());
    KyPal::Process::setFabric(false);
    EXPECT_FALSE(KyPal::Process::isFabric());
}

TEST(BasePal, TheMainModuleCanBeRenamedAndRestored) {
    const KyPal::PluginLoader::ModuleId program = KyPal::PluginLoader::mainModuleId();
    EXPECT_NE(nullptr, program);
    EXPECT_EQ(program, KyPal::PluginLoader::mainModuleId());

    static const int kHostModule = 0;
    KyPal::PluginLoader::setMainModuleId(&kHostModule);
    EXPECT_EQ(&kHostModule, KyPal::PluginLoader::mainModuleId());
    KyPal::PluginLoader::setMainModuleId(nullptr);
    EXPECT_EQ(program, KyPal::PluginLoader::mainModuleId());
}

TEST(BasePal, AHostClockReplacesTheSteadyClockUntilRemoved) {
    const int64_t before = KyPal::SteadyClock::now();
    EXPECT_LE(before, KyPal::SteadyClock::now());

    int64_t manual = 1000LL * 1000 * 1000 * 1000;
    KyPal::SteadyClock::setSource(&manualClock, &manual);
    EXPECT_EQ(manual, KyPal::SteadyClock::now());
    manual += 250 * 1000 * 1000;
    EXPECT_EQ(1000250000000LL, KyPal::SteadyClock::now());

    KyPal::SteadyClock::setSource(nullptr, nullptr);
    const int64_t after = KyPal::SteadyClock::now();
    EXPECT_GE(after, before);
    EXPECT_NE(manual, after);
}

TEST(BasePal, PerformanceMarksAreCountedByKindAndEdge) {
    const int lifetimeBegins = KyPal::PerfLog::lifetimeEventCount(true);
    const int lifetimeEnds = KyPal::PerfLog::lifetimeEventCount(false);
    const int notifyBegins = KyPal::PerfLog::notifyEventCount(true);
    const int notifyEnds = KyPal::PerfLog::notifyEventCount(false);

    PerfLog_WriteDilLifetimeEvent(true);
    PerfLog_WriteDilLifetimeEvent(true);
    PerfLog_WriteDilLifetimeEvent(false);
    PerfLog_WriteDilNotifyEvent(true);

    EXPECT_EQ(lifetimeBegins + 2, KyPal::PerfLog::lifetimeEventCount(true));
    EXPECT_EQ(lifetimeEnds + 1, KyPal::PerfLog::lifetimeEventCount(false));
    EXPECT_EQ(notifyBegins + 1, KyPal::PerfLog::notifyEventCount(true));
    EXPECT_EQ(notifyEnds, KyPal::PerfLog::notifyEventCount(false));
}

}  // namespace
