// KyRefCommandInterpreter: runs what was typed at the host's command line.
// Text is queued and nothing runs until the host is idle; then the commands
// run one at a time, each in a KyRefCommandScope (document lock, undo group),
// and after each the host raises what a real one raises: sysVarChanged for
// every variable that changed, commandEnded with the global name (for the
// transparent commands that ran inside it first), and refreshNeeded(false).
// A cancelled or failed command is taken back and doesn't end: it raises
// only the variable changes and refreshNeeded.
//
// A command word is a command of KyRefCommandTable or the name of a system
// variable (which sets it). In a drawing open read-only, a command that may
// change the drawing (one without kCommandKeepsDrawing, or a drawing
// variable) is refused with an error line before it starts: it raises
// nothing. An empty line at the command prompt does nothing.
// A command whose answers haven't all been typed waits at its prompt: its
// changes are taken back for now, and once more input comes it runs again from
// its start over all of its input, the part shown already not shown twice.
//
// A command may leave command text to run as a batch (BATCH): once it has
// ended, the host raises documentBecameBusy for the document, runs the
// batch's commands one after the other as typed commands (each its own undo
// step, with its own events; one that fails is taken back and the next one
// runs), cancels a command that the batch leaves waiting for an answer, and
// raises documentBecameQuiet. Then the input after the command goes on.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "KyRefCommandWord.h"
#include "base/KyString.h"
#include "kydi/KyDiTypes.h"

class KyRefCommand;
class KyRefCommandContext;
class KyRefCommandInput;
class KyRefCommandLine;
class KyRefHost;
struct KyRefCommandRow;
struct KyRefSysVarRow;

class KyRefCommandInterpreter {
public:
    KyRefCommandInterpreter(KyRefHost& host, KyRefCommandLine& line);

    // Queues `text` as typed input.
    void queue(const wchar_t* text);
    // Runs what the queue holds, as far as it goes.
    void idle();

    bool isRunning() const { return m_running; }
    // True when a command waits at a prompt for its next answer.
    bool isWaiting() const { return !m_waitingName.isEmpty(); }
    // The commands running, or waiting, outermost first, joined by "'" as in
    // "-LAYER'SETVAR"; empty when the host is at the command prompt. A
    // command that sets a variable counts as SETVAR.
    KyString commandNames() const;
    // Input queued and not run yet, after what a waiting command has taken.
    bool hasQueuedInput() const { return !m_queue.empty(); }
    // True while the commands of a batch run.
    bool isRunningBatch() const { return m_runningBatch; }

    // A waiting command is abandoned: its document goes away, or another
    // document comes in front.
    void dropWaitingCommand();

    KyRefHost& host() const { return m_host; }
    KyRefCommandLine& line() const { return m_line; }

private:
    friend class KyRefCommandContext;

    enum class Outcome { kDone, kCancelled, kFailed, kWaiting };

    // A command word resolved: a command of the table or a system variable.
    struct Resolved {
        const KyRefCommandRow* row = nullptr;
        const KyRefSysVarRow* variable = nullptr;
        KyString globalName;  // what commandEnded tells
        KyString activeName;  // what CMDNAMES shows
        KyString label;       // the undo label: the local name
        unsigned flags = 0;
    };

    bool resolve(const KyRefCommandWord& word, Resolved& resolved) const;
    std::unique_ptr<KyRefCommand> make(const Resolved& resolved) const;
    // Runs commands from `input` until it is used up or a command waits.
    void run(KyRefCommandInput& input);
    Outcome runTopLevel(const Resolved& resolved, KyRefCommandInput& input, std::size_t start);
    void runBatch(KyDiDocument document, std::wstring text);

    // For the context: shows a prompt, unless the command replays input
    // shown already. At the answer that made it wait the prompt stands on the
    // command line already, and from there on everything is shown again.
    void showPrompt(const wchar_t* prompt, int level, std::size_t position);
    // For the context: runs `typed` as a transparent command inside `outer`
    // when it is one; false when it is a plain answer.
    bool runTransparent(const KyString& typed, KyRefCommandContext& outer);

    KyRefHost& m_host;
    KyRefCommandLine& m_line;
    std::wstring m_queue;
    // The input a waiting command (or an unfinished command word) took, and
    // how much of it was shown.
    std::wstring m_waitingText;
    std::size_t m_waitingShown = 0;
    KyString m_waitingName;
    KyDiDocument m_waitingDocument = kKyDiNoDocument;
    // While a waiting command replays: the end of what was shown, and
    // whether the command line is muted still.
    std::size_t m_replayEnd = 0;
    bool m_muted = false;
    std::vector<KyString> m_active;
    bool m_running = false;
    bool m_runningBatch = false;
};
