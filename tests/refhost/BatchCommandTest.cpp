// BATCH runs the commands of a file as typed commands, between
// documentBecameBusy and documentBecameQuiet; a command of the batch that
// fails is taken back and the batch goes on.
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>

#include "KyRefNamedItem.h"
#include "RefHostTestSupport.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbUndoController.h"

namespace refhost {
namespace {

namespace fs = std::filesystem;

class BatchCommandTest : public RefHostTest {
protected:
    BatchCommandTest()
        : folder(fs::temp_directory_path() /
                 ("kydi-batch-" + std::to_string(getpid()) + "-" +
                  ::testing::UnitTest::GetInstance()->current_test_info()->name())) {
        fs::create_directories(folder);
        spy.name(host->documents().currentDocument(), "drawing");
        spy.take();
    }
    ~BatchCommandTest() override { fs::remove_all(folder); }

    // A batch file `name` holding `text`; its path as a command answer.
    std::wstring writeBatch(const std::string& name, const std::string& text) const {
        const fs::path path = folder / name;
        std::ofstream(path, std::ios::binary) << text;
        return KyString::fromUtf8(path.string()).kwszPtr();
    }

    fs::path folder;
};

TEST_F(BatchCommandTest, TheFilesCommandsRunOneByOneBetweenBusyAndQuiet) {
    const std::wstring path = writeBatch("walls.txt", "-LAYER\r\n_New\nWalls\n\nCLAYER\nWalls");
    run((L"BATCH\n" + path + L"\nLUPREC\n2\n").c_str());
    EXPECT_EQ(getString(L"CLAYER"), "Walls");
    EXPECT_EQ(getShort(L"LUPREC"), 2) << "the input after BATCH runs after the batch";
    EXPECT_EQ(spy.take(),
              (Lines{"commandWillStart BATCH", "commandEnded BATCH", "refreshNeeded false",
                     "documentBecameBusy drawing", "commandWillStart -LAYER", "commandEnded -LAYER",
                     "refreshNeeded false", "commandWillStart CLAYER", "sysVarChanged CLAYER true",
                     "commandEnded CLAYER", "refreshNeeded false", "documentBecameQuiet drawing",
                     "commandWillStart LUPREC", "sysVarChanged LUPREC true", "commandEnded LUPREC",
                     "refreshNeeded false"}));
    const Lines log = takeLog();
    EXPECT_EQ(std::count(log.begin(), log.end(), "Command: -LAYER"), 1);
    EXPECT_EQ(std::count(log.begin(), log.end(), "Command: CLAYER"), 1);

    const KyDbObjectId walls = KyRefNamedItem::find(db()->layerTableId(), L"Walls");
    run(L"U\nU\n");
    EXPECT_EQ(getString(L"CLAYER"), "0");
    EXPECT_FALSE(walls.isErased()) << "each command of the batch is an undo step of its own";
    run(L"U\n");
    EXPECT_TRUE(walls.isErased());
}

TEST_F(BatchCommandTest, AFailingCommandIsTakenBackTheBatchGoesOnAndAnUnfinishedOneEndsWithIt) {
    const std::wstring path = writeBatch(
        "mixed.txt", "CLAYER\nNoSuchLayer\nRECORD\n_New\nLAYER\nRoof\n-LAYER\n_New\nAttic\n");
    run((L"BATCH\n" + path + L"\n").c_str());
    EXPECT_FALSE(KyRefNamedItem::find(db()->layerTableId(), L"Roof").isNull());
    EXPECT_TRUE(KyRefNamedItem::find(db()->layerTableId(), L"Attic").isNull())
        << "-LAYER waited for its next option when the batch ended";
    EXPECT_TRUE(host->commandNames().isEmpty());
    EXPECT_EQ(
        spy.take(),
        (Lines{"commandWillStart BATCH", "commandEnded BATCH", "refreshNeeded false",
               "documentBecameBusy drawing", "commandWillStart CLAYER", "refreshNeeded false",
               "commandWillStart RECORD", "commandEnded RECORD", "refreshNeeded false",
               "commandWillStart -LAYER", "refreshNeeded false", "documentBecameQuiet drawing"}));
    const Lines log = takeLog();
    EXPECT_NE(std::find(log.begin(), log.end(), "Cannot find layer \"NoSuchLayer\"."), log.end());
    EXPECT_TRUE(log.back().ends_with("*Cancel*")) << log.back();
}

TEST_F(BatchCommandTest, AFileThatCantBeReadOrABatchInsideABatchIsAnErrorLine) {
    run(L"BATCH\nno-such-file.txt\n");
    EXPECT_EQ(takeLog().back(), "Cannot read batch file \"no-such-file.txt\".");
    EXPECT_EQ(spy.take(), (Lines{"commandWillStart BATCH", "refreshNeeded false"}));

    const std::wstring inner = writeBatch("inner.txt", "LUPREC\n3\n");
    const std::wstring outer =
        writeBatch("outer.txt", "BATCH\n" + KyString(inner.c_str()).utf8() + "\nLUPREC\n2\n");
    run((L"BATCH\n" + outer + L"\n").c_str());
    EXPECT_EQ(getShort(L"LUPREC"), 2);
    EXPECT_EQ(spy.take(),
              (Lines{"commandWillStart BATCH", "commandEnded BATCH", "refreshNeeded false",
                     "documentBecameBusy drawing", "commandWillStart BATCH", "refreshNeeded false",
                     "commandWillStart LUPREC", "sysVarChanged LUPREC true", "commandEnded LUPREC",
                     "refreshNeeded false", "documentBecameQuiet drawing"}));
    const Lines log = takeLog();
    EXPECT_NE(std::find(log.begin(), log.end(), "A batch can't run another batch."), log.end());
}

}  // namespace
}  // namespace refhost
