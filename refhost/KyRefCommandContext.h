// KyRefCommandContext: what a running command sees: the host, the document
// it works on, its answers and the command line.
//
// Every read shows its prompt and takes one answer. A cancel mark ends the
// command (KyRefCommandCancelled); a text that ends before the answer does
// makes the command wait for more input (KyRefCommandWaiting). An answer that
// starts with "'" and names a transparent command (a variable, SETVAR) runs
// that command inside this one, and the prompt is shown again.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "KyRefCommandInput.h"
#include "KyRefKeywords.h"
#include "base/KyString.h"
#include "db/KyDbObjectId.h"

class KyDbDatabase;
class KyRefCommandInterpreter;
class KyRefDocument;
class KyRefHost;

class KyRefCommandContext {
public:
    // What a run and the transparent commands inside it share.
    struct Shared {
        std::vector<KyString> endedCommands;  // transparent commands that ended, in order
        bool contentChanged = false;
        std::optional<std::wstring> batch;  // command text to run as a batch after the command
    };

    KyRefCommandContext(KyRefCommandInterpreter& interpreter, KyRefCommandInput& input,
                        KyRefDocument* document, const KyString& globalName, int level,
                        Shared& shared);

    KyRefHost& host() const;
    // The document the command works on; null only for a command that runs
    // without one, when none is open.
    KyRefDocument* document() const { return m_document; }
    KyDbDatabase* database() const;
    const KyString& globalName() const { return m_globalName; }

    // ---- Answers

    // A word: a blank ends it as well as a newline.
    KyString readWord(const wchar_t* prompt);
    // A whole line, blanks inside kept: names and texts.
    KyString readLine(const wchar_t* prompt);
    // A name: a whole line, where "=" first says that the name is to be taken
    // as it stands and not as a keyword, and double quotes around it are
    // dropped. It is one name, never a pattern: lists of names that take
    // patterns are read by KyRefLayerNameList.
    KyString readName(const wchar_t* prompt);
    // An answer as a literal name: without a leading "=" and surrounding
    // double quotes.
    static KyString literal(const KyString& answer);
    // An integer from `minimum` to `maximum`; an empty answer takes the
    // default when there is one. Anything else is told and asked again.
    int readInteger(const wchar_t* prompt, int minimum, int maximum,
                    std::optional<int> defaultValue = std::nullopt);
    // One of `keywords` (its index), or -1 for an empty answer when
    // `emptyAllowed`. Anything else is told and asked again.
    int readKeyword(const wchar_t* prompt, std::span<const KyRefKeyword> keywords,
                    bool emptyAllowed);
    // Objects of the drawing given by handle ("1F", "#1F"), one answer each,
    // up to an empty answer. Only entities that are not erased count; the
    // same object given twice counts once.
    std::vector<KyDbObjectId> readEntities(const wchar_t* prompt);

    // ---- The command line

    // A line of its own (printf form, %ls for a wide text).
    void message(const wchar_t* format, ...);
    // An error line; the command ends and what it did is taken back.
    [[noreturn]] void fail(const wchar_t* format, ...);

    // The command changed the drawing by a road that tells no object
    // reactors enough (an undo): the host reports drawingContentChanged.
    void noteContentChanged() { m_shared.contentChanged = true; }

    // ---- After the command

    // Command text (answers one a line) to run as a batch once the command
    // has ended: its commands one after the other in the document, between
    // documentBecameBusy and documentBecameQuiet. False, and nothing to run,
    // while a batch runs already: batches don't nest.
    bool runAsBatch(std::wstring text);

    int level() const { return m_level; }
    Shared& shared() { return m_shared; }
    KyRefCommandInput& input() { return m_input; }

private:
    KyString read(const wchar_t* prompt, bool word);

    KyRefCommandInterpreter& m_interpreter;
    KyRefCommandInput& m_input;
    KyRefDocument* m_document;
    KyString m_globalName;
    int m_level;
    Shared& m_shared;
};
