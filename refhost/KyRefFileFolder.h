// KyRefFileFolder: where the host finds the files that commands name (BATCH,
// XATTACH). Without a folder of its own a typed path is taken as it stands,
// relative to the process's working folder. A host given a folder
// (KyRefHostOptions::fileFolder) takes a relative path under that folder and
// refuses every path that leads out of it: an absolute path elsewhere, a ".."
// that climbs above it, or a link inside it that points outside. A session
// that runs command text from an untrusted source (a fuzzer) reads only the
// files it put there.
#pragma once

#include <filesystem>

#include "base/KyString.h"

class KyRefFileFolder {
public:
    explicit KyRefFileFolder(std::filesystem::path folder = {});

    // Whether paths are held to a folder.
    bool isConfined() const { return m_confined; }
    // The folder, resolved; empty when it could not be, and then every path
    // is refused.
    const std::filesystem::path& folder() const { return m_folder; }

    // The path of the file that `typed` names, in `path`; false when it
    // leads outside the folder (then `path` is left as it was).
    bool resolve(const KyString& typed, KyString& path) const;

private:
    std::filesystem::path m_folder;
    bool m_confined = false;
};
