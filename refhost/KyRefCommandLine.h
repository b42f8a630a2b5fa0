// KyRefCommandLine: the host's command line as a log that tests and the
// program read. Prompts and the echo of the answers typed after them share a
// line, as on a real command line ("Enter new value for LUPREC <4>: 3");
// messages and errors stand on lines of their own.
//
// While muted (the host replays input it has shown already) nothing is
// written.
#pragma once

#include <vector>

#include "base/KyString.h"

class KyRefCommandLine {
public:
    // Appends `text` to the line being written; a newline in it ends that line.
    void write(const wchar_t* text);
    // Ends the line being written, if anything stands on it.
    void endLine();
    // Writes `text` as a line of its own.
    void writeLine(const wchar_t* text);

    // Every line written since the last take, the unfinished one last.
    std::vector<KyString> lines() const;
    // The same, and forgets them: the next take starts after them. A line
    // that was unfinished goes on as a new line.
    std::vector<KyString> takeLines();
    // All lines as one text, each ended by a newline.
    KyString text() const;

    void setMuted(bool muted) { m_muted = muted; }
    bool isMuted() const { return m_muted; }

private:
    std::vector<KyString> m_lines;
    KyString m_current;
    bool m_muted = false;
};
