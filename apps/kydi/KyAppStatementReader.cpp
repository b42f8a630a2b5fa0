#include "KyAppStatementReader.h"

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

// Where the comment of `line` starts, or its length when it has none. Quotes
// hide a `#`.
std::size_t commentStart(const std::string& line) {
    bool inQuotes = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (inQuotes) {
            if (c == '\\' && i + 1 < line.size()) {
                ++i;
            } else if (c == '"') {
                inQuotes = false;
            }
            continue;
        }
        if (c == '"') {
            inQuotes = true;
            continue;
        }
        if (c != '#') {
            continue;
        }
        bool first = true;
        for (std::size_t j = 0; j < i; ++j) {
            first = first && isBlank(line[j]);
        }
        const bool afterBlank = i > 0 && isBlank(line[i - 1]);
        const bool alone = i + 1 == line.size() || isBlank(line[i + 1]);
        if (first || (afterBlank && alone)) {
            return i;
        }
    }
    return line.size();
}

}  // namespace

bool KyAppStatementReader::read(const std::string& line, KyAppStatement& statement,
                                std::string& error) {
    error.clear();
    statement = KyAppStatement();
    std::string text = line.substr(0, commentStart(line));
    while (!text.empty() && isBlank(text.back())) {
        text.pop_back();
    }

    std::size_t i = 0;
    bool haveName = false;
    while (i < text.size()) {
        while (i < text.size() && isBlank(text[i])) {
            ++i;
        }
        if (i == text.size()) {
            break;
        }
        if (haveName && statement.words.empty() && statement.rest.empty()) {
            statement.rest = text.substr(i);
        }
        KyAppWord word;
        const std::size_t start = i;
        bool quotedParts = false;
        bool unquotedParts = false;
        while (i < text.size() && !isBlank(text[i])) {
            if (text[i] != '"') {
                word.text += text[i++];
                unquotedParts = true;
                continue;
            }
            quotedParts = true;
            ++i;
            bool closed = false;
            while (i < text.size()) {
                const char c = text[i++];
                if (c == '"') {
                    closed = true;
                    break;
                }
                if (c == '\\' && i < text.size() && (text[i] == '"' || text[i] == '\\')) {
                    word.text += text[i++];
                } else {
                    word.text += c;
                }
            }
            if (!closed) {
                error = "unterminated quotes in " + text.substr(start);
                return false;
            }
        }
        word.quoted = quotedParts && !unquotedParts;
        if (!haveName) {
            statement.name = word.text;
            haveName = true;
        } else {
            statement.words.push_back(std::move(word));
        }
    }
    return haveName;
}

std::string KyAppStatementReader::commandText(const std::string& text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size()) {
            out += text[i];
            continue;
        }
        switch (text[i + 1]) {
            case 'n':
                out += '\n';
                ++i;
                break;
            case 'e':
                out += '\x03';
                ++i;
                break;
            case '\\':
                out += '\\';
                ++i;
                break;
            default:
                out += '\\';
                break;
        }
    }
    return out;
}
