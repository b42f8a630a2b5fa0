// KyAppStatement: one statement of a kydi script, as KyAppStatementReader
// reads it from a line: the statement's name, the words after it, and the
// rest of the line as written, for the statements that take a text
// (`echo`, `command`).
#pragma once

#include <string>
#include <vector>

struct KyAppWord {
    std::string text;
    // The whole word stood in double quotes: it is a text, whatever it holds.
    bool quoted = false;
};

struct KyAppStatement {
    std::string name;
    std::vector<KyAppWord> words;
    // The line after the name and the blanks that follow it, without a
    // comment and trailing blanks.
    std::string rest;
};
