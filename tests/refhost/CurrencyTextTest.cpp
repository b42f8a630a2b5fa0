// The texts the data item layer sends to make a record current: each runs as
// a command, makes the record current in the drawing's header and reports
// the variable's change; a name that is no record of the table or dictionary
// is an error line that changes nothing.
#include <string>

#include "DrawingContent.h"
#include "KyRefSysVarTable.h"
#include "RefHostTestSupport.h"
#include "db/KyDbDetailViewStyle.h"
#include "db/KyDbDimStyleTableRecord.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbMLeaderStyle.h"
#include "db/KyDbSectionViewStyle.h"
#include "db/KyDbTableStyle.h"
#include "db/KyDbTextStyleTableRecord.h"

namespace refhost {
namespace {

struct CurrencyText {
    const wchar_t* before;  // the text before the name
    const wchar_t* variable;
    const char* command;  // the global name the command ends with
    const char* what;     // the error line's name of the kind
    KyDbObjectId (KyDbDatabase::*current)() const;
};

const CurrencyText kTexts[] = {
    {L"'_clayer\n", L"CLAYER", "CLAYER", "layer", &KyDbDatabase::clayer},
    {L"'_textstyle\n", L"TEXTSTYLE", "TEXTSTYLE", "text style", &KyDbDatabase::textstyle},
    {L"'_celtype\n", L"CELTYPE", "CELTYPE", "linetype", &KyDbDatabase::celtype},
    {L"'_ctablestyle\n", L"CTABLESTYLE", "CTABLESTYLE", "table style", &KyDbDatabase::tablestyle},
    {L"'_cmleaderstyle\n", L"CMLEADERSTYLE", "CMLEADERSTYLE", "multileader style",
     &KyDbDatabase::mleaderstyle},
    {L"'_cviewsectionstyle\n", L"CVIEWSECTIONSTYLE", "CVIEWSECTIONSTYLE", "section view style",
     &KyDbDatabase::sectionViewStyle},
    {L"'_cviewdetailstyle\n", L"CVIEWDETAILSTYLE", "CVIEWDETAILSTYLE", "detail view style",
     &KyDbDatabase::detailViewStyle},
    {L"_-dimstyle\n_Restore\n", L"DIMSTYLE", "-DIMSTYLE", "dimension style",
     &KyDbDatabase::dimstyle},
};

// A drawing with one more record named "Alt" of each kind.
class CurrencyTextTest : public RefHostTest {
protected:
    CurrencyTextTest() : content(db()) {
        addLayer(L"Alt");
        content.addRecord<KyDbTextStyleTableRecord>(db()->textStyleTableId(), L"Alt");
        content.addRecord<KyDbLinetypeTableRecord>(db()->linetypeTableId(), L"Alt");
        content.addRecord<KyDbDimStyleTableRecord>(db()->dimStyleTableId(), L"Alt");
        addStyle<KyDbTableStyle>(db()->tableStyleDictionaryId());
        addStyle<KyDbMLeaderStyle>(db()->mleaderStyleDictionaryId());
        addStyle<KyDbSectionViewStyle>(db()->sectionViewStyleDictionaryId());
        addStyle<KyDbDetailViewStyle>(db()->detailViewStyleDictionaryId());
        spy.take();
    }

    template <typename Style>
    void addStyle(KyDbObjectId dictionaryId) {
        content.addEntry<Style>(dictionaryId, L"Alt", [](Style& style) { style.setName(L"Alt"); });
    }

    DrawingContent content;
};

TEST_F(CurrencyTextTest, EachTextMakesTheRecordCurrentAndReportsTheVariable) {
    for (const CurrencyText& text : kTexts) {
        const KyRefSysVarRow* row = KyRefSysVarTable::find(text.variable);
        ASSERT_NE(row, nullptr) << utf8(text.variable);
        EXPECT_TRUE(row->isDrawing()) << utf8(text.variable);

        run((std::wstring(text.before) + L"Alt\n").c_str());
        const KyDbObjectId current = (db()->*text.current)();
        EXPECT_EQ(getString(text.variable), "Alt");
        KyRxValue stored;
        ASSERT_EQ(db()->getHeaderVar(text.variable, stored), Kyro::eOk) << utf8(text.variable);
        const KyDbObjectId* storedId = valueCast<KyDbObjectId>(&stored);
        ASSERT_NE(storedId, nullptr) << utf8(text.variable);
        EXPECT_EQ(*storedId, current) << "the header holds the record";
        const std::string command = text.command;
        EXPECT_EQ(spy.take(), (Lines{"commandWillStart " + command,
                                     "sysVarChanged " + utf8(text.variable) + " true",
                                     "commandEnded " + command, "refreshNeeded false"}));
        EXPECT_TRUE(host->commandNames().isEmpty());
        takeLog();
    }
}

TEST_F(CurrencyTextTest, ANameThatIsNoRecordIsAnErrorLineAndChangesNothing) {
    for (const CurrencyText& text : kTexts) {
        const KyDbObjectId before = (db()->*text.current)();
        run((std::wstring(text.before) + L"Nowhere\n").c_str());
        EXPECT_EQ((db()->*text.current)(), before) << utf8(text.variable);
        EXPECT_EQ(takeLog().back(), std::string("Cannot find ") + text.what + " \"Nowhere\".");
        EXPECT_EQ(spy.take(),
                  (Lines{std::string("commandWillStart ") + text.command, "refreshNeeded false"}));
        EXPECT_TRUE(host->commandNames().isEmpty());
    }
}

}  // namespace
}  // namespace refhost
