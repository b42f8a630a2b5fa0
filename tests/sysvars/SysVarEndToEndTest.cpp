// System variables against the reference host: what the user sees on the
// host's command line when the layer sets a variable, and when the layer's
// reactors hear of it.
#include <gtest/gtest.h>

#include "kydi/KyDiManager.h"
#include "sysvars/SysVarFixture.h"

namespace {

using kytest::Lines;
using kytest::shortValue;
using kytest::SysVarSpy;
using kytest::textValue;

class SysVarEndToEnd : public kytest::SysVarFixture {};

}  // namespace

TEST_F(SysVarEndToEnd, SetByCommandReachesReactorsAtTheNextPassAndNotBefore) {
    KyDiSysVar* luprec = KyDiManager::getSysVar(L"LUPREC");
    SysVarSpy spy(luprec);
    ASSERT_EQ(luprec->setValue(shortValue(5), true), Kyro::eOk);
    EXPECT_EQ(valueOf(L"LUPREC"), L"5") << "shown at once";
    EXPECT_EQ(hostValue(L"LUPREC"), L"4") << "queued, not run";
    EXPECT_TRUE(spy.lines.empty());

    waitPastTheThrottle();
    host.idle();
    EXPECT_EQ(hostValue(L"LUPREC"), L"5");
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged LUPREC 5"}));
    // The check for a refused value ran before the host ran anything, so a
    // cancel followed the accepted value too; at the command prompt it only
    // shows.
    EXPECT_EQ(commandLine(),
              (std::vector<std::wstring>{L"Command: 'LUPREC", L"Enter new value for LUPREC <4>: 5",
                                         L"Command: *Cancel*"}));
}

TEST_F(SysVarEndToEnd, RefusedShortValueIsCancelledAndTheHostLeftAtNoPrompt) {
    KyDiSysVar* luprec = KyDiManager::getSysVar(L"LUPREC");
    SysVarSpy spy(luprec);
    commandLine();
    ASSERT_EQ(luprec->setValue(shortValue(12), true), Kyro::eOk);
    EXPECT_EQ(sentTexts(), (std::vector<std::wstring>{L"'LUPREC 12\n", L"\x03"}));

    waitPastTheThrottle();
    host.idle();
    EXPECT_EQ(commandLine(), (std::vector<std::wstring>{
                                 L"Command: 'LUPREC",
                                 L"Enter new value for LUPREC <4>: 12",
                                 L"Requires an integer between 0 and 8.",
                                 L"Enter new value for LUPREC <4>: *Cancel*",
                             }));
    EXPECT_FALSE(host.editor()->interpreter().isWaiting());
    EXPECT_TRUE(host.commandNames().isEmpty());
    EXPECT_EQ(hostValue(L"LUPREC"), L"4");
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged LUPREC 4"})) << "the value shown goes back";
}

TEST_F(SysVarEndToEnd, RefusedTextValueIsNotCancelled) {
    KyDiSysVar* clayer = KyDiManager::getSysVar(L"CLAYER");
    ASSERT_NE(clayer, nullptr);
    ASSERT_EQ(clayer->setValue(textValue(L"NoSuchLayer"), true), Kyro::eOk);
    EXPECT_EQ(sentTexts(), (std::vector<std::wstring>{L"'CLAYER \"NoSuchLayer\"\n"}));
    host.idle();
    EXPECT_FALSE(host.editor()->interpreter().isWaiting());
    EXPECT_EQ(hostValue(L"CLAYER"), L"0");
}

TEST_F(SysVarEndToEnd, SkyInModelSpaceSwitchesPerspectiveOnFirst) {
    KyDiSysVar* sky = KyDiManager::getSysVar(L"SKYSTATUS");
    ASSERT_NE(sky, nullptr);
    EXPECT_FALSE(sky->isActive()) << "no perspective yet";
    SysVarSpy spy(sky);
    ASSERT_EQ(sky->setValue(shortValue(2), true), Kyro::eOk);
    // Each short set by command is followed by a cancel: the host runs
    // nothing before it is idle, so the value can't have taken effect yet.
    EXPECT_EQ(sentTexts(), (std::vector<std::wstring>{L"'PERSPECTIVE 1\n", L"\x03",
                                                      L"'SKYSTATUS 2\n", L"\x03"}));

    host.idle();
    KyDiManager::refresh();
    EXPECT_EQ(hostValue(L"PERSPECTIVE"), L"1");
    EXPECT_EQ(hostValue(L"SKYSTATUS"), L"2");
    // The host asked for a pass after the first command already: the sky
    // showed its old value once, with perspective on, before the new one.
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged SKYSTATUS 0", L"activeChanged SKYSTATUS true",
                                L"valueChanged SKYSTATUS 2"}));
}

TEST_F(SysVarEndToEnd, ViewportBackgroundFollowsTheHostsViewport) {
    KyCmColor blue;
    blue.setColorIndex(KyCmColor::kACIBlue);
    host.viewportService()->setBackgroundOverride(blue);
    KyDiSysVar* background = KyDiManager::getSysVar(L"VPOVERRIDEBACKGROUNDCOLOR");
    ASSERT_NE(background, nullptr);
    EXPECT_EQ(valueOf(L"VPOVERRIDEBACKGROUNDCOLOR"), L"blue");
    EXPECT_EQ(background->setValue(textValue(L"red"), false), Kyro::eCannotSetSysVar);
}
