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

TEST_F(SysVarLookup, UnknownVariableAnswersNull) {
    EXPECT_EQ(KyDiManager::getSysVar(L"NOSUCHVAR"), nullptr);
    EXPECT_EQ(KyDiManager::getSysVar(L"NOSUCHVAR"), nullptr);
    EXPECT_EQ(KyDiManager::getSysVar(nullptr), nullptr);
}

TEST_F(SysVarLookup, VariableUnreadableWithoutADrawingIsAskedForAgainLater) {
    host.documents().closeAll();
    EXPECT_EQ(KyDiManager::getSysVar(L"LUPREC"), nullptr);
    EXPECT_EQ(KyDiManager::getSysVar(L"CTAB"), nullptr) << "nothing to keep valid yet";

    host.documents().newDocument();
    ASSERT_NE(KyDiManager::getSysVar(L"LUPREC"), nullptr);
    EXPECT_EQ(valueOf(L"LUPREC"), L"4");
    ASSERT_NE(KyDiManager::getSysVar(L"CTAB"), nullptr);
    EXPECT_EQ(valueOf(L"CTAB"), L"Model");
}

TEST_F(SysVarLookup, BoundsComeFromTheRowOfTheExactName) {
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

namespace {

class SysVarLookupWithoutEditor : public kytest::SysVarFixture {
protected:
    SysVarLookupWithoutEditor() : SysVarFixture(withoutEditor()) {}
};

}  // namespace

TEST_F(SysVarLookupWithoutEditor, OnlyComputedVariablesCanBeHad) {
    EXPECT_EQ(KyDiManager::getSysVar(L"LUPREC"), nullptr);
    ASSERT_NE(KyDiManager::getSysVar(L"ZERODOC"), nullptr);
    EXPECT_EQ(valueOf(L"ZERODOC"), L"0");
}
