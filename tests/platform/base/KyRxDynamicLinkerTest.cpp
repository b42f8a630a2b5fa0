#include "rx/KyRxDynamicLinker.h"

#include <gtest/gtest.h>

#include "rx/KyRxDictionary.h"

namespace {

int g_starts = 0;
int g_stops = 0;
int g_answer = 42;

bool countStart() {
    ++g_starts;
    return true;
}
bool refuseStart() {
    ++g_starts;
    return false;
}
void countStop() {
    ++g_stops;
}

const KyRxModuleSymbol kSymbols[] = {{L"theAnswer", &g_answer}, {nullptr, nullptr}};

// A module that registers itself from a static constructor, before main.
struct StaticModuleRegistration {
    StaticModuleRegistration() {
        kyrxRegisterModule({L"KyTestStaticModule.dbx", &countStart, &countStop, kSymbols});
    }
} g_staticModule;

KyRxDynamicLinker* linker() {
    return kyrxCast<KyRxDynamicLinker>(kyrxSysRegistry()->at(KYRX_DYNAMIC_LINKER));
}

class BaseDynamicLinker : public ::testing::Test {
protected:
    void SetUp() override {
        g_starts = 0;
        g_stops = 0;
    }
};

TEST_F(BaseDynamicLinker, AModuleRegisteredBeforeMainLoadsAndStartsOnce) {
    EXPECT_FALSE(linker()->isModuleLoaded(L"KyTestStaticModule.dbx"));
    EXPECT_TRUE(kyrxLoadModule(L"KyTestStaticModule.dbx", false));
    EXPECT_EQ(1, g_starts);
    EXPECT_TRUE(linker()->isModuleLoaded(L"KyTestStaticModule.dbx"));
    EXPECT_TRUE(kyrxLoadModule(L"KyTestStaticModule.dbx", false, true));
    EXPECT_EQ(1, g_starts);
    // Module names are file names and match without regard to case.
    EXPECT_TRUE(linker()->isModuleLoaded(L"kyteststaticmodule.DBX"));
}

TEST_F(BaseDynamicLinker, SymbolsAreHandedOutOnlyWhileTheModuleIsLoaded) {
    kyrxRegisterModule({L"KySymbols.dbx", nullptr, nullptr, kSymbols});
    EXPECT_EQ(nullptr, linker()->getSymbolAddress(L"KySymbols.dbx", L"theAnswer"));
    ASSERT_TRUE(linker()->loadModule(L"KySymbols.dbx", false));
    void* address = linker()->getSymbolAddress(L"KySymbols.dbx", L"theAnswer");
    ASSERT_EQ(&g_answer, address);
    EXPECT_EQ(42, *static_cast<int*>(address));
    EXPECT_EQ(nullptr, linker()->getSymbolAddress(L"KySymbols.dbx", L"theQuestion"));
    EXPECT_EQ(nullptr, linker()->getSymbolAddress(L"KyUnknown.dbx", L"theAnswer"));
    EXPECT_TRUE(kyrxUnloadModule(L"KySymbols.dbx"));
    EXPECT_EQ(nullptr, linker()->getSymbolAddress(L"KySymbols.dbx", L"theAnswer"));
}

TEST_F(BaseDynamicLinker, UnloadingStopsTheModuleOnce) {
    kyrxRegisterModule({L"KyStops.dbx", &countStart, &countStop, nullptr});
    EXPECT_FALSE(kyrxUnloadModule(L"KyStops.dbx"));  // not loaded yet
    ASSERT_TRUE(kyrxLoadModule(L"KyStops.dbx", false));
    EXPECT_TRUE(kyrxUnloadModule(L"KyStops.dbx"));
    EXPECT_EQ(1, g_stops);
    EXPECT_FALSE(linker()->isModuleLoaded(L"KyStops.dbx"));
    EXPECT_FALSE(kyrxUnloadModule(L"KyStops.dbx"));
    EXPECT_EQ(1, g_stops);
    // Loaded again, it starts again.
    EXPECT_TRUE(kyrxLoadModule(L"KyStops.dbx", false));
    EXPECT_EQ(2, g_starts);
}

TEST_F(BaseDynamicLinker, ARefusedStartLeavesTheModuleUnloaded) {
    kyrxRegisterModule({L"KyRefuses.dbx", &refuseStart, &countStop, kSymbols});
    testing::internal::CaptureStderr();
    EXPECT_FALSE(kyrxLoadModule(L"KyRefuses.dbx", true));
    const std::string message = testing::internal::GetCapturedStderr();
    EXPECT_NE(std::string::npos, message.find("KyRefuses.dbx"));
    EXPECT_EQ(1, g_starts);
    EXPECT_FALSE(linker()->isModuleLoaded(L"KyRefuses.dbx"));
    EXPECT_EQ(nullptr, linker()->getSymbolAddress(L"KyRefuses.dbx", L"theAnswer"));
    EXPECT_FALSE(kyrxUnloadModule(L"KyRefuses.dbx"));
    EXPECT_EQ(0, g_stops);
    EXPECT_TRUE(linker()->isModuleRegistered(L"kyrefuses.DBX")) << "known, though not loaded";
}

TEST_F(BaseDynamicLinker, UnknownModulesAreNotLoadedAndSayWhyOnlyWhenAsked) {
    testing::internal::CaptureStderr();
    EXPECT_FALSE(kyrxLoadModule(L"KyDbPointCloudObj.dbx", false));
    EXPECT_EQ("", testing::internal::GetCapturedStderr());
    testing::internal::CaptureStderr();
    EXPECT_FALSE(kyrxLoadModule(L"KyDbPointCloudObj.dbx", true));
    EXPECT_NE(std::string::npos,
              testing::internal::GetCapturedStderr().find("KyDbPointCloudObj.dbx"));
    EXPECT_FALSE(kyrxLoadModule(nullptr, false));
    EXPECT_FALSE(linker()->isModuleRegistered(L"KyDbPointCloudObj.dbx"));
    EXPECT_FALSE(linker()->isModuleRegistered(nullptr));
}

TEST_F(BaseDynamicLinker, ARegistrationReplacesTheDescriptorOfAModuleNotLoaded) {
    kyrxRegisterModule({L"KyReplaced.dbx", &refuseStart, nullptr, nullptr});
    kyrxRegisterModule({L"KyReplaced.dbx", &countStart, &countStop, kSymbols});
    ASSERT_TRUE(kyrxLoadModule(L"KyReplaced.dbx", false));
    // While loaded, the module keeps what it started with.
    kyrxRegisterModule({L"KyReplaced.dbx", &refuseStart, nullptr, nullptr});
    EXPECT_EQ(&g_answer, linker()->getSymbolAddress(L"KyReplaced.dbx", L"theAnswer"));
    EXPECT_TRUE(kyrxUnloadModule(L"KyReplaced.dbx"));
    EXPECT_EQ(1, g_stops);
}

TEST(BaseServices, RegisteringTwiceAnswersTheSameService) {
    EXPECT_FALSE(kyrxServiceIsRegistered(L"KyDbPointCloudService"));
    KyRxService* service = kyrxRegisterService(L"KyDbPointCloudService");
    ASSERT_NE(nullptr, service);
    EXPECT_STREQ(L"KyDbPointCloudService", service->name());
    EXPECT_TRUE(kyrxServiceIsRegistered(L"KyDbPointCloudService"));
    EXPECT_EQ(service, kyrxRegisterService(L"KyDbPointCloudService"));
    KyRxDictionary* services =
        kyrxCast<KyRxDictionary>(kyrxSysRegistry()->at(KYRX_SERVICE_DICTIONARY));
    ASSERT_NE(nullptr, services);
    EXPECT_EQ(service, services->at(L"KyDbPointCloudService"));
    EXPECT_EQ(KyRxService::desc(), service->isA());
}

TEST(BaseServices, UnregisteringRemovesTheService) {
    kyrxRegisterService(L"KYSYNERGYOBJ");
    EXPECT_TRUE(kyrxUnregisterService(L"KYSYNERGYOBJ"));  // deleted: the leak checker agrees
    EXPECT_FALSE(kyrxServiceIsRegistered(L"KYSYNERGYOBJ"));
    EXPECT_FALSE(kyrxUnregisterService(L"KYSYNERGYOBJ"));
    EXPECT_EQ(nullptr, kyrxRegisterService(nullptr));
    EXPECT_FALSE(kyrxServiceIsRegistered(nullptr));
}

}  // namespace
