// Setting a variable: by command text that the host runs later, or directly
// under the document lock; the value set shows at once and the host's word
// counts from the next pass. Each class of variable has its own rules.
#include <gtest/gtest.h>

#include "db/KyDbDatabase.h"
#include "db/KyDbHostApplicationServices.h"
#include "kydi/KyDiManager.h"
#include "pal/KyPal.h"
#include "rx/KyRxVariablesDictionary.h"
#include "sysvars/SysVarFixture.h"

namespace {

using kytest::Lines;
using kytest::shortValue;
using kytest::textValue;

class SysVarByCommand : public kytest::SysVarFixture {};

}  // namespace

TEST_F(SysVarByCommand, EqualValueIsNoChange) {
    EXPECT_EQ(sysVar(L"LUPREC")->setValue(shortValue(4), true), Kyro::eOk);
    EXPECT_EQ(sysVar(L"TEXTSTYLE")->setValue(textValue(L"STANDARD"), true), Kyro::eOk);
    EXPECT_EQ(sysVar(L"FILLETRAD")->setValue(kytest::realValue(0.0000005), false), Kyro::eOk);
    EXPECT_TRUE(commands().empty());
    EXPECT_TRUE(host.editorService.prompts.empty());
}

TEST_F(SysVarByCommand, ValuesAreTypedAsTheHostReadsThem) {
    host.editorService.setPoint(L"SNAPBASE", 0.0, 0.0);
    host.editorService.setReal(L"SNAPANG", 0.0, KYRB_ANGLE);
    resbuf point{};
    point.restype = KYRB_POINT;
    point.resval.rpoint[0] = 1.5;
    point.resval.rpoint[1] = -2.0;
    sysVar(L"FILLETRAD")->setValue(kytest::realValue(2.5), true);
    sysVar(L"SNAPBASE")->setValue(point, true);
    sysVar(L"SNAPANG")->setValue(kytest::realValue(0.25, KYRB_ANGLE), true);
    sysVar(L"TEXTSTYLE")->setValue(textValue(L"Notes"), true);
    EXPECT_EQ(commands(), (Lines{L"'FILLETRAD 2.500000\n", L"'SNAPBASE 1.500000,-2.000000\n",
                                 L"'SNAPANG 0.250000\n", L"'TEXTSTYLE \"Notes\"\n"}));
}

TEST_F(SysVarByCommand, CancelOnlyWhenNoOtherCommandRunsAndOnlyForShorts) {
    host.editorService.setText(L"CMDNAMES", L"setvar");
    sysVar(L"LUPREC")->setValue(shortValue(12), true);
    host.editorService.setText(L"CMDNAMES", L"LINE");
    sysVar(L"LUPREC")->setValue(shortValue(13), true);
    host.editorService.setText(L"CMDNAMES", L"");
    sysVar(L"TEXTSTYLE")->setValue(textValue(L"Missing"), true);
    EXPECT_EQ(commands(),
              (Lines{L"'LUPREC 12\n", L"\x03", L"'LUPREC 13\n", L"'TEXTSTYLE \"Missing\"\n"}));
}

namespace {

// Host services that grant document locks and count them.
class CountingLocks final : public KyDbHostApplicationServices {
public:
    Kyro::ErrorStatus lockDocument(KyDbDatabase*) override {
        ++held;
        return Kyro::eOk;
    }
    void unlockDocument(KyDbDatabase*) override { --held; }
    int held = 0;
};

class SysVarDirect : public kytest::SysVarFixture {
protected:
    void SetUp() override {
        SysVarFixture::SetUp();
        kydbSetHostApplicationServices(&locks);
        locks.setWorkingDatabase(&database);
    }
    void TearDown() override {
        kydbSetHostApplicationServices(nullptr);
        SysVarFixture::TearDown();
    }

    KyDbDatabase database;
    CountingLocks locks;
};

}  // namespace

TEST_F(SysVarDirect, WriteStandsInsideTheDocumentLockAndClosesThePromptLine) {
    int heldDuringWrite = -1;
    host.editorService.onSetVar = [&](const wchar_t*) { heldDuringWrite = locks.held; };
    ASSERT_EQ(sysVar(L"LUPREC")->setValue(shortValue(6), false), Kyro::eOk);
    EXPECT_EQ(heldDuringWrite, 1);
    EXPECT_EQ(locks.held, 0);
    EXPECT_EQ(host.editorService.prompts, (Lines{L""}));
    EXPECT_TRUE(commands().empty());
    EXPECT_EQ(kytest::valueText(host.editorService.variable(L"LUPREC")), L"6");
}

TEST_F(SysVarDirect, RefusedWriteLeavesNoValueUntilTheNextPass) {
    EXPECT_EQ(sysVar(L"LUPREC")->setValue(shortValue(12), false), Kyro::eInvalidInput);
    EXPECT_EQ(valueOf(L"LUPREC"), L"none");
    KyDiManager::refresh();
    EXPECT_EQ(valueOf(L"LUPREC"), L"4");
}

TEST_F(SysVarDirect, WithoutAnEditorOnlyTheCommandRoadAnswersAndNothingIsSent) {
    KyDiSysVar* luprec = sysVar(L"LUPREC");
    host.withEditor = false;
    EXPECT_EQ(luprec->setValue(shortValue(6), false), Kyro::eInvalidInput);
    EXPECT_EQ(luprec->setValue(shortValue(7), true), Kyro::eOk);
    EXPECT_TRUE(commands().empty());
}

namespace {

class SysVarRules : public kytest::SysVarFixture {};

// The host's own variable object behind a read-only variable; it notes who
// wrote it.
class HostVariable final : public KyRxVariable {
public:
    using KyRxVariable::KyRxVariable;
    const void* lastSender = nullptr;

protected:
    Kyro::ErrorStatus subSetValue(const resbuf& value, void* sender, KyString* error,
                                  bool disableUndo) override {
        lastSender = sender;
        return KyRxVariable::subSetValue(value, sender, error, disableUndo);
    }
};

}  // namespace

TEST_F(SysVarRules, NoDocumentRefusesWrites) {
    host.editorService.setText(L"CTAB", L"Model");
    KyDiSysVar* luprec = sysVar(L"LUPREC");
    KyDiSysVar* ctab = sysVar(L"CTAB");
    host.documents.closeAll();
    EXPECT_EQ(luprec->setValue(shortValue(6), true), Kyro::eNoCurrentDocument);
    EXPECT_EQ(ctab->setValue(textValue(L"Layout1"), false), Kyro::eCannotSetSysVar);
    EXPECT_TRUE(commands().empty());
}

TEST_F(SysVarRules, ComputedVariablesTakeNoWrites) {
    for (const wchar_t* name :
         {L"ZERODOC", L"PAPERSPACE", L"DISPLAYEDWHITECOLOR", L"XREFOVERRIDEBACKGROUNDCOLOR"}) {
        EXPECT_EQ(sysVar(name)->setValue(textValue(L"1"), false), Kyro::eCannotSetSysVar)
            << KyString(name).utf8();
    }
}

TEST_F(SysVarRules, HatchLayerIsOnlySetByCommandWithTheNameAsTyped) {
    host.editorService.setText(L"HPLAYER", L".");
    KyDiSysVar* hpLayer = sysVar(L"HPLAYER");
    EXPECT_EQ(hpLayer->setValue(textValue(L"Hatches"), false), Kyro::eInvalidInput);
    EXPECT_EQ(hpLayer->setValue(shortValue(1), true), Kyro::eInvalidInput);
    EXPECT_EQ(hpLayer->setValue(textValue(L"Hatches"), true), Kyro::eOk);
    EXPECT_EQ(commands(), (Lines{L"'HPLAYER Hatches\n"}));
    host.documents.closeAll();
    EXPECT_EQ(hpLayer->setValue(textValue(L"Other"), true), Kyro::eNoCurrentDocument);
}

TEST_F(SysVarRules, ReadOnlyVariableIsWrittenToTheHostsVariableObject) {
    KyRxVariablesDictionary variables;
    auto* hatchType = new HostVariable(L"HATCHTYPE");
    variables.addVariable(hatchType);
    KyRxVariablesDictionary::install(&variables);
    host.editorService.setShort(L"HATCHTYPE", 1);
    host.editorService.setShort(L"HPRELATIVEPS", 0);

    EXPECT_EQ(sysVar(L"HATCHTYPE")->setValue(shortValue(2), true), Kyro::eOk);
    ASSERT_NE(hatchType->value(), nullptr);
    EXPECT_EQ(hatchType->value()->resval.rint, 2);
    EXPECT_EQ(hatchType->lastSender, KyPal::PluginLoader::mainModuleId());
    EXPECT_TRUE(commands().empty()) << "never by command";
    EXPECT_EQ(sysVar(L"HPRELATIVEPS")->setValue(shortValue(1), false), Kyro::eInvalidInput)
        << "the host has no variable object of that name";
    KyRxVariablesDictionary::install(nullptr);
}

TEST_F(SysVarRules, SkyTriesPerspectiveEvenWithoutADocument) {
    host.editorService.setShort(L"SKYSTATUS", 0);
    host.editorService.setShort(L"PERSPECTIVE", 0);
    KyDiSysVar* sky = sysVar(L"SKYSTATUS");
    KyDiSysVar* perspective = sysVar(L"PERSPECTIVE");
    host.documents.closeAll();
    EXPECT_EQ(sky->setValue(shortValue(2), true), Kyro::eCannotSetSysVar);
    EXPECT_EQ(valueOf(L"PERSPECTIVE"), L"none") << "its set was tried, and refused";
    EXPECT_NE(perspective, nullptr);
}

TEST_F(SysVarRules, SkyInPaperSpaceLeavesPerspectiveAlone) {
    KyDbDatabase layout;
    layout.setTilemode(false);
    host.documents.working = &layout;
    host.editorService.setShort(L"CVPORT", 1);
    host.editorService.setShort(L"SKYSTATUS", 0);
    KyDiManager::refresh();
    EXPECT_EQ(sysVar(L"SKYSTATUS")->setValue(shortValue(2), true), Kyro::eOk);
    EXPECT_EQ(commands(), (Lines{L"'SKYSTATUS 2\n"}));
    host.documents.working = nullptr;
}
