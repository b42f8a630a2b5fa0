// KyDiHostReactor: the events that the host application raises towards the
// data item layer. The data item layer registers one reactor with
// KyDiHost::addReactor when it starts and takes it back when it stops; the
// host calls these operations on its main thread, at the moments described
// below. Handlers only mark work: what reads the drawing is the refresh pass
// that refreshNeeded asks for.
#pragma once

#include "kydi/KyDiExport.h"
#include "kydi/KyDiTypes.h"

class KYDI_API KyDiHostReactor {
public:
    KyDiHostReactor();
    virtual ~KyDiHostReactor();

    // The host asks the data item layer to bring its objects up to date.
    // Without `force`, a call that follows the last refresh closely is dropped.
    virtual void refreshNeeded(bool force) = 0;

    // `document` is about to be closed. The data item layer lets go of
    // everything that refers to it and treats it as gone from here on, even
    // while the document manager still answers it as current.
    virtual void documentToBeDestroyed(KyDiDocument document) = 0;
    // The document announced by documentToBeDestroyed has left memory.
    virtual void documentDestroyed() = 0;
    // The host has finished closing that document; a new current document
    // may be answered from now on.
    virtual void documentDestructionDone() = 0;

    // A system variable was written; `success` is false when the write was
    // refused, and such a report changes nothing.
    virtual void sysVarChanged(const wchar_t* name, bool success) = 0;
    // A system variable is about to be written. Raised for the host's other
    // listeners; the data item layer ignores it.
    virtual void sysVarWillChange(const wchar_t* name) = 0;
    // A command is about to run, under its global name. Raised for the host's
    // other listeners; the data item layer ignores it.
    virtual void commandWillStart(const wchar_t* globalCommandName) = 0;

    // Something that the collections derive from has changed in the host
    // (the selection, the editing state).
    virtual void hostStateChanged() = 0;
    // Everything shown may be stale: contexts and collections look again.
    virtual void invalidateAll() = 0;
    // The drawing's content changed by a road that sends no object events
    // (an undo, a reload, an external reference attached).
    virtual void drawingContentChanged() = 0;
    // A command ended, under its global name.
    virtual void commandEnded(const wchar_t* globalCommandName) = 0;
    // The current user coordinate system changed.
    virtual void ucsChanged() = 0;

    // The plot settings of the current layout changed.
    virtual void plotSettingsChanged() = 0;
    // The plot settings of the named layout changed. The data item layer reads
    // the plot settings of the current layout only, so this has the effect of
    // plotSettingsChanged whatever the layout.
    virtual void plotSettingsChangedForLayout(const wchar_t* layoutName) = 0;
    // Another layout was made current.
    virtual void layoutChanged() = 0;

    // The host ended a stretch of work in `document` (see documentBecameBusy).
    // For the current document the data item layer refreshes at once and
    // reports what changed; for any other document nothing happens.
    virtual void documentBecameQuiet(KyDiDocument document) = 0;
    // The host begins a stretch of work in `document` whose changes are not
    // to be reported. For the current document the data item layer drops what
    // it had pending and takes the present values as known; for any other
    // document nothing happens.
    virtual void documentBecameBusy(KyDiDocument document) = 0;
};
