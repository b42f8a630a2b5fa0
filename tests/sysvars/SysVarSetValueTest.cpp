// Setting a variable: by command text that the host runs later, or directly
// under the document lock; the value set shows at once and the host's word
// counts from the next pass. Each class of variable has its own rules.
#include <gtest/gtest.h>

#include "kydi/KyDiManager.h"
#include "sysvars/EditorLosingFixture.h"
#include "sysvars/SysVarFixture.h"

namespace {

using kytest::Lines;
using kytest::shortValue;
using kytest::SysVarSpy;
using kytest::textValue;

class SysVarByCommand : public kytest::SysVarFixture {};

}  // namespace

TEST_F(SysVarByCommand, EqualValueIsNoChange) {
    SysVarSpy spy(sysVar(L"LUPREC"));
    EXPECT_EQ(sysVar(L"LUPREC")->setValue(shortValue(4), true), Kyro::eOk);
    EXPECT_EQ(sysVar(L"TEXTSTYLE")->setValue(textValue(L"STANDARD"), true), Kyro::eOk);
    EXPECT_EQ(sysVar(L"FILLETRAD")->setValue(kytest::realValue(0.0000005), false), Kyro::eOk);
    EXPECT_TRUE(sentTexts().empty());
    EXPECT_EQ(hostValue(L"FILLETRAD"), L"0");
    EXPECT_EQ(valueOf(L"LUPREC"), L"4") << "nothing was dropped";
}

TEST_F(SysVarByCommand, ValuesAreTypedAsTheHostReadsThem) {
    sysVar(L"FILLETRAD")->setValue(kytest::realValue(2.5), true);
    sysVar(L"SNAPBASE")->setValue(kytest::pointValue(1.5, -2.0), true);
    sysVar(L"SNAPANG")->setValue(kytest::realValue(0.25, KYRB_ORIENT), true);
    sysVar(L"HPNAME")->setValue(textValue(L"ANSI37"), true);
    EXPECT_EQ(sentTexts(), (Lines{L"'FILLETRAD 2.500000\n", L"'SNAPBASE 1.500000,-2.000000\n",
                                  L"'SNAPANG 0.250000\n", L"'HPNAME \"ANSI37\"\n"}));

    host.idle();
    EXPECT_EQ(hostValue(L"FILLETRAD"), L"2.5");
    EXPECT_EQ(hostValue(L"SNAPBASE"), L"(1.5,-2)");
    EXPECT_EQ(hostValue(L"SNAPANG"), L"0.25");
    EXPECT_EQ(hostValue(L"HPNAME"), L"ANSI37");
}

TEST_F(SysVarByCommand, AnglesPointsInSpaceAndLongsAreTypedAsTheHostReadsThem) {
    sysVar(L"ANGBASE")->setValue(kytest::realValue(0.5, KYRB_ANGLE), true);
    sysVar(L"INSBASE")->setValue(kytest::pointValue(1.5, -2.0, 3.25), true);
    sysVar(L"VIEWRES")->setValue(kytest::longValue(2000), true);
    EXPECT_EQ(sentTexts(), (Lines{L"'ANGBASE 0.500000\n", L"'INSBASE 1.500000,-2.000000,3.250000\n",
                                  L"'VIEWRES 2000\n"}))
        << "no cancel follows: only a short is checked";

    host.idle();
    EXPECT_EQ(hostValue(L"ANGBASE"), L"0.5");
    EXPECT_EQ(hostValue(L"INSBASE"), L"(1.5,-2,3.25)");
    EXPECT_EQ(hostValue(L"VIEWRES"), L"2000");
}

TEST_F(SysVarByCommand, LongIsTypedWithoutASign) {
    commandLine();
    sysVar(L"VIEWRES")->setValue(kytest::longValue(-1), true);
    EXPECT_EQ(sentTexts(), (Lines{L"'VIEWRES 4294967295\n"}));
    host.idle();
    EXPECT_EQ(commandLine(),
              (Lines{L"Command: 'VIEWRES", L"Enter new value for VIEWRES <1000>: 4294967295",
                     L"Requires an integer between 1 and 20000.",
                     L"Enter new value for VIEWRES <1000>: "}));
    EXPECT_EQ(hostValue(L"VIEWRES"), L"1000");
}

TEST_F(SysVarByCommand, ShortIsCancelledWhileOnlySetVarWaits) {
    type(L"SETVAR\n");
    ASSERT_EQ(host.commandNames(), KyString(L"SETVAR"));
    sysVar(L"LUPREC")->setValue(shortValue(12), true);
    EXPECT_EQ(sentTexts(), (Lines{L"'LUPREC 12\n", L"\x03"}));
    host.idle();
    EXPECT_EQ(commandLine(), (Lines{L"Command: SETVAR", L"Enter variable name: 'LUPREC",
                                    L">>Enter new value for LUPREC <4>: 12",
                                    L"Requires an integer between 0 and 8.",
                                    L">>Enter new value for LUPREC <4>: *Cancel*"}));
    EXPECT_FALSE(host.editor()->interpreter().isWaiting());
    EXPECT_EQ(hostValue(L"LUPREC"), L"4");
}

TEST_F(SysVarByCommand, ShortIsNotCancelledWhileAnotherCommandWaits) {
    type(L"ERASE\n");
    ASSERT_EQ(host.commandNames(), KyString(L"ERASE"));
    sysVar(L"LUPREC")->setValue(shortValue(6), true);
    EXPECT_EQ(sentTexts(), (Lines{L"'LUPREC 6\n"}));
    host.idle();
    EXPECT_EQ(commandLine(), (Lines{L"Command: ERASE", L"Select objects: 'LUPREC",
                                    L">>Enter new value for LUPREC <4>: 6", L"Select objects: "}));
    EXPECT_TRUE(host.editor()->interpreter().isWaiting()) << "the command goes on";
    type(L"\n");
    EXPECT_EQ(hostValue(L"LUPREC"), L"6") << "taken with the command around it";
}

namespace {

class SysVarDirect : public kytest::SysVarFixture {};

}  // namespace

TEST_F(SysVarDirect, WriteStandsInsideTheLayersOwnDocumentLock) {
    SysVarSpy spy(sysVar(L"LUPREC"));
    ASSERT_EQ(sysVar(L"LUPREC")->setValue(shortValue(6), false), Kyro::eOk);
    EXPECT_EQ(hostValue(L"LUPREC"), L"6") << "at once, without a command";
    EXPECT_TRUE(sentTexts().empty());
    EXPECT_EQ(host.setVariable(L"LUPREC", shortValue(5)), KyRefSysVarStatus::kRefused)
        << "the lock went with the write";

    EXPECT_EQ(sysVar(L"LUPREC")->setValue(shortValue(9), false), Kyro::eInvalidInput)
        << "out of the host's range";
    EXPECT_EQ(valueOf(L"LUPREC"), L"none") << "no value until the next pass";
    KyDiManager::refresh();
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged LUPREC 6"}));
}

TEST_F(SysVarDirect, WriteEndsThePromptLineStandingOnTheCommandLine) {
    type(L"ERASE\n");
    ASSERT_EQ(sysVar(L"LUPREC")->setValue(shortValue(6), false), Kyro::eOk);
    type(L"x\n");
    EXPECT_EQ(commandLine(), (Lines{L"Command: ERASE", L"Select objects: ", L"x",
                                    L"*Invalid selection*", L"Select objects: "}))
        << "what the user types next stands on a line of its own";
}

namespace {

class SysVarWithoutEditor : public kytest::EditorLosingFixture {};

}  // namespace

TEST_F(SysVarWithoutEditor, OnlyTheCommandRoadAnswersAndNothingIsSent) {
    KyDiSysVar* luprec = sysVar(L"LUPREC");
    detachEditor();
    EXPECT_EQ(luprec->setValue(shortValue(6), false), Kyro::eInvalidInput);
    EXPECT_EQ(luprec->setValue(shortValue(7), true), Kyro::eOk);
    EXPECT_TRUE(sentTexts().empty());
    EXPECT_EQ(hostValue(L"LUPREC"), L"4");
}

namespace {

class SysVarRules : public kytest::SysVarFixture {};

}  // namespace

TEST_F(SysVarRules, NoDocumentRefusesWrites) {
    KyDiSysVar* luprec = sysVar(L"LUPREC");
    KyDiSysVar* ctab = sysVar(L"CTAB");
    host.documents().closeAll();
    EXPECT_EQ(luprec->setValue(shortValue(6), true), Kyro::eNoCurrentDocument);
    EXPECT_EQ(ctab->setValue(textValue(L"Layout1"), false), Kyro::eCannotSetSysVar);
    EXPECT_TRUE(sentTexts().empty());
}

TEST_F(SysVarRules, ComputedVariablesTakeNoWrites) {
    for (const wchar_t* name :
         {L"ZERODOC", L"PAPERSPACE", L"DISPLAYEDWHITECOLOR", L"XREFOVERRIDEBACKGROUNDCOLOR"}) {
        EXPECT_EQ(sysVar(name)->setValue(textValue(L"1"), false), Kyro::eCannotSetSysVar)
            << KyString(name).utf8();
    }
}

TEST_F(SysVarRules, HatchLayerIsOnlySetByCommandWithTheNameAsTyped) {
    KyDiSysVar* hpLayer = sysVar(L"HPLAYER");
    EXPECT_EQ(hpLayer->setValue(textValue(L"Hatches"), false), Kyro::eInvalidInput);
    EXPECT_EQ(hpLayer->setValue(shortValue(1), true), Kyro::eInvalidInput);
    EXPECT_EQ(hpLayer->setValue(textValue(L"Hatches"), true), Kyro::eOk);
    EXPECT_EQ(sentTexts(), (Lines{L"'HPLAYER Hatches\n"}));
    host.idle();
    EXPECT_EQ(hostValue(L"HPLAYER"), L"Hatches");

    host.documents().closeAll();
    EXPECT_EQ(hpLayer->setValue(textValue(L"Other"), true), Kyro::eNoCurrentDocument);
}

TEST_F(SysVarRules, ReadOnlyVariableIsWrittenThroughTheHostsVariableObject) {
    EXPECT_EQ(sysVar(L"HATCHTYPE")->setValue(shortValue(2), true), Kyro::eOk);
    EXPECT_EQ(hostValue(L"HATCHTYPE"), L"2") << "at once";
    EXPECT_TRUE(sentTexts().empty()) << "never by command";
    EXPECT_EQ(sysVar(L"HATCHBOUNDSET")->setValue(shortValue(3), false), Kyro::eInvalidInput)
        << "the host's variable object refuses a value out of its range";
    EXPECT_EQ(hostValue(L"HATCHBOUNDSET"), L"0");
}

TEST_F(SysVarRules, HatchRelativeToPaperSpaceIsWrittenThroughTheHostsVariableObject) {
    KyDiSysVar* relative = sysVar(L"HPRELATIVEPS");
    SysVarSpy spy(relative);
    EXPECT_EQ(relative->setValue(shortValue(1), true), Kyro::eOk);
    EXPECT_TRUE(sentTexts().empty()) << "the host's command would refuse it";
    EXPECT_EQ(hostValue(L"HPRELATIVEPS"), L"1") << "at once";
    KyDiManager::refresh();
    EXPECT_EQ(spy.lines, (Lines{L"valueChanged HPRELATIVEPS 1"}));

    type(L"HPRELATIVEPS\n0\n");
    EXPECT_EQ(hostValue(L"HPRELATIVEPS"), L"1") << "read-only to the user";
}

TEST_F(SysVarRules, SunAndDefaultLightingKeepTheirLastValueWhileNoDrawingIsOpen) {
    type(L"SUNSTATUS\n1\nDEFAULTLIGHTING\n0\n");
    Lines lines;
    SysVarSpy sun(sysVar(L"SUNSTATUS"), &lines);
    SysVarSpy lighting(sysVar(L"DEFAULTLIGHTING"), &lines);
    for (const wchar_t* name : {L"SUNSTATUS", L"DEFAULTLIGHTING"}) {
        EXPECT_EQ(sysVar(name)->minimum(), 0.0);
        EXPECT_EQ(sysVar(name)->maximum(), 1.0);
    }

    host.documents().closeAll();
    KyDiManager::refresh();
    EXPECT_TRUE(lines.empty());
    EXPECT_EQ(valueOf(L"SUNSTATUS"), L"1");
    EXPECT_EQ(valueOf(L"DEFAULTLIGHTING"), L"0");

    host.documents().newDocument();
    KyDiManager::refresh();
    EXPECT_EQ(lines, (Lines{L"valueChanged DEFAULTLIGHTING 1", L"valueChanged SUNSTATUS 0"}))
        << "the new drawing's own values, in name order";

    host.documents().closeAll();
    EXPECT_EQ(sysVar(L"SUNSTATUS")->setValue(shortValue(1), true), Kyro::eCannotSetSysVar);
    EXPECT_EQ(sysVar(L"DEFAULTLIGHTING")->setValue(shortValue(0), false), Kyro::eCannotSetSysVar);
    EXPECT_TRUE(sentTexts().empty());
}

TEST_F(SysVarRules, SkyTriesPerspectiveEvenWithoutADocument) {
    KyDiSysVar* sky = sysVar(L"SKYSTATUS");
    ASSERT_NE(sysVar(L"PERSPECTIVE"), nullptr);
    host.documents().closeAll();
    EXPECT_EQ(sky->setValue(shortValue(2), true), Kyro::eCannotSetSysVar);
    EXPECT_EQ(valueOf(L"PERSPECTIVE"), L"none") << "its set was tried, and refused";
}

TEST_F(SysVarRules, SkyInPaperSpaceLeavesPerspectiveAlone) {
    type(L"CTAB\nLayout1\n");
    KyDiManager::refresh();
    EXPECT_EQ(sysVar(L"SKYSTATUS")->setValue(shortValue(2), true), Kyro::eOk);
    EXPECT_EQ(sentTexts(), (Lines{L"'SKYSTATUS 2\n", L"\x03"}));
    host.idle();
    EXPECT_EQ(hostValue(L"SKYSTATUS"), L"2");
    EXPECT_EQ(hostValue(L"PERSPECTIVE"), L"0");
}
