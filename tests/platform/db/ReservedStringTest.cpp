// Reserved strings: the kinds by the numbers their users pass, the global
// forms a drawing stores, the local forms of the second language, and the
// translation between them.
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>

#include "DbTestSupport.h"
#include "base/KyRxResourceInstance.h"
#include "db/KyDbDictionaryIterator.h"
#include "db/KyDbReservedStrings.h"
#include "db/KyDbTableStyle.h"
#include "db/KyDbVisualStyle.h"

namespace dbtest {
namespace {

using Kind = KyDb::ReservedStringEnumType;

std::string global(int kind) {
    return KyString(kydbGetReservedString(static_cast<Kind>(kind), false)).utf8();
}
std::string local(int kind) {
    return KyString(kydbGetReservedString(static_cast<Kind>(kind), true)).utf8();
}

class ReservedStringTest : public DbTest {
protected:
    ~ReservedStringTest() override { KyRxResourceInstance::setLanguage(L""); }
};

TEST_F(ReservedStringTest, TheKindsHaveTheNumbersTheirUsersPass) {
    // Plot styles: 5, 0, 1, 9; linetypes: 0, 1, 3; materials: 0, 1, 11.
    EXPECT_EQ(global(5), "Normal");
    EXPECT_EQ(global(0), "ByLayer");
    EXPECT_EQ(global(1), "ByBlock");
    EXPECT_EQ(global(9), "ByColor");
    EXPECT_EQ(global(3), "Continuous");
    EXPECT_EQ(global(11), "Global");
    EXPECT_EQ(global(4), "Standard");
    EXPECT_EQ(global(10), "Model");
    EXPECT_EQ(kydbGetReservedString(KyDb::kReservedStringCount, false), nullptr)
        << "the marker that ends lists is no kind";
    EXPECT_EQ(kydbGetReservedString(static_cast<Kind>(-1), true), nullptr);
}

TEST_F(ReservedStringTest, TheVisualStyleKindsAreTheStandardStylesAUserPicks) {
    // The list of kinds that visual style names are translated with.
    const int kinds[] = {12, 14, 13, 16, 15, 20, 21, 22, 23, 24, 24};
    std::set<std::string> reserved;
    for (int kind : kinds) {
        reserved.insert(global(kind));
    }
    std::set<std::string> listed;
    KyDbObjectPointer<KyDbDictionary> styles(db->visualStyleDictionaryId(), KyDb::kForRead);
    std::unique_ptr<KyDbDictionaryIterator> it(styles->newIterator());
    for (; !it->done(); it->next()) {
        KyDbObjectPointer<KyDbVisualStyle> style(it->objectId(), KyDb::kForRead);
        if (!style->isInternalUseOnly()) {
            listed.insert(style->name().utf8());
        }
    }
    listed.erase("Modeling");
    EXPECT_EQ(reserved, listed);
}

TEST_F(ReservedStringTest, TheCellStyleKindsAreTheCellStylesOfANewTableStyle) {
    const KyDbTableStyle style;
    ASSERT_EQ(style.cellStyles().length(), 3);
    EXPECT_EQ(style.cellStyles()[0].utf8(), global(17));
    EXPECT_EQ(style.cellStyles()[1].utf8(), global(18));
    EXPECT_EQ(style.cellStyles()[2].utf8(), global(19));
}

TEST_F(ReservedStringTest, InTheBaseLanguageTheLocalFormIsTheGlobalOne) {
    for (int kind = 0; kind < KyDb::kReservedStringCount; ++kind) {
        EXPECT_EQ(local(kind), global(kind)) << kind;
    }
}

TEST_F(ReservedStringTest, InTheSecondLanguageEveryLocalFormDiffersFromItsGlobalForm) {
    KyRxResourceInstance::setLanguage(L"de");
    std::set<std::string> locals;
    for (int kind = 0; kind < KyDb::kReservedStringCount; ++kind) {
        EXPECT_NE(local(kind), global(kind)) << kind;
        EXPECT_FALSE(local(kind).empty()) << kind;
        locals.insert(local(kind));
    }
    EXPECT_EQ(locals.size(), static_cast<size_t>(KyDb::kReservedStringCount))
        << "no two kinds share a local form";
    EXPECT_EQ(local(0), "VonLayer");
    EXPECT_EQ(local(1), "VonBlock");
    EXPECT_EQ(local(5), "Normalstil");

    const wchar_t* before = kydbGetReservedString(KyDb::kByLayer, true);
    KyRxResourceInstance::setLanguage(L"");
    EXPECT_EQ(local(0), "ByLayer");
    EXPECT_STREQ(before, L"VonLayer") << "a text handed out stays valid";
}

TEST_F(ReservedStringTest, EitherFormIsReservedInAnyCase) {
    KyRxResourceInstance::setLanguage(L"de");
    EXPECT_TRUE(kydbIsReservedString(L"bylayer", KyDb::kByLayer));
    EXPECT_TRUE(kydbIsReservedString(L"VONLAYER", KyDb::kByLayer));
    EXPECT_FALSE(kydbIsReservedString(L"VonLayer", KyDb::kByBlock));
    EXPECT_FALSE(kydbIsReservedString(L"Walls", KyDb::kByLayer));
    EXPECT_FALSE(kydbIsReservedString(nullptr, KyDb::kByLayer));
    EXPECT_TRUE(kydbIsReservedString(L"shaded with edges", KyDb::kVSShadedWithEdges));
}

TEST_F(ReservedStringTest, TranslationAnswersTheFormAskedForOrNothing) {
    KyRxResourceInstance::setLanguage(L"de");
    EXPECT_STREQ(kydbXlateReservedString(L"Continuous", true), L"Durchgehend");
    EXPECT_STREQ(kydbXlateReservedString(L"durchgehend", false), L"Continuous");
    EXPECT_STREQ(kydbXlateReservedString(L"Title", true), L"Titel");
    EXPECT_STREQ(kydbXlateReservedString(L"Kopfzeile", false), L"Header");
    EXPECT_STREQ(kydbXlateReservedString(L"ByLayer", false), L"ByLayer");
    EXPECT_EQ(kydbXlateReservedString(L"Walls", true), nullptr);
    EXPECT_EQ(kydbXlateReservedString(L"", true), nullptr);
    EXPECT_EQ(kydbXlateReservedString(nullptr, false), nullptr);
}

}  // namespace
}  // namespace dbtest
