#include "KyAppSession.h"

#include "KyAppSampleDrawing.h"
#include "KyRefHost.h"
#include "kydi/KyDiManager.h"

namespace {

KyRefHostOptions optionsFor(KyAppSession::Clock clock) {
    KyRefHostOptions options;
    options.manualClock = clock == KyAppSession::Clock::kManual;
    return options;
}

}  // namespace

KyAppSession::KyAppSession(Clock clock) : m_host(std::make_unique<KyRefHost>(optionsFor(clock))) {
    // A script has nobody to answer the host's questions.
    m_host->documents().setPromptsAllowed(clock == Clock::kReal);
}

KyAppSession::~KyAppSession() {
    if (m_started) {
        KyDiManager::uninitialize();
        KyDiManager::uninitializeXRefHost();
    }
    m_host.reset();
}

bool KyAppSession::start(const std::string& path, std::string& error) {
    const std::string file = path.empty() ? KyAppSampleDrawing::path() : path;
    if (file.empty()) {
        error = "the sample drawing is neither installed nor in the source tree";
        return false;
    }
    KyString problem;
    if (m_host->documents().openDocument(KyString::fromUtf8(file), problem) == nullptr) {
        error = problem.utf8();
        return false;
    }
    // The host also serves the background shown behind external references.
    KyDiManager::initializeXRefHost(&m_host->externalReferenceHost());
    KyDiManager::initialize(m_host.get());
    m_started = true;
    KyDiManager::refresh();
    return true;
}
