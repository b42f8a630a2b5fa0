// System variable values in scripts: what a variable's record prints as, and
// the record a written value becomes for each type of variable, with the
// host's own text for colours and transparencies.
#include <gtest/gtest.h>

#include <string>

#include "KyAppSysVarValue.h"
#include "KyRefSysVarStore.h"
#include "base/KyString.h"

namespace {

std::string shown(const KyRefResbufPtr& record) {
    return KyAppSysVarValue::toValue(*record).format();
}

// The record that `word` becomes for a variable of `typeCode`, as the host's
// prompts write it; the error when there is none.
std::string written(const std::string& word, short typeCode, bool quoted = false) {
    std::string error;
    const std::optional<KyAppValue> value = KyAppValue::parse(word, quoted, error);
    KyRefResbufPtr record;
    if (!value.has_value() || !KyAppSysVarValue::toRecord(*value, typeCode, record, error)) {
        return "error: " + error;
    }
    EXPECT_EQ(record->restype, typeCode);
    return KyString(KyRefSysVarStore::format(*record)).utf8();
}

}  // namespace

TEST(SysVarValue, RecordsPrintAsNumbersTextsAndPoints) {
    EXPECT_EQ(shown(KyRefResbuf::makeShort(4)), "4");
    EXPECT_EQ(shown(KyRefResbuf::makeLong(-70000)), "-70000");
    EXPECT_EQ(shown(KyRefResbuf::makeReal(2.5)), "2.5");
    EXPECT_EQ(shown(KyRefResbuf::makeReal(0.25, KYRB_ANGLE)), "0.25");
    EXPECT_EQ(shown(KyRefResbuf::makeString(L"Walls")), "Walls");
    EXPECT_EQ(shown(KyRefResbuf::makeString(L"Hidden Lines")), "\"Hidden Lines\"");
    EXPECT_EQ(shown(KyRefResbuf::makeString(L"0")), "\"0\"");
    EXPECT_EQ(shown(KyRefResbuf::makePoint(KyGePoint3d(420, 297.5, 9), KYRB_POINT)), "420,297.5");
    EXPECT_EQ(shown(KyRefResbuf::makePoint(KyGePoint3d(1, 2, 3))), "1,2,3");
}

TEST(SysVarValue, NumbersTakeTheVariablesType) {
    EXPECT_EQ(written("3", KYRB_SHORT), "3");
    EXPECT_EQ(written("true", KYRB_SHORT), "1");
    EXPECT_EQ(written("-32768", KYRB_SHORT), "-32768");
    EXPECT_EQ(written("40000", KYRB_SHORT),
              "error: 40000 is not an integer of the variable's type");
    EXPECT_EQ(written("40000", KYRB_LONG), "40000");
    EXPECT_EQ(written("2.5", KYRB_SHORT), "error: 2.5 is not an integer of the variable's type");
    EXPECT_EQ(written("3", KYRB_SHORT, true),
              "error: \"3\" is not an integer of the variable's type")
        << "a quoted word is a text";
    EXPECT_EQ(written("2.5", KYRB_REAL), "2.5");
    EXPECT_EQ(written("90", KYRB_ANGLE), "90");
    EXPECT_EQ(written("Walls", KYRB_REAL), "error: Walls is not a number");
}

TEST(SysVarValue, PointsAreWrittenAsCoordinates) {
    EXPECT_EQ(written("420,297", KYRB_POINT), "420,297");
    EXPECT_EQ(written("1,2,3", KYRB_3DPOINT), "1,2,3");
    EXPECT_EQ(written("1,2", KYRB_3DPOINT), "1,2,0");
    EXPECT_EQ(written("1,2,3", KYRB_POINT), "error: 1,2,3 is not a point x,y");
    EXPECT_EQ(written("1,a", KYRB_3DPOINT), "error: 1,a is not a point x,y,z");
    EXPECT_EQ(written("4", KYRB_POINT), "error: 4 is not a point x,y");
}

TEST(SysVarValue, TextVariablesTakeAnyValueAsTheHostWritesIt) {
    EXPECT_EQ(written("Walls", KYRB_STRING), "\"Walls\"");
    EXPECT_EQ(written("Hidden Lines", KYRB_STRING, true), "\"Hidden Lines\"");
    EXPECT_EQ(written("12", KYRB_STRING), "\"12\"");
    EXPECT_EQ(written("aci:1", KYRB_STRING), "\"1\"");
    EXPECT_EQ(written("rgb:255,0,0", KYRB_STRING), "\"RGB:255,0,0\"");
    EXPECT_EQ(written("bylayer", KYRB_STRING), "\"BYLAYER\"");
    EXPECT_EQ(written("byblock", KYRB_STRING), "\"BYBLOCK\"");
    EXPECT_EQ(written("alpha:255", KYRB_STRING), "\"0\"") << "opaque: 0 percent";
    EXPECT_EQ(written("alpha:0", KYRB_STRING), "\"100\"");
    EXPECT_EQ(written("#1F", KYRB_STRING), "\"1F\"");
    EXPECT_EQ(written("book:NOBOOK$RED", KYRB_STRING),
              "error: the colour book:NOBOOK$RED is in no known colour book");
}
