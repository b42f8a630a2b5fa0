// KyDiEditorService: the host's command line and system variables. Writes
// that the host must see as the user's own actions reach it as command text
// queued here; the host runs the text later, on its main thread, and reports
// the effect through KyDiHostReactor.
#pragma once

#include "base/KyroErrorStatus.h"
#include "base/resbuf.h"
#include "kydi/KyDiExport.h"

class KYDI_API KyDiEditorService {
public:
    virtual ~KyDiEditorService() = default;

    // Queues `text` as command-line input, as if typed: "'" first makes a
    // command transparent, "_" selects the global command name, a newline
    // ends each answer. Nothing has run when the call returns. The three
    // flags belong to the host; every caller passes the values it is written
    // with. Answers Kyro::eOk when the text was queued.
    virtual Kyro::ErrorStatus sendCommand(const wchar_t* text, bool flag1, bool flag2,
                                          bool flag3) = 0;
    // Reads system variable `name` into `out` (its string, if any, then
    // belongs to `out`); KYRT_NORM (5100) on success, KYRT_REJECTED for an
    // unknown name.
    virtual int getVar(const wchar_t* name, resbuf* out) = 0;
    // Writes system variable `name`; KYRT_NORM on success, KYRT_REJECTED when
    // the name is unknown, the variable read-only or the value out of range.
    virtual int setVar(const wchar_t* name, const resbuf* value) = 0;
    // Prints `text` on the command line; an empty text closes the line.
    virtual void prompt(const wchar_t* text) = 0;
    // Opens a named command scope, so that the writes up to endCommand are
    // one command for undo.
    virtual void beginCommand(const wchar_t* name) = 0;
    // Closes the scope that beginCommand opened under `name`.
    virtual void endCommand(const wchar_t* name) = 0;
    // The command name `name` in the user's language (an undo label); the
    // text stays valid until the next call.
    virtual const wchar_t* localCommandName(const wchar_t* name) = 0;
};
