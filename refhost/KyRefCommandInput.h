// KyRefCommandInput: the text typed at the command line, read answer by
// answer. A newline ends an answer; at the command prompt and for words a
// blank ends one too ("'LUPREC 4\n" is the command and its answer). A text
// that stops before the end of an answer is not yet an answer: the reader
// reports it incomplete and the host waits for the rest.
//
// Control marks: the character 3, the escape character and the two
// characters "^C" cancel; "^Q" and "^P" (echo switches of menu macros) and
// carriage returns are passed over.
#pragma once

#include <cstddef>
#include <string>

#include "base/KyString.h"

class KyRefCommandInput {
public:
    enum class Kind {
        kAnswer,      // `text` holds the answer (empty for an empty line)
        kCancel,      // a cancel mark, consumed
        kIncomplete,  // the text ends before the answer does; nothing consumed
    };
    struct Answer {
        Kind kind = Kind::kIncomplete;
        KyString text;
    };

    explicit KyRefCommandInput(std::wstring text) : m_text(std::move(text)) {}

    // A word: leading blanks are passed over; a blank or a newline ends it.
    // A word that opens with a double quote runs to the closing quote.
    Answer readWord();
    // A line: up to the newline, without the blanks at either end.
    Answer readLine();
    // The next command at the command prompt: blank lines and passed-over
    // marks go by; a cancel mark is an answer of its own (kCancel).
    Answer readCommandWord();

    std::size_t position() const { return m_position; }
    const std::wstring& text() const { return m_text; }
    // The text not read yet.
    std::wstring rest() const { return m_text.substr(m_position); }

private:
    enum class Mark { kNone, kCancel, kIgnored };
    // The control mark at `at`, and how many characters it takes.
    Mark markAt(std::size_t at, std::size_t& length) const;
    Answer read(bool stopAtBlank);

    std::wstring m_text;
    std::size_t m_position = 0;
};
