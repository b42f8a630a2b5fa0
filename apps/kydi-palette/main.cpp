// The kydi-palette program: a layer palette over a drawing opened in the
// reference host (the bundled sample when none is named), with the data item
// layer started against it.
//
//   kydi-palette [DRAWING]
//   kydi-palette --screenshot FILE.png [DRAWING]
//
// With --screenshot the window is built, one refresh step runs, and the
// window is rendered to FILE.png instead of shown; Qt's offscreen platform
// is used unless the environment names another. The exit status is 1 when
// the drawing can't be opened or the picture can't be written, 2 for a
// command line the program doesn't understand.
#include <QApplication>
#include <QFileInfo>
#include <QPixmap>
#include <iostream>
#include <string>
#include <vector>

#include "KyAppSession.h"
#include "KyPalWindow.h"

namespace {

constexpr const char* kUsage =
    "usage: kydi-palette [DRAWING]\n"
    "       kydi-palette --screenshot FILE.png [DRAWING]\n";

// The size the window opens at, and is pictured at.
constexpr int kWidth = 1100;
constexpr int kHeight = 700;

struct Arguments {
    std::string screenshot;
    std::string drawing;
};

bool parse(const std::vector<std::string>& words, Arguments& arguments) {
    std::vector<std::string> files;
    for (size_t i = 0; i < words.size(); ++i) {
        if (words[i] == "--screenshot") {
            if (i + 1 == words.size() || !arguments.screenshot.empty()) {
                return false;
            }
            arguments.screenshot = words[++i];
        } else if (words[i].starts_with("-")) {
            return false;
        } else {
            files.push_back(words[i]);
        }
    }
    if (files.size() > 1) {
        return false;
    }
    arguments.drawing = files.empty() ? std::string() : files.front();
    return true;
}

int screenshot(KyPalWindow& window, const std::string& path) {
    window.refreshStep();
    // The views lay out their items and scroll bars in posted events, some
    // posted while others run.
    for (int round = 0; round < 3; ++round) {
        QApplication::processEvents();
    }
    const QPixmap picture = window.grab();
    if (picture.isNull() || !picture.save(QString::fromStdString(path), "PNG")) {
        std::cerr << "error: the picture can't be written to \"" << path << "\"\n";
        return 1;
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    Arguments arguments;
    if (!parse(std::vector<std::string>(argv + 1, argv + argc), arguments)) {
        std::cerr << kUsage;
        return 2;
    }
    // The drawing is opened first: one that can't be read needs no display.
    // The session stops the data item layer when it goes, after the window
    // and its models.
    KyAppSession session(KyAppSession::Clock::kReal);
    std::string error;
    if (!session.start(arguments.drawing, error)) {
        std::cerr << "error: " << error << '\n';
        return 1;
    }
    const bool offscreen = !arguments.screenshot.empty();
    if (offscreen && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName("kydi-palette");
    KyPalWindow window(session.host());
    const QString drawing = QString::fromStdString(arguments.drawing);
    window.setWindowTitle(
        QString("kydi-palette - %1")
            .arg(drawing.isEmpty() ? "sample.kyd" : QFileInfo(drawing).fileName()));
    window.resize(kWidth, kHeight);
    window.show();
    return offscreen ? screenshot(window, arguments.screenshot) : QApplication::exec();
}
