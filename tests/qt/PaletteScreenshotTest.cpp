// The kydi-palette program's screenshot mode, run as a user runs it: a
// picture of the palette over the sample, with the layers' colours in it,
// and for a drawing that can't be read an error, exit status 1 and no
// picture. The program picks Qt's offscreen platform itself.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <QColor>
#include <QImage>
#include <QSet>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace {

namespace fs = std::filesystem;

// Runs the program with `arguments`; its exit status, with its error output
// in `errors`. Each test keeps that output in a file of its own, since the
// tests run side by side.
int runPalette(const std::string& arguments, std::string& errors) {
    const fs::path errorFile =
        fs::path(KYDI_PALETTE_OUTPUT_DIR) /
        (std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()) + ".err");
    const std::string command = std::string("\"") + KYDI_PALETTE_PROGRAM + "\" " + arguments +
                                " > /dev/null 2> \"" + errorFile.string() + "\"";
    const int status = std::system(command.c_str());
    std::ifstream in(errorFile);
    std::stringstream text;
    text << in.rdbuf();
    errors = text.str();
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

fs::path freshOutput(const char* name) {
    const fs::path path = fs::path(KYDI_PALETTE_OUTPUT_DIR) / name;
    fs::remove(path);
    return path;
}

TEST(PaletteScreenshot, PicturesThePaletteOverTheSampleWithItsLayerColours) {
    const fs::path picture = freshOutput("palette-sample.png");
    std::string errors;
    ASSERT_EQ(runPalette("--screenshot \"" + picture.string() + "\"", errors), 0) << errors;
    QImage image;
    ASSERT_TRUE(image.load(QString::fromStdString(picture.string()))) << picture;
    EXPECT_GE(image.width(), 800);
    EXPECT_GE(image.height(), 500);
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colours.insert(image.pixel(x, y) & RGB_MASK);
        }
    }
    EXPECT_GT(colours.size(), 20) << "the picture is more than a flat colour";
    // The swatches of Walls (index colour 5), Windows and Plumbing (true
    // colours).
    for (const QColor swatch : {QColor(0, 0, 255), QColor(0, 128, 255), QColor(0, 160, 80)}) {
        EXPECT_TRUE(colours.contains(swatch.rgb() & RGB_MASK)) << swatch.name().toStdString();
    }
}

TEST(PaletteScreenshot, ADrawingThatCantBeReadGivesAnErrorAndNoPicture) {
    const fs::path drawing = fs::path(KYDI_PALETTE_OUTPUT_DIR) / "unreadable.kyd";
    std::ofstream(drawing) << "{\"format\": \"kydrawing\", \"layers\": 12";
    const fs::path picture = freshOutput("palette-unreadable.png");
    std::string errors;
    EXPECT_EQ(runPalette("--screenshot \"" + picture.string() + "\" \"" + drawing.string() + "\"",
                         errors),
              1);
    EXPECT_NE(errors.find("error: "), std::string::npos) << errors;
    EXPECT_FALSE(fs::exists(picture));
    // A file that isn't there, likewise.
    EXPECT_EQ(runPalette("--screenshot \"" + picture.string() + "\" no-such-drawing.kyd", errors),
              1);
    EXPECT_FALSE(fs::exists(picture));
}

}  // namespace
