// Documents of the host opened from and saved to drawing files, with the
// reader and writer that register themselves for every host.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "DrawingTestSupport.h"
#include "KyRefDocument.h"
#include "KyRefDocumentManager.h"
#include "KyRefDrawingIo.h"
#include "KyRefHost.h"
#include "KyRefHostOptions.h"
#include "db/KyDbDatabase.h"
#include "io/KyRefDrawingFile.h"

using namespace drawingio;

namespace {

class DrawingDocuments : public ::testing::Test {
protected:
    DrawingDocuments() : m_host(KyRefHostOptions::withoutServices()) {
        m_folder =
            std::filesystem::temp_directory_path() /
            ("kydrawing-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
             "-" + ::testing::UnitTest::GetInstance()->current_test_info()->name());
        std::filesystem::create_directories(m_folder);
    }
    ~DrawingDocuments() override {
        m_host.documents().closeAll();
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }

    std::filesystem::path write(const std::string& name, const std::string& text) const {
        const std::filesystem::path file = m_folder / name;
        std::ofstream(file, std::ios::binary) << text;
        return file;
    }

    KyRefHost m_host;
    std::filesystem::path m_folder;
};

TEST_F(DrawingDocuments, EveryHostOpensAndSavesWithTheRegisteredReader) {
    EXPECT_EQ(KyRefDrawingIo::registered(), &KyRefDrawingFile::instance());
    const std::filesystem::path file = write("small.kyd", smallDrawing().dump(1));
    KyString error;
    KyRefDocument* document = m_host.documents().openDocument(file.wstring().c_str(), error);
    ASSERT_NE(document, nullptr) << error.utf8();
    EXPECT_EQ(m_host.documents().documentCount(), 1);
    EXPECT_EQ(recordName(document->database()->clayer()), "Walls");

    const std::filesystem::path copy = m_folder / "copy.kyd";
    ASSERT_TRUE(m_host.documents().saveDocument(document, copy.wstring().c_str(), error))
        << error.utf8();
    EXPECT_TRUE(unordered(KyRefJson::parse(readText(copy))) == unordered(smallDrawing()));
    EXPECT_FALSE(std::filesystem::exists(m_folder / "copy.kyd.saving"));
}

TEST_F(DrawingDocuments, APathBeyondAsciiOpensAndSavesInAnyLocale) {
    // Tests run in the "C" locale, where the library can't turn such a wide
    // path into bytes: paths reach the file system as UTF-8.
    const std::filesystem::path file = write("Grundri\u00df.kyd", smallDrawing().dump());
    KyString error;
    KyRefDocument* document =
        m_host.documents().openDocument(KyString::fromUtf8(file.string()), error);
    ASSERT_NE(document, nullptr) << error.utf8();
    const std::filesystem::path copy = m_folder / "Kopie \u00c4\u00d6.kyd";
    ASSERT_TRUE(m_host.documents().saveDocument(document, KyString::fromUtf8(copy.string()), error))
        << error.utf8();
    EXPECT_TRUE(unordered(KyRefJson::parse(readText(copy))) == unordered(smallDrawing()));
}

TEST_F(DrawingDocuments, AFileThatCantBeReadOpensNoDocumentAndSaysWhy) {
    KyRefJson broken = smallDrawing();
    broken["layers"][0]["frozen"] = "yes";
    const std::filesystem::path file = write("broken.kyd", broken.dump());
    KyString error;
    EXPECT_EQ(m_host.documents().openDocument(file.wstring().c_str(), error), nullptr);
    EXPECT_EQ(m_host.documents().documentCount(), 0);
    EXPECT_EQ(error.utf8(), "Cannot open \"" + file.string() +
                                "\": layers[0].frozen: expected true or false, found a string");
}

}  // namespace
