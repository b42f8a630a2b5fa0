// KyAppStatementReader: reads the lines of a kydi script. One statement a
// line; words are separated by blanks; a part of a word in double quotes may
// hold blanks, with \" and \\ for a quote and a backslash. A `#` at the start
// of a line, or standing alone after a blank, starts a comment (a `#`
// followed by a handle is an object id, not a comment).
#pragma once

#include <string>

#include "KyAppStatement.h"

class KyAppStatementReader {
public:
    // Reads `line` into `statement`. False for a line without a statement:
    // blank or a comment (with `error` empty), or a line that can't be read
    // (with `error` saying why).
    static bool read(const std::string& line, KyAppStatement& statement, std::string& error);

    // The text of a command as the host gets it: \n stands for a new line, \e
    // for the cancel character (code 3), \\ for a backslash; any other
    // backslash stays as it is.
    static std::string commandText(const std::string& text);
};
