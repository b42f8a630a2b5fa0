// KyRefEditor: the reference host's command line and system variables, as the
// data item layer sees them (KyDiEditorService). Command text is queued and
// runs when the host is idle (KyRefCommandInterpreter); getVar and setVar go
// to the host's store; named command scopes group direct writes as one
// command for undo and end with the events of a command.
#pragma once

#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

#include "KyRefCommandInterpreter.h"
#include "base/KyString.h"
#include "kydi/KyDiEditorService.h"

class KyRefCommandScope;
class KyRefDocument;
class KyRefHost;

class KyRefEditor : public KyDiEditorService {
public:
    // A text queued by sendCommand, with its flags as given.
    struct SentCommand {
        KyString text;
        bool flag1 = false;
        bool flag2 = false;
        bool flag3 = false;
    };

    explicit KyRefEditor(KyRefHost& host);
    ~KyRefEditor() override;

    // Queues `text`; nothing runs until idle().
    Kyro::ErrorStatus sendCommand(const wchar_t* text, bool flag1, bool flag2, bool flag3) override;
    // KYRT_NORM, KYRT_REJECTED for an unknown name, KYRT_ERROR for a drawing
    // variable without a drawing.
    int getVar(const wchar_t* name, resbuf* out) override;
    // KYRT_NORM; KYRT_REJECTED for an unknown or read-only name, a value of
    // the wrong type or out of range; KYRT_ERROR without a drawing for a
    // drawing variable, or when the drawing refused the write (no lock).
    int setVar(const wchar_t* name, const resbuf* value) override;
    // Writes on the command line; an empty text ends the line.
    void prompt(const wchar_t* text) override;
    // A named scope on the current document: the document lock, an undo
    // group, and at its end the events of a command: sysVarChanged for the
    // variables that changed, commandEnded(name), refreshNeeded(false).
    void beginCommand(const wchar_t* name) override;
    // Ends the innermost scope if it has that name (any case).
    void endCommand(const wchar_t* name) override;
    // The name in the host's language; a name it doesn't know as it is.
    const wchar_t* localCommandName(const wchar_t* name) override;

    // ---- The host's side
    void idle() { m_interpreter.idle(); }
    KyRefCommandInterpreter& interpreter() { return m_interpreter; }
    // CMDNAMES: the commands running or waiting, then the named scopes.
    KyString commandNames() const;
    // Every text sent, in order, with its flags.
    const std::vector<SentCommand>& sentCommands() const { return m_sent; }
    std::vector<SentCommand> takeSentCommands();
    // The names of the variables asked for through getVar, each once, in the
    // order first asked and the spelling first used.
    const std::vector<KyString>& variablesAsked() const { return m_variablesAsked; }
    // Closes, without events, the named scopes left open on `document`,
    // which is closing.
    void closeScopes(KyRefDocument& document);

private:
    struct Scope {
        KyString name;
        std::unique_ptr<KyRefCommandScope> scope;
    };

    KyRefHost& m_host;
    KyRefCommandInterpreter m_interpreter;
    std::vector<Scope> m_scopes;
    std::vector<SentCommand> m_sent;
    std::vector<KyString> m_variablesAsked;
    // The same names in upper case, to find one at once: every read of a
    // variable asks.
    std::unordered_set<std::wstring> m_variablesAskedKeys;
    KyString m_localName;
};
