// fuzz_commands: the reference host's command interpreter on typed command
// text. One host and one start of the data item layer serve the process
// (the layer starts once per process), with every known collection and
// every context made, so that each refresh has something to follow. Each
// input runs on a new drawing of its own: the text is typed, the host runs
// its queue, the data item layer refreshes, and the drawing closes. The
// session variables go back to what they were, so that no input depends on
// the ones before it. An input that starts with the byte 01 runs in the
// platform's second language, where commands and keywords have local names.
//
// The host reads the files that commands name (BATCH, XATTACH) only in a
// scratch folder the target makes and fills with a few files of its own.
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "DrawingCheck.h"
#include "FuzzTarget.h"
#include "KyAppContextList.h"
#include "KyRefHost.h"
#include "base/KyRxResourceInstance.h"
#include "db/KyDbOpenObject.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiManager.h"

namespace {

namespace fs = std::filesystem;

// The files of the scratch folder, by name.
const std::pair<const char*, const char*> kFiles[] = {
    {"walls.batch", "-LAYER\n_New\nWalls\n\nCLAYER\nWalls\nCIRCLE\n0,0\n5\n"},
    {"nested.batch", "BATCH\nwalls.batch\nLUPREC\n3\n"},
    {"open.batch", "-LAYER\n_New\n"},
    {"site.kyd", R"({"format": "kydrawing", "version": 1,
        "linetypes": [{"handle": "14", "name": "ByBlock"}, {"handle": "15", "name": "ByLayer"},
                      {"handle": "16", "name": "Continuous"},
                      {"handle": "17", "name": "DASHED", "pattern": [0.5, -0.25]}],
        "layers": [{"handle": "10", "name": "0"},
                   {"handle": "20", "name": "Walls", "color": 1, "linetype": "DASHED"},
                   {"handle": "21", "name": "Trees", "color": 3, "off": true}]})"},
    {"broken.kyd", R"({"format": "kydrawing", "version": 1, "layers": 5})"},
};

class Session {
public:
    Session()
        : m_folder(fs::temp_directory_path() / ("kydi-fuzz-commands-" + std::to_string(getpid()))),
          m_host(std::make_unique<KyRefHost>(makeFolder(m_folder))) {
        // Nobody answers the host's questions.
        m_host->documents().setPromptsAllowed(false);
        m_host->documents().newDocument();
        KyDiManager::initializeXRefHost(&m_host->externalReferenceHost());
        KyDiManager::initialize(m_host.get());
        const KyDiKnownCollectionNames names = KyDiGetKnownCollectionNames();
        for (int i = 0; i < names.length(); ++i) {
            if (names[i].available) {
                KyDiManager::getKnownCollection(names[i].name);
            }
        }
        KyAppContextList::makeAll();
        close();
        m_sessionValues = m_host->sysVars().sessionValues();
    }

    void run(std::string_view text) {
        const bool local = !text.empty() && text.front() == '\x01';
        if (local) {
            text.remove_prefix(1);
            KyRxResourceInstance::setLanguage(L"de");
        }
        m_host->documents().newDocument();
        const long long openBefore = kydbOpenObjectCount();
        m_host->editor()->sendCommand(KyString::fromUtf8(std::string(text)), false, false, true);
        m_host->idle();
        KyDiManager::refresh();
        kyfuzz::check(kydbOpenObjectCount() == openBefore, "the commands leave nothing open");
        kyfuzz::checkWritten(m_host->documents().currentDatabase());
        close();
        m_host->sysVars().restoreSessionValues(m_sessionValues);
        if (local) {
            KyRxResourceInstance::setLanguage(L"");
        }
    }

    // Stops the data item layer, then closes the host, as the program does
    // at its end, and removes the scratch folder.
    ~Session() {
        KyDiManager::uninitialize();
        KyDiManager::uninitializeXRefHost();
        m_host.reset();
        std::error_code error;
        fs::remove_all(m_folder, error);
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

private:
    static KyRefHostOptions makeFolder(const fs::path& folder) {
        fs::create_directories(folder);
        for (const auto& [name, text] : kFiles) {
            std::ofstream(folder / name, std::ios::binary) << text;
        }
        KyRefHostOptions options;
        options.manualClock = true;
        options.fileFolder = folder;
        return options;
    }

    // Closes every document, lets the host release them, and refreshes.
    // What the host keeps for a test to read (the command line, the texts
    // sent) goes too: an input leaves behind only what the process keeps.
    void close() {
        m_host->documents().closeAll();
        m_host->idle();
        KyDiManager::refresh();
        m_host->commandLine().takeLines();
        m_host->editor()->takeSentCommands();
    }

    fs::path m_folder;
    std::unique_ptr<KyRefHost> m_host;
    KyRefSysVarStore::SessionValues m_sessionValues;
};

Session* g_session = nullptr;

// The session ends when the process does. Statics that a later input made
// first go before it; ending the data item layer after them would show as a
// use after free under the sanitizers, and the replay of every seed ends a
// session this way.
void endSession() {
    delete g_session;
    g_session = nullptr;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (g_session == nullptr) {
        g_session = new Session();
        std::atexit(&endSession);
    }
    g_session->run(kyfuzz::textOf(data, size));
    return 0;
}
