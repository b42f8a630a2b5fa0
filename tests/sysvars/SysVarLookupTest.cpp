// Getting a system variable object: one per name, the class and bounds of
// its row, and no trace of a variable the host can't read.
#include <gtest/gtest.h>

#include "kydi/KyDiManager.h"
#include "sysvars/SysVarFixture.h"

namespace {

class SysVarLookup : public kytest::SysVarFixture {};

}  // namespace

TEST_F(SysVarLookup, OneObjectPerNameWithTheHostsValue) {
    KyDiSysVar* luprec = KyDiManager::getSysVar(L"LUPREC");
    ASSERT_NE(luprec, nullptr);
    EXPECT_EQ(KyDiManager::getSysVar(L"LUPREC"), luprec);
    EXPECT_STREQ(luprec->name(), L"LUPREC");
    EXPECT_EQ(valueOf(L"LUPREC"), L"4");
    EXPECT_TRUE(luprec->isActive());
}

TEST_F(SysVarLookup, UnknownVariableAnswersNullAndLeavesNoTrace) {
    EXPECT_EQ(KyDiManager::getSysVar(L"NOSUCHVAR"), nullptr);
    EXPECT_EQ(KyDiManager::getSysVar(L"NOSUCHVAR"), nullptr);
    EXPECT_EQ(host.editorService.readsOf(L"NOSUCHVAR"), 2) << "every request asks the host again";

    host.editorService.setShort(L"NOSUCHVAR", 1);
    ASSERT_NE(KyDiManager::getSysVar(L"NOSUCHVAR"), nullptr);
    EXPECT_EQ(valueOf(L"NOSUCHVAR"), L"1");
    EXPECT_EQ(KyDiManager::getSysVar(nullptr), nullptr);
}

TEST_F(SysVarLookup, BoundsComeFromTheRowOfTheExactName) {
    host.editorService.setShort(L"VSFACEOPACITY", 60);
    host.editorService.setShort(L"LIGHTINGUNITS", 2);
    host.editorService.setText(L"CTAB", L"Model");
    struct Bounds {
        const wchar_t* name;
        double minimum;
        double maximum;
    };
    const Bounds expected[] = {
        {L"VSFACEOPACITY", -100.0, 100.0},
        {L"LIGHTINGUNITS", 1.0, 3.0},
        {L"CTAB", 0.0, 1.0},
        {L"LUPREC", 0.0, -1.0},
        {L"vsfaceopacity", 0.0, -1.0},
    };
    for (const Bounds& row : expected) {
        KyDiSysVar* found = sysVar(row.name);
        ASSERT_NE(found, nullptr);
        EXPECT_EQ(found->minimum(), row.minimum) << KyString(row.name).utf8();
        EXPECT_EQ(found->maximum(), row.maximum) << KyString(row.name).utf8();
    }
    EXPECT_NE(sysVar(L"vsfaceopacity"), sysVar(L"VSFACEOPACITY")) << "names are case-sensitive";
}

TEST_F(SysVarLookup, WithoutAnEditorOnlyComputedVariablesCanBeHad) {
    host.withEditor = false;
    EXPECT_EQ(KyDiManager::getSysVar(L"LUPREC"), nullptr);
    ASSERT_NE(KyDiManager::getSysVar(L"ZERODOC"), nullptr);
    EXPECT_EQ(valueOf(L"ZERODOC"), L"0");
}

TEST_F(SysVarLookup, ZeroDocumentVariableNeedsADocumentForItsFirstRead) {
    host.editorService.setText(L"CTAB", L"Model");
    host.documents.closeAll();
    EXPECT_EQ(KyDiManager::getSysVar(L"CTAB"), nullptr);
    host.documents.openDocument();
    ASSERT_NE(KyDiManager::getSysVar(L"CTAB"), nullptr);
    EXPECT_EQ(valueOf(L"CTAB"), L"Model");
}
