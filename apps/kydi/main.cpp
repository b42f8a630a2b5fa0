// The kydi program: opens a drawing in the reference host (the bundled sample
// when none is named), starts the data item layer against it, and shows or
// drives it.
//
//   kydi classes                  the runtime classes the platform knows
//   kydi dump [FILE] [--json]     what the layer and the drawing hold
//   kydi run [FILE] SCRIPT        runs a script ("-" reads standard input)
//   kydi shell [FILE]             the statements of a script, typed at a prompt
//
// The exit status is 1 when the drawing can't be opened or any statement
// failed, 2 for a command line the program doesn't understand.
#include <unistd.h>

#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "KyAppClassList.h"
#include "KyAppDump.h"
#include "KyAppDumpText.h"
#include "KyAppScript.h"
#include "KyAppSession.h"

namespace {

constexpr const char* kUsage =
    "usage: kydi classes\n"
    "       kydi dump [FILE] [--json]\n"
    "       kydi run [FILE] SCRIPT      (SCRIPT \"-\" reads standard input)\n"
    "       kydi shell [FILE]\n";

int usage() {
    std::cerr << kUsage;
    return 2;
}

bool startSession(KyAppSession& session, const std::string& file) {
    std::string error;
    if (!session.start(file, error)) {
        std::cout << "error: " << error << '\n';
        return false;
    }
    return true;
}

int dump(const std::vector<std::string>& arguments) {
    bool json = false;
    std::vector<std::string> files;
    for (const std::string& argument : arguments) {
        if (argument == "--json") {
            json = true;
        } else {
            files.push_back(argument);
        }
    }
    if (files.size() > 1) {
        return usage();
    }
    KyAppSession session(KyAppSession::Clock::kManual);
    if (!startSession(session, files.empty() ? std::string() : files[0])) {
        return 1;
    }
    const KyRefJson model = KyAppDump::build(session.host());
    if (json) {
        std::cout << model.dump(2, ' ', false, KyRefJson::error_handler_t::replace) << '\n';
    } else {
        KyAppDumpText::write(model, std::cout);
    }
    return 0;
}

int run(const std::vector<std::string>& arguments) {
    if (arguments.empty() || arguments.size() > 2) {
        return usage();
    }
    const std::string& scriptPath = arguments.back();
    std::ifstream file;
    if (scriptPath != "-") {
        file.open(scriptPath);
        if (!file) {
            std::cout << "error: the script \"" << scriptPath << "\" can't be read\n";
            return 1;
        }
    }
    KyAppSession session(KyAppSession::Clock::kManual);
    if (!startSession(session, arguments.size() == 2 ? arguments[0] : std::string())) {
        return 1;
    }
    KyAppScript script(session, std::cout);
    script.runAll(scriptPath == "-" ? std::cin : file);
    return script.anyFailed() ? 1 : 0;
}

int shell(const std::vector<std::string>& arguments) {
    if (arguments.size() > 1) {
        return usage();
    }
    KyAppSession session(KyAppSession::Clock::kReal);
    if (!startSession(session, arguments.empty() ? std::string() : arguments[0])) {
        return 1;
    }
    KyAppScript script(session, std::cout);
    // The prompt is for a person typing; piped statements run without it.
    script.runAll(std::cin, isatty(STDIN_FILENO) != 0 ? "kydi> " : nullptr);
    return script.anyFailed() ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        return usage();
    }
    const std::string subcommand = argv[1];
    const std::vector<std::string> arguments(argv + 2, argv + argc);
    if (subcommand == "classes" && arguments.empty()) {
        KyAppClassList::write(std::cout);
        return 0;
    }
    if (subcommand == "dump") {
        return dump(arguments);
    }
    if (subcommand == "run") {
        return run(arguments);
    }
    if (subcommand == "shell") {
        return shell(arguments);
    }
    return usage();
}
