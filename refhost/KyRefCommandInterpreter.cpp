#include "KyRefCommandInterpreter.h"

#include <utility>

#include "KyRefCommand.h"
#include "KyRefCommandContext.h"
#include "KyRefCommandInput.h"
#include "KyRefCommandLine.h"
#include "KyRefCommandOutcome.h"
#include "KyRefCommandScope.h"
#include "KyRefCommandTable.h"
#include "KyRefDocument.h"
#include "KyRefDocumentManager.h"
#include "KyRefHost.h"
#include "KyRefLanguage.h"
#include "KyRefSetVarCommand.h"
#include "KyRefSysVarTable.h"

namespace {

constexpr const wchar_t* kSetVarName = L"SETVAR";

// Keeps a command's name on the list of running commands for its run.
class ActiveCommand {
public:
    ActiveCommand(std::vector<KyString>& active, const KyString& name) : m_active(active) {
        m_active.push_back(name);
    }
    ~ActiveCommand() { m_active.pop_back(); }
    ActiveCommand(const ActiveCommand&) = delete;
    ActiveCommand& operator=(const ActiveCommand&) = delete;

private:
    std::vector<KyString>& m_active;
};

bool isBlankText(const std::wstring& text) {
    return text.find_first_not_of(L" \t\r\n") == std::wstring::npos;
}

// True when a command of `flags` would change `document`, which the host
// holds read-only: such a command is refused before it runs.
bool refusedAsReadOnly(const KyRefDocument* document, unsigned flags) {
    return document != nullptr && document->isReadOnly() && (flags & kCommandKeepsDrawing) == 0;
}

KyString readOnlyLine(const KyRefDocument& document) {
    return KyString::formatted(L"The drawing \"%ls\" is open read-only and can't be changed.",
                               document.name().kwszPtr());
}

}  // namespace

KyRefCommandInterpreter::KyRefCommandInterpreter(KyRefHost& host, KyRefCommandLine& line)
    : m_host(host), m_line(line) {}

void KyRefCommandInterpreter::queue(const wchar_t* text) {
    if (text != nullptr) {
        m_queue.append(text);
    }
}

KyString KyRefCommandInterpreter::commandNames() const {
    KyString names;
    for (const KyString& name : m_active) {
        if (!names.isEmpty()) {
            names.append(L'\'');
        }
        names.append(name);
    }
    if (names.isEmpty()) {
        names = m_waitingName;
    }
    return names;
}

void KyRefCommandInterpreter::dropWaitingCommand() {
    if (!m_waitingName.isEmpty()) {
        m_line.write(L"*Cancel*");
        m_line.endLine();
    }
    m_waitingText.clear();
    m_waitingShown = 0;
    m_waitingName.setEmpty();
    m_waitingDocument = kKyDiNoDocument;
}

void KyRefCommandInterpreter::idle() {
    if (m_running) {
        return;
    }
    m_running = true;
    // Commands and the reactors they wake may queue more input: it runs in
    // this same pass.
    while (!m_queue.empty()) {
        if (isWaiting() && m_host.documents().currentDocument() != m_waitingDocument) {
            dropWaitingCommand();
        }
        std::wstring text = m_waitingText + m_queue;
        m_replayEnd = m_waitingShown;
        m_queue.clear();
        m_waitingText.clear();
        m_waitingShown = 0;
        m_waitingName.setEmpty();
        m_waitingDocument = kKyDiNoDocument;
        KyRefCommandInput input(std::move(text));
        run(input);
    }
    m_running = false;
}

void KyRefCommandInterpreter::run(KyRefCommandInput& input) {
    for (;;) {
        const std::size_t start = input.position();
        m_muted = start < m_replayEnd;
        m_line.setMuted(m_muted);
        const KyRefCommandInput::Answer answer = input.readCommandWord();
        if (answer.kind == KyRefCommandInput::Kind::kIncomplete) {
            // A command word not finished yet waits for the rest; it was not
            // shown.
            if (!isBlankText(input.rest())) {
                m_waitingText = input.rest();
            }
            break;
        }
        if (answer.kind == KyRefCommandInput::Kind::kCancel) {
            m_line.writeLine(L"Command: *Cancel*");
            continue;
        }
        m_line.write(L"Command: ");
        m_line.write(answer.text);
        m_line.endLine();
        Resolved resolved;
        const KyRefCommandWord word = KyRefCommandWord::parse(answer.text);
        if (!resolve(word, resolved)) {
            m_line.writeLine(KyString::formatted(
                L"Unknown command \"%ls\".",
                word.name.isEmpty() ? answer.text.kwszPtr() : word.name.kwszPtr()));
            continue;
        }
        if (runTopLevel(resolved, input, start) == Outcome::kWaiting) {
            break;
        }
    }
    m_muted = false;
    m_line.setMuted(false);
}

bool KyRefCommandInterpreter::resolve(const KyRefCommandWord& word, Resolved& resolved) const {
    if (word.name.isEmpty()) {
        return false;
    }
    if (const KyRefCommandRow* row = KyRefCommandTable::find(word)) {
        resolved.row = row;
        resolved.globalName = row->globalName;
        resolved.activeName = row->globalName;
        resolved.label = KyRefLanguage::pick(row->globalName, row->localName);
        resolved.flags = row->flags;
        return true;
    }
    if (const KyRefSysVarRow* variable = KyRefSysVarTable::find(word.name)) {
        resolved.variable = variable;
        resolved.globalName = variable->name;
        resolved.activeName = kSetVarName;
        resolved.label = variable->name;
        // A session variable can be set with no drawing open.
        resolved.flags = kCommandTransparent;
        if (!variable->isDrawing()) {
            resolved.flags |= kCommandWithoutDocument | kCommandKeepsDrawing;
        }
        return true;
    }
    return false;
}

std::unique_ptr<KyRefCommand> KyRefCommandInterpreter::make(const Resolved& resolved) const {
    if (resolved.row != nullptr) {
        return resolved.row->make();
    }
    return std::make_unique<KyRefSetVarCommand>(resolved.variable);
}

KyRefCommandInterpreter::Outcome KyRefCommandInterpreter::runTopLevel(const Resolved& resolved,
                                                                      KyRefCommandInput& input,
                                                                      std::size_t start) {
    KyRefDocument* document = m_host.documents().current();
    if (document != nullptr && document->database() == nullptr) {
        document = nullptr;
    }
    if (document == nullptr && (resolved.flags & kCommandWithoutDocument) == 0) {
        m_line.writeLine(L"No drawing is open.");
        return Outcome::kFailed;
    }
    if (refusedAsReadOnly(document, resolved.flags)) {
        m_line.writeLine(readOnlyLine(*document));
        return Outcome::kFailed;
    }
    const std::unique_ptr<KyRefCommand> command = make(resolved);
    KyRefCommandScope scope(m_host, document, resolved.label);
    if (!m_muted) {
        m_host.events().raiseCommandWillStart(resolved.globalName);
    }
    KyRefCommandContext::Shared shared;
    KyRefCommandContext context(*this, input, document, resolved.globalName, 0, shared);
    Outcome outcome = Outcome::kDone;
    std::size_t waitingAt = start;
    {
        const ActiveCommand active(m_active, resolved.activeName);
        try {
            command->run(context);
        } catch (const KyRefCommandCancelled&) {
            outcome = Outcome::kCancelled;
        } catch (const KyRefCommandFailed&) {
            outcome = Outcome::kFailed;
        } catch (const KyRefCommandWaiting& waiting) {
            outcome = Outcome::kWaiting;
            waitingAt = waiting.position;
        }
    }
    if (outcome == Outcome::kDone) {
        scope.commit();
    } else {
        scope.rollback();
    }
    const std::vector<KyString> changed = scope.close();
    m_muted = false;
    m_line.setMuted(false);

    if (outcome == Outcome::kWaiting) {
        // Shown so far: the command up to the answer it waits for.
        m_waitingText = input.text().substr(start);
        m_waitingShown = waitingAt - start;
        m_waitingName = resolved.activeName;
        m_waitingDocument = document != nullptr ? document->handle() : kKyDiNoDocument;
        m_host.raiseVariableChanges(changed);
        if (scope.tookBack()) {
            m_host.events().raiseRefreshNeeded(false);
        }
        return outcome;
    }
    m_host.raiseVariableChanges(changed);
    if (outcome == Outcome::kDone) {
        if (shared.contentChanged) {
            m_host.events().raiseDrawingContentChanged();
        }
        for (const KyString& name : shared.endedCommands) {
            m_host.events().raiseCommandEnded(name);
        }
        m_host.events().raiseCommandEnded(resolved.globalName);
    }
    m_host.events().raiseRefreshNeeded(false);
    if (outcome == Outcome::kDone && shared.batch.has_value() && document != nullptr) {
        runBatch(document->handle(), std::move(*shared.batch));
    }
    return outcome;
}

void KyRefCommandInterpreter::runBatch(KyDiDocument document, std::wstring text) {
    m_host.events().raiseDocumentBecameBusy(document);
    // The batch is new input: nothing of it has been shown.
    const std::size_t replayEnd = std::exchange(m_replayEnd, 0);
    m_runningBatch = true;
    KyRefCommandInput input(std::move(text));
    run(input);
    // The batch is all the input its commands get.
    dropWaitingCommand();
    m_runningBatch = false;
    m_replayEnd = replayEnd;
    m_host.events().raiseDocumentBecameQuiet(document);
}

void KyRefCommandInterpreter::showPrompt(const wchar_t* prompt, int level, std::size_t position) {
    if (m_muted && position >= m_replayEnd) {
        m_muted = false;
        m_line.setMuted(false);
        return;
    }
    if (level > 0) {
        m_line.write(L">>");
    }
    m_line.write(prompt);
}

bool KyRefCommandInterpreter::runTransparent(const KyString& typed, KyRefCommandContext& outer) {
    const KyRefCommandWord word = KyRefCommandWord::parse(typed);
    Resolved resolved;
    if (!word.transparent || !resolve(word, resolved)) {
        return false;
    }
    if ((resolved.flags & kCommandTransparent) == 0) {
        m_line.writeLine(L"** That command may not be invoked transparently **");
        return true;
    }
    if (refusedAsReadOnly(outer.document(), resolved.flags)) {
        m_line.writeLine(readOnlyLine(*outer.document()));
        return true;
    }
    const std::unique_ptr<KyRefCommand> command = make(resolved);
    if (!m_muted) {
        m_host.events().raiseCommandWillStart(resolved.globalName);
    }
    KyRefCommandContext nested(*this, outer.input(), outer.document(), resolved.globalName,
                               outer.level() + 1, outer.shared());
    const ActiveCommand active(m_active, resolved.activeName);
    try {
        command->run(nested);
        outer.shared().endedCommands.push_back(resolved.globalName);
    } catch (const KyRefCommandFailed&) {
        // A transparent command checks before it writes: a failed one changed
        // nothing, and the command around it asks again.
    }
    return true;
}
