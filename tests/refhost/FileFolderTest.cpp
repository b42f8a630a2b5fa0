// A host given a file folder reads the files that commands name only there:
// relative paths resolve under it, and any path that leads out of it (an
// absolute path elsewhere, "..", a link to the outside) is an error line that
// changes nothing.
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "KyRefFileFolder.h"
#include "KyRefNamedItem.h"
#include "RefHostTestSupport.h"
#include "db/KyDbDatabase.h"

namespace refhost {
namespace {

namespace fs = std::filesystem;

// A scratch folder `inside` for the host, and a folder `outside` beside it.
struct Folders {
    Folders()
        : root(fs::temp_directory_path() /
               ("kydi-files-" + std::to_string(getpid()) + "-" +
                ::testing::UnitTest::GetInstance()->current_test_info()->name())),
          inside(root / "inside"),
          outside(root / "outside") {
        fs::create_directories(inside / "sub");
        fs::create_directories(outside);
    }
    ~Folders() { fs::remove_all(root); }

    static void write(const fs::path& path, const std::string& text) {
        std::ofstream(path, std::ios::binary) << text;
    }

    fs::path root;
    fs::path inside;
    fs::path outside;
};

std::string resolved(const KyRefFileFolder& folder, const std::string& typed) {
    KyString path(L"unchanged");
    return folder.resolve(KyString::fromUtf8(typed), path) ? path.utf8() : "refused";
}

TEST(FileFolder, PathsResolveUnderTheFolderAndNoneLeadsOutOfIt) {
    const Folders folders;
    const fs::path in = fs::canonical(folders.inside);
    fs::create_symlink(folders.outside, folders.inside / "away");
    const KyRefFileFolder folder(folders.inside / "sub" / "..");
    EXPECT_TRUE(folder.isConfined());
    EXPECT_EQ(folder.folder(), in);

    EXPECT_EQ(resolved(folder, "a.txt"), (in / "a.txt").string());
    EXPECT_EQ(resolved(folder, "sub/../sub/b.txt"), (in / "sub" / "b.txt").string());
    EXPECT_EQ(resolved(folder, (in / "c.txt").string()), (in / "c.txt").string());

    EXPECT_EQ(resolved(folder, "../outside/d.txt"), "refused");
    EXPECT_EQ(resolved(folder, "sub/../../inside/../outside"), "refused");
    EXPECT_EQ(resolved(folder, (folders.outside / "d.txt").string()), "refused");
    EXPECT_EQ(resolved(folder, "/etc/passwd"), "refused");
    EXPECT_EQ(resolved(folder, "away/d.txt"), "refused") << "a link that points outside";

    const KyRefFileFolder anywhere;
    EXPECT_FALSE(anywhere.isConfined());
    EXPECT_EQ(resolved(anywhere, "../x/y.txt"), "../x/y.txt");
}

TEST(FileFolder, AFolderThatCantBeResolvedRefusesEveryPath) {
    // A relative folder in a working folder that has gone: the process can't
    // tell where the folder is.
    const Folders folders;
    const fs::path before = fs::current_path();
    fs::current_path(folders.inside);
    fs::remove_all(folders.inside);
    const KyRefFileFolder folder("scratch");
    fs::current_path(before);
    EXPECT_TRUE(folder.isConfined());
    EXPECT_EQ(folder.folder(), fs::path());
    EXPECT_EQ(resolved(folder, "a.txt"), "refused");
    EXPECT_EQ(resolved(folder, "/etc/passwd"), "refused");
}

// The folders come first among the bases: the host is built with their path.
class ConfinedHostTest : protected Folders, public RefHostTest {
protected:
    ConfinedHostTest() : RefHostTest(options(*this)) { takeLog(); }

    static KyRefHostOptions options(const Folders& folders) {
        KyRefHostOptions options = testOptions();
        options.fileFolder = folders.inside;
        return options;
    }

    bool hasLayer(const wchar_t* name) const {
        return !KyRefNamedItem::find(db()->layerTableId(), name).isNull();
    }
};

TEST_F(ConfinedHostTest, BatchReadsItsFileInTheFolderAndRefusesOneOutside) {
    write(inside / "in.txt", "-LAYER\n_New\nInside\n\n");
    write(outside / "out.txt", "-LAYER\n_New\nOutside\n\n");
    run(L"BATCH\nin.txt\n");
    EXPECT_TRUE(hasLayer(L"Inside"));
    takeLog();
    spy.take();

    const std::string absolute = (outside / "out.txt").string();
    for (const std::string& typed : {std::string("../outside/out.txt"), absolute}) {
        run(KyString::fromUtf8("BATCH\n" + typed + "\n"));
        EXPECT_EQ(takeLog(), (Lines{"Command: BATCH", "Enter name of batch file: " + typed,
                                    "Cannot read batch file \"" + typed +
                                        "\": it lies outside the folder of the host's files."}));
        EXPECT_EQ(spy.take(), (Lines{"commandWillStart BATCH", "refreshNeeded false"}));
    }
    EXPECT_FALSE(hasLayer(L"Outside"));
}

TEST_F(ConfinedHostTest, XattachReadsADrawingInTheFolderAndRefusesOneOutside) {
    const std::string drawing = R"({"format": "kydrawing", "version": 1,
        "layers": [{"handle": "10", "name": "0"}, {"handle": "20", "name": "Walls"}]})";
    write(inside / "site.kyd", drawing);
    write(outside / "park.kyd", drawing);
    run(L"-XATTACH\nsite.kyd\n");
    EXPECT_TRUE(hasLayer(L"site|Walls"));
    takeLog();

    run(L"-XATTACH\n../outside/park.kyd\n");
    EXPECT_EQ(takeLog().back(),
              "Cannot read \"../outside/park.kyd\": it lies outside the folder of the host's "
              "files.");
    EXPECT_FALSE(hasLayer(L"park|Walls"));
}

}  // namespace
}  // namespace refhost
