// KyAppSession: what the kydi program runs on: a reference host with one
// drawing open and the data item layer started against it. A script run
// drives the host on its manual clock, which starts at 1000 s and moves only
// when told; the shell uses the real steady clock.
#pragma once

#include <memory>
#include <string>

class KyRefHost;

class KyAppSession {
public:
    enum class Clock { kManual, kReal };

    explicit KyAppSession(Clock clock);
    // Stops the data item layer, then closes the host with its documents.
    ~KyAppSession();
    KyAppSession(const KyAppSession&) = delete;
    KyAppSession& operator=(const KyAppSession&) = delete;

    // Opens the drawing `path` (the bundled sample when empty), starts the
    // data item layer and refreshes once. False with `error` when the
    // drawing can't be opened; the layer is not started then.
    bool start(const std::string& path, std::string& error);

    KyRefHost& host() { return *m_host; }

private:
    std::unique_ptr<KyRefHost> m_host;
    bool m_started = false;
};
