// Resource modules: texts by number and language, read from "<module>.kyres".
// A module is parsed once per process and shared by every instance that names
// the same file.
#include "base/KyRxResourceInstance.h"

#include <dlfcn.h>

#include <cstdlib>
#include <cwctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <mutex>
#include <sstream>
#include <string>
#include <vector>

#include "base/KyString.h"

namespace fs = std::filesystem;

namespace {

constexpr const wchar_t* kBaseLanguage = L"base";
constexpr const char* kExtension = ".kyres";
constexpr const wchar_t* kWideExtension = L".kyres";

std::wstring lowered(std::wstring text) {
    for (wchar_t& ch : text) {
        if (ch < 0x80) {
            ch = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(ch)));
        }
    }
    return text;
}

std::wstring trimmed(const std::wstring& text) {
    size_t first = 0;
    size_t last = text.size();
    while (first < last && std::iswspace(static_cast<wint_t>(text[first]))) {
        ++first;
    }
    while (last > first && std::iswspace(static_cast<wint_t>(text[last - 1]))) {
        --last;
    }
    return text.substr(first, last - first);
}

std::wstring unescaped(const std::wstring& text) {
    std::wstring result;
    result.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == L'\\' && i + 1 < text.size()) {
            const wchar_t next = text[i + 1];
            if (next == L'n' || next == L't' || next == L'\\') {
                result.push_back(next == L'n' ? L'\n' : (next == L't' ? L'\t' : L'\\'));
                ++i;
                continue;
            }
        }
        result.push_back(text[i]);
    }
    return result;
}

// A text id: decimal digits only, within the range of unsigned.
bool parseId(const std::wstring& text, unsigned& id) {
    if (text.empty() || text.size() > 10) {
        return false;
    }
    unsigned long long value = 0;
    for (wchar_t ch : text) {
        if (ch < L'0' || ch > L'9') {
            return false;
        }
        value = value * 10 + static_cast<unsigned>(ch - L'0');
    }
    if (value > 0xFFFFFFFFull) {
        return false;
    }
    id = static_cast<unsigned>(value);
    return true;
}

// The directory of the binary that holds this code (the shared library, or a
// program linked with the platform's objects).
fs::path binaryDirectory() {
    Dl_info info{};
    if (dladdr(reinterpret_cast<void*>(&binaryDirectory), &info) == 0 ||
        info.dli_fname == nullptr) {
        return {};
    }
    std::error_code error;
    fs::path binary = fs::canonical(fs::path(info.dli_fname), error);
    if (error) {
        binary = fs::path(info.dli_fname);
    }
    return binary.parent_path();
}

}  // namespace

struct KyRxResourceInstance::Module {
    // language (lower case, "base" for the base language) -> table -> id -> text
    std::map<std::wstring, std::map<unsigned, std::map<unsigned, std::wstring>>> sections;

    const wchar_t* find(const std::wstring& language, unsigned table, unsigned id) const {
        const auto section = sections.find(language);
        if (section == sections.end()) {
            return nullptr;
        }
        const auto texts = section->second.find(table);
        if (texts == section->second.end()) {
            return nullptr;
        }
        const auto entry = texts->second.find(id);
        return entry != texts->second.end() ? entry->second.c_str() : nullptr;
    }

    // A section header's content: "de" (table 0) or "de:3"; false when the
    // table after the colon is no number.
    static bool parseSection(const std::wstring& content, std::wstring& language, unsigned& table) {
        std::wstring tag = content;
        table = 0;
        if (const size_t colon = content.find(L':'); colon != std::wstring::npos) {
            tag = content.substr(0, colon);
            if (!parseId(trimmed(content.substr(colon + 1)), table)) {
                return false;
            }
        }
        language = lowered(trimmed(tag));
        if (language.empty()) {
            language = kBaseLanguage;
        }
        return true;
    }

    static std::shared_ptr<const Module> parse(const fs::path& file) {
        std::ifstream stream(file, std::ios::binary);
        if (!stream) {
            return nullptr;
        }
        std::string bytes((std::istreambuf_iterator<char>(stream)),
                          std::istreambuf_iterator<char>());
        if (bytes.compare(0, 3, "\xEF\xBB\xBF") == 0) {
            bytes.erase(0, 3);
        }
        auto module = std::make_shared<Module>();
        std::wstring language = kBaseLanguage;
        unsigned table = 0;
        // Lines under a header that can't be read belong to no section.
        bool inSection = true;
        std::wistringstream lines(kyutUtf8ToWide(bytes));
        std::wstring line;
        while (std::getline(lines, line)) {
            const std::wstring content = trimmed(line);
            if (content.empty() || content[0] == L'#') {
                continue;
            }
            if (content.front() == L'[' && content.back() == L']') {
                inSection = parseSection(content.substr(1, content.size() - 2), language, table);
                continue;
            }
            const size_t equals = content.find(L'=');
            unsigned id = 0;
            if (!inSection || equals == std::wstring::npos ||
                !parseId(trimmed(content.substr(0, equals)), id)) {
                continue;  // not a text line: ignored
            }
            module->sections[language][table][id] = unescaped(trimmed(content.substr(equals + 1)));
        }
        return module;
    }

    // The module of `file`, parsed at the first request; null when the file
    // can't be read. Failures are not kept: the file may come later.
    static std::shared_ptr<const Module> shared(const fs::path& file) {
        static auto* s_modules = new std::map<fs::path, std::shared_ptr<const Module>>;
        std::error_code error;
        fs::path key = fs::weakly_canonical(file, error);
        if (error) {
            key = file;
        }
        auto& cached = (*s_modules)[key];
        if (cached == nullptr) {
            cached = parse(file);
            if (cached == nullptr) {
                s_modules->erase(key);
                return nullptr;
            }
        }
        return cached;
    }
};

namespace {

// Process-wide state of resource modules: the language and the added search
// directories; the lock also guards the cache of parsed modules. Made at first
// use and kept for the process, so that instances in static objects can still
// look texts up while the process ends.
struct ResourceState {
    std::mutex mutex;
    std::wstring language = kBaseLanguage;
    std::vector<fs::path> searchPaths;
};

ResourceState& state() {
    static ResourceState* s_state = new ResourceState;
    return *s_state;
}

fs::path widePath(const wchar_t* text) {
    return fs::path(kyutWideToUtf8(text));
}

// Directories searched for a module name, in order.
std::vector<fs::path> searchDirectories(const std::vector<fs::path>& added) {
    std::vector<fs::path> directories;
    if (const char* env = std::getenv("KYDI_RESOURCE_PATH"); env != nullptr) {
        std::string list(env);
        size_t start = 0;
        while (start <= list.size()) {
            size_t end = list.find(':', start);
            if (end == std::string::npos) {
                end = list.size();
            }
            if (end > start) {
                directories.emplace_back(list.substr(start, end - start));
            }
            start = end + 1;
        }
    }
    directories.insert(directories.end(), added.begin(), added.end());
    if (const fs::path binary = binaryDirectory(); !binary.empty()) {
        directories.push_back(binary / ".." / "share" / "kydi" / "resources");
    }
#ifdef KYPLATFORM_INSTALL_RESOURCE_DIR
    directories.emplace_back(KYPLATFORM_INSTALL_RESOURCE_DIR);
#endif
#ifdef KYPLATFORM_SOURCE_RESOURCE_DIR
    directories.emplace_back(KYPLATFORM_SOURCE_RESOURCE_DIR);
#endif
    return directories;
}

bool isFile(const fs::path& path) {
    std::error_code error;
    return fs::is_regular_file(path, error);
}

// The file of a module: a name with a directory or the ".kyres" ending is a
// path; otherwise the first "<name>.kyres" on the search path.
fs::path resolve(const wchar_t* moduleName, const std::vector<fs::path>& added) {
    const std::wstring name = moduleName;
    const std::wstring extension = kWideExtension;
    const bool isPath =
        name.find(L'/') != std::wstring::npos ||
        (name.size() >= extension.size() &&
         name.compare(name.size() - extension.size(), extension.size(), extension) == 0);
    if (isPath) {
        const fs::path path = widePath(moduleName);
        return isFile(path) ? path : fs::path();
    }
    const fs::path fileName = widePath(moduleName).concat(kExtension);
    for (const fs::path& directory : searchDirectories(added)) {
        const fs::path candidate = directory / fileName;
        if (isFile(candidate)) {
            return candidate;
        }
    }
    return {};
}

}  // namespace

KyRxResourceInstance::KyRxResourceInstance(const wchar_t* moduleName) {
    if (moduleName == nullptr || moduleName[0] == L'\0') {
        return;
    }
    ResourceState& shared = state();
    const std::lock_guard<std::mutex> lock(shared.mutex);
    const fs::path file = resolve(moduleName, shared.searchPaths);
    if (file.empty()) {
        return;
    }
    m_module = Module::shared(file);
}

KyRxResourceInstance::~KyRxResourceInstance() = default;

bool KyRxResourceInstance::isLoaded() const {
    return m_module != nullptr;
}

const wchar_t* KyRxResourceInstance::text(unsigned id) const {
    return text(id, 0);
}

const wchar_t* KyRxResourceInstance::text(unsigned id, unsigned table) const {
    if (m_module == nullptr) {
        return nullptr;
    }
    std::wstring language;
    {
        ResourceState& shared = state();
        const std::lock_guard<std::mutex> lock(shared.mutex);
        language = shared.language;
    }
    if (language != kBaseLanguage) {
        if (const wchar_t* found = m_module->find(language, table, id)) {
            return found;
        }
        // "de-ch" falls back to "de" before the base language.
        const size_t separator = language.find_first_of(L"-_");
        if (separator != std::wstring::npos) {
            if (const wchar_t* found = m_module->find(language.substr(0, separator), table, id)) {
                return found;
            }
        }
    }
    return m_module->find(kBaseLanguage, table, id);
}

bool KyRxResourceInstance::hasLanguage(const wchar_t* language) const {
    const std::wstring tag = language != nullptr ? lowered(trimmed(language)) : std::wstring();
    if (tag.empty() || tag == kBaseLanguage) {
        return true;
    }
    return m_module != nullptr && m_module->sections.contains(tag);
}

void KyRxResourceInstance::setLanguage(const wchar_t* language) {
    ResourceState& shared = state();
    const std::lock_guard<std::mutex> lock(shared.mutex);
    std::wstring tag = language != nullptr ? lowered(trimmed(language)) : std::wstring();
    shared.language = tag.empty() ? std::wstring(kBaseLanguage) : tag;
}

const wchar_t* KyRxResourceInstance::language() {
    ResourceState& shared = state();
    const std::lock_guard<std::mutex> lock(shared.mutex);
    return shared.language.c_str();
}

void KyRxResourceInstance::addSearchPath(const wchar_t* directory) {
    if (directory == nullptr || directory[0] == L'\0') {
        return;
    }
    ResourceState& shared = state();
    const std::lock_guard<std::mutex> lock(shared.mutex);
    shared.searchPaths.push_back(widePath(directory));
}
