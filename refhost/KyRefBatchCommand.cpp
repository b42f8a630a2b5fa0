#include "KyRefBatchCommand.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "KyRefCommandContext.h"
#include "KyRefHost.h"

namespace {

// The file's lines as input, each ending in a new line; false when it can't
// be read.
bool readBatch(const KyString& path, std::wstring& text) {
    const std::filesystem::path file(path.utf8());
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error)) {
        return false;
    }
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        return false;
    }
    std::stringstream content;
    content << in.rdbuf();
    for (std::string line; std::getline(content, line);) {
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        text.append(KyString::fromUtf8(line).kwszPtr());
        text.push_back(L'\n');
    }
    return !in.bad();
}

}  // namespace

void KyRefBatchCommand::run(KyRefCommandContext& context) {
    const KyString path = context.readName(L"Enter name of batch file: ");
    if (path.isEmpty()) {
        return;
    }
    KyString file;
    if (!context.host().fileFolder().resolve(path, file)) {
        context.fail(
            L"Cannot read batch file \"%ls\": it lies outside the folder of the host's "
            L"files.",
            path.kwszPtr());
    }
    std::wstring text;
    if (!readBatch(file, text)) {
        context.fail(L"Cannot read batch file \"%ls\".", path.kwszPtr());
    }
    if (!context.runAsBatch(std::move(text))) {
        context.fail(L"A batch can't run another batch.");
    }
}
