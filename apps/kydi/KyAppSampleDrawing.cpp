#include "KyAppSampleDrawing.h"

#include <filesystem>
#include <system_error>

namespace {

constexpr const char* kFileName = "sample.kyd";

std::filesystem::path installedPath() {
    std::error_code failure;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", failure);
    if (failure) {
        return {};
    }
    return program.parent_path().parent_path() / KYDI_APP_INSTALL_SAMPLE_DIR / kFileName;
}

}  // namespace

std::string KyAppSampleDrawing::path() {
    std::error_code failure;
    const std::filesystem::path candidates[] = {
        installedPath(),
        std::filesystem::path(KYDI_APP_SOURCE_SAMPLE_DIR) / kFileName,
    };
    for (const std::filesystem::path& candidate : candidates) {
        if (!candidate.empty() && std::filesystem::is_regular_file(candidate, failure)) {
            return candidate.string();
        }
    }
    return std::string();
}
