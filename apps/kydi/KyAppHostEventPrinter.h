// KyAppHostEventPrinter: `watch host`. A reactor on the reference host beside
// the data item layer's own, so it hears every event the host raises to the
// system, and prints each as one line: "host", the event's name, then its
// arguments ("host sysVarChanged CLAYER true", "host commandEnded -LAYER").
// The host calls it after the layer's reactor, which it joined later.
#pragma once

#include <ostream>

#include "kydi/KyDiHostReactor.h"

class KyRefHost;

class KyAppHostEventPrinter : public KyDiHostReactor {
public:
    KyAppHostEventPrinter(KyRefHost& host, std::ostream& out);

    void refreshNeeded(bool force) override;
    void documentToBeDestroyed(KyDiDocument document) override;
    void documentDestroyed() override;
    void documentDestructionDone() override;
    void sysVarChanged(const wchar_t* name, bool success) override;
    void sysVarWillChange(const wchar_t* name) override;
    void commandWillStart(const wchar_t* globalCommandName) override;
    void hostStateChanged() override;
    void invalidateAll() override;
    void drawingContentChanged() override;
    void commandEnded(const wchar_t* globalCommandName) override;
    void ucsChanged() override;
    void plotSettingsChanged() override;
    void plotSettingsChangedForLayout(const wchar_t* layoutName) override;
    void layoutChanged() override;
    void documentBecameQuiet(KyDiDocument document) override;
    void documentBecameBusy(KyDiDocument document) override;

private:
    void print(const char* event, const std::string& arguments = std::string());
    std::string nameOf(const wchar_t* name) const;
    std::string documentName(KyDiDocument document) const;

    KyRefHost& m_host;
    std::ostream& m_out;
};
