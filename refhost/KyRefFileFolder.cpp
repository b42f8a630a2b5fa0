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
    // A folder that can't be resolved confines to nothing: every path is
    // refused, rather than every path let through.
    m_confined = true;
    std::error_code error;
    const fs::path absolute = fs::absolute(folder, error);
    if (error) {
        return;
    }
    fs::path canonical = fs::weakly_canonical(absolute, error);
    m_folder = error ? absolute.lexically_normal() : std::move(canonical);
}

bool KyRefFileFolder::resolve(const KyString& typed, KyString& path) const {
    if (!isConfined()) {
        path = typed;
        return true;
    }
    if (m_folder.empty()) {
        return false;
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
