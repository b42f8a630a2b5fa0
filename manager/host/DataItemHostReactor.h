// Not part of the interface: the data item layer's reactor on the host.
//
// Host events only mark work and ask for a refresh pass; the pass reads the
// drawing. Only the destruction of a document and the end of a quiet stretch
// run a pass of their own.
#pragma once

#include "kydi/KyDiHostReactor.h"

class DataItemHostReactor final : public KyDiHostReactor {
public:
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
};
