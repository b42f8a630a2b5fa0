// KyRefHostEventLines: a host reactor that writes every event it hears as one
// line of text: the event's name, then its arguments ("sysVarChanged CLAYER
// true", "commandEnded -LAYER", "documentToBeDestroyed Drawing1"). The
// program's `watch host` and the tests that assert the host's events both
// read the events this way; each says where a line goes and how names and
// documents are written.
#pragma once

#include <string>

#include "kydi/KyDiHostReactor.h"

class KyRefHostEventLines : public KyDiHostReactor {
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

protected:
    // Takes the line of one event, as the event arrives.
    virtual void line(const std::string& text) = 0;
    // A variable's, command's or layout's name as the line shows it; UTF-8 as
    // it stands unless a reader needs it otherwise.
    virtual std::string nameText(const wchar_t* name) const;
    // A document as the line shows it; its handle unless a reader knows it
    // by another name.
    virtual std::string documentText(KyDiDocument document) const;

private:
    void event(const char* name, const std::string& arguments = std::string());
};
