// Variables as boxed values, for the trackers that follow a variable: read
// with the value's type code, written directly.
#include <gtest/gtest.h>

#include "kydi/KyDiManager.h"
#include "sysvars/SysVarFixture.h"
#include "sysvars/SysVarValueAccess.h"

namespace {

class SysVarValues : public kytest::SysVarFixture {};

}  // namespace

TEST_F(SysVarValues, ReadBoxesByTypeCode) {
    int type = 0;
    KyRxValue value;
    readSysVar(L"LUPREC", type, value);
    EXPECT_EQ(type, KYRB_SHORT);
    ASSERT_NE(valueCast<short>(&value), nullptr);
    EXPECT_EQ(*valueCast<short>(&value), 4);

    readSysVar(L"TEXTSTYLE", type, value);
    EXPECT_EQ(type, KYRB_STRING);
    ASSERT_NE(valueCast<KyString>(&value), nullptr);
    EXPECT_STREQ(valueCast<KyString>(&value)->kwszPtr(), L"Standard");

    readSysVar(L"FILLETRAD", type, value);
    EXPECT_EQ(type, KYRB_REAL);
    ASSERT_NE(valueCast<double>(&value), nullptr);

    KyDiManager::getSysVar(L"LUPREC")->setValue(kytest::shortValue(6), true);
    readSysVar(L"LUPREC", type, value);
    ASSERT_NE(valueCast<short>(&value), nullptr);
    EXPECT_EQ(*valueCast<short>(&value), 6) << "a value just set";
}

TEST_F(SysVarValues, ReadOfAnUnknownVariableLeavesEverythingAlone) {
    int type = -1;
    KyRxValue value(3);
    readSysVar(L"NOSUCHVAR", type, value);
    EXPECT_EQ(type, -1);
    EXPECT_EQ(*valueCast<int>(&value), 3);
}

TEST_F(SysVarValues, WriteGoesDirectlyWithTheGivenCode) {
    writeSysVar(L"LUPREC", KYRB_SHORT, KyRxValue(static_cast<short>(6)));
    writeSysVar(L"HPNAME", KYRB_STRING, KyRxValue(KyString(L"ANSI37")));
    EXPECT_EQ(hostValue(L"LUPREC"), L"6");
    EXPECT_EQ(hostValue(L"HPNAME"), L"ANSI37");
    EXPECT_TRUE(sentTexts().empty());
}

TEST_F(SysVarValues, WriteOfNothingOrOfAnotherTypeDoesNothing) {
    writeSysVar(L"LUPREC", KYRB_SHORT, KyRxValue());
    writeSysVar(L"LUPREC", KYRB_SHORT, KyRxValue(6.0));
    writeSysVar(L"LUPREC", KYRB_POINT, KyRxValue(6.0));
    writeSysVar(L"NOSUCHVAR", KYRB_SHORT, KyRxValue(static_cast<short>(6)));
    EXPECT_EQ(hostValue(L"LUPREC"), L"4");
    EXPECT_EQ(valueOf(L"LUPREC"), L"4") << "no write was tried: a refused one drops the value";
}
