#include "KyRefFileFolder.h"

#include <system_error>
#include <utility>

namespace fs = std::filesystem;

KyRefFileFolder::KyRefFileFolder(fs::path folder) {
    if (folder.empty()) {
        return;
    }
    // Links and ".." are resolved once, so that every path compares with
    // the folder as the file system has it.
    std::error_code error;
    fs::path canonical = fs::weakly_canonical(fs::absolute(folder, error), error);
    m_folder = error ? fs::absolute(folder).lexically_normal() : std::move(canonical);
}

bool KyRefFileFolder::resolve(const KyString& typed, KyString& path) const {
    if (!isConfined()) {
        path = typed;
        return true;
    }
    // An absolute path replaces the folder; it passes only when it lies in it.
    const fs::path joined = m_folder / fs::path(typed.utf8());
    std::error_code error;
    const fs::path resolved = fs::weakly_canonical(joined, error);
    if (error) {
        return false;
    }
    const fs::path inside = resolved.lexically_relative(m_folder);
    if (inside.empty() || *inside.begin() == "..") {
        return false;
    }
    path = KyString::fromUtf8(resolved.string());
    return true;
}
