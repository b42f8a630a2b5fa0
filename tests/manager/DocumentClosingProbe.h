// A listener of the host's own that runs a check at the moment the host
// announces that a document is about to be destroyed. Registered after the
// layer's reactor, it is called once the layer has handled the event, while
// the host still answers the closing document as current.
#pragma once

#include <functional>
#include <utility>

#include "KyRefHost.h"
#include "kydi/KyDiHostReactor.h"

namespace kytest {

class DocumentClosingProbe final : public KyDiHostReactor {
public:
    DocumentClosingProbe(KyRefHost& host, std::function<void(KyDiDocument)> check)
        : m_host(host), m_check(std::move(check)) {
        m_host.addReactor(this);
    }
    ~DocumentClosingProbe() override { m_host.removeReactor(this); }
    DocumentClosingProbe(const DocumentClosingProbe&) = delete;
    DocumentClosingProbe& operator=(const DocumentClosingProbe&) = delete;

    void documentToBeDestroyed(KyDiDocument document) override {
        ++calls;
        m_check(document);
    }

    void refreshNeeded(bool) override {}
    void documentDestroyed() override {}
    void documentDestructionDone() override {}
    void sysVarChanged(const wchar_t*, bool) override {}
    void sysVarWillChange(const wchar_t*) override {}
    void commandWillStart(const wchar_t*) override {}
    void hostStateChanged() override {}
    void invalidateAll() override {}
    void drawingContentChanged() override {}
    void commandEnded(const wchar_t*) override {}
    void ucsChanged() override {}
    void plotSettingsChanged() override {}
    void plotSettingsChangedForLayout(const wchar_t*) override {}
    void layoutChanged() override {}
    void documentBecameQuiet(KyDiDocument) override {}
    void documentBecameBusy(KyDiDocument) override {}

    int calls = 0;

private:
    KyRefHost& m_host;
    std::function<void(KyDiDocument)> m_check;
};

}  // namespace kytest
