// A document opened read-only: the host refuses its lock with a status of
// its own, so write-opens fail and no road through the host changes it;
// commands that would change it are refused with an error line before they
// start, and those that only look run as usual.
#include <filesystem>

#include "DrawingContent.h"
#include "RefHostTestSupport.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbSymbolTable.h"

namespace refhost {
namespace {

using Mode = KyRefDocumentManager::OpenMode;

const std::string kRefused = "The drawing \"plan.kyd\" is open read-only and can't be changed.";

class ReadOnlyDocumentTest : public RefHostTest {
protected:
    ReadOnlyDocumentTest() {
        writable = host->documents().current();
        auto database = std::make_unique<KyDbDatabase>(true);
        KyDbObjectId block;
        {
            KyDbObjectPointer<KyDbSymbolTable> blocks(database->blockTableId(), KyDb::kForWrite);
            auto* door = new KyDbBlockTableRecord();
            door->setName(L"Door");
            blocks->add(block, door);
            door->close();
        }
        readOnly = host->documents().addDocument(std::move(database), L"plan.kyd",
                                                 L"/drawings/plan.kyd", Mode::kReadOnly);
        spy.take();
        takeLog();
    }

    KyRefDocument* writable = nullptr;
    KyRefDocument* readOnly = nullptr;
};

TEST_F(ReadOnlyDocumentTest, TheHostRefusesTheLockWithAStatusOfItsOwnAndWriteOpensFail) {
    EXPECT_TRUE(readOnly->isReadOnly());
    EXPECT_FALSE(writable->isReadOnly());
    const KyAxDocLock lock;
    EXPECT_EQ(lock.lockStatus(), Kyro::eDocumentReadOnly) << "the working database";
    KyDbSymbolTable* layers = nullptr;
    EXPECT_EQ(db()->getSymbolTable(layers, db()->layerTableId(), KyDb::kForWrite),
              Kyro::eLockViolation);
    {
        const KyAxDocLock other(writable->database());
        EXPECT_EQ(other.lockStatus(), Kyro::eOk) << "the other document's lock stands";
    }

    EXPECT_EQ(editor().setVar(L"LUPREC", KyRefResbuf::makeShort(2).get()), KYRT_ERROR);
    EXPECT_FALSE(host->plotService()->setRasterDpi(300));
    const KyString table(L"Grayscale.ctb");
    EXPECT_FALSE(host->plotService()->setPlotStyleTable(&table));
    EXPECT_EQ(spy.take(), (Lines{"sysVarWillChange LUPREC", "sysVarChanged LUPREC false"}));
    EXPECT_EQ(getShort(L"LUPREC"), 4);
    EXPECT_FALSE(readOnly->isModified());
}

TEST_F(ReadOnlyDocumentTest, CommandsThatWouldChangeTheDrawingAreRefusedBeforeTheyStart) {
    for (const wchar_t* command :
         {L"-LAYER\n", L"-PAGESETUP\n", L"LINE\n", L"CLAYER\n", L"U\n", L"'_.-LAYER\n"}) {
        run(command);
        const Lines log = takeLog();
        ASSERT_EQ(log.size(), 2u) << utf8(command);
        EXPECT_EQ(log[1], kRefused);
        EXPECT_EQ(spy.take(), Lines{}) << "refused before it starts: " << utf8(command);
    }
    host->documents().makeCurrent(writable);
    spy.take();
    run(L"CLAYER\n0\n");
    EXPECT_EQ(spy.take(),
              (Lines{"commandWillStart CLAYER", "commandEnded CLAYER", "refreshNeeded false"}))
        << "the other document takes commands";
}

TEST_F(ReadOnlyDocumentTest, CommandsThatOnlyLookRunAndADrawingVariableInsideOneIsRefused) {
    run(L"SELECT\n'CLAYER\n'HPNAME\nANSI37\n\n");
    EXPECT_EQ(
        takeLog(),
        (Lines{"Command: SELECT", "Select objects: 'CLAYER", kRefused, "Select objects: 'HPNAME",
               ">>Enter new value for HPNAME <\"ANSI31\">: ANSI37", "Select objects: "}));
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart SELECT", "commandWillStart HPNAME",
                                 "sysVarChanged HPNAME true", "commandEnded HPNAME",
                                 "commandEnded SELECT", "refreshNeeded false"}));

    run(L"BEDIT\nDoor\nBCLOSE\nREPAINT\n");
    const Lines log = takeLog();
    EXPECT_EQ(std::count(log.begin(), log.end(), kRefused), 0);
    EXPECT_EQ(spy.take().size(), 12u) << "each of the three ran and ended";
}

TEST_F(ReadOnlyDocumentTest, AFileOpensReadOnlyThroughTheDocumentManager) {
    const std::filesystem::path file =
        std::filesystem::temp_directory_path() /
        ("kyref-read-only-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
         ".kyd");
    KyString error;
    ASSERT_TRUE(host->documents().saveDocument(writable, file.wstring().c_str(), error))
        << error.utf8();
    KyRefDocument* opened =
        host->documents().openDocument(file.wstring().c_str(), error, Mode::kReadOnly);
    std::filesystem::remove(file);
    ASSERT_NE(opened, nullptr) << error.utf8();
    EXPECT_TRUE(opened->isReadOnly());
    const KyAxDocLock lock(opened->database());
    EXPECT_EQ(lock.lockStatus(), Kyro::eDocumentReadOnly);
}

}  // namespace
}  // namespace refhost
