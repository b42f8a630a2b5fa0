// fuzz_script: the kydi program's reading of scripts on any text: each line
// through the statement reader, each word of a statement through the value
// parser, the rest of the line as command text. Beyond not failing, what the
// program prints must read back: a value formatted and read again as a word
// of a statement is the same value, and a quoted text reads back as itself.
#include <optional>
#include <string>

#include "FuzzTarget.h"
#include "KyAppStatementReader.h"
#include "KyAppValue.h"

namespace {

// `value` written by the program, read back from a statement as a script
// would hold it.
void checkReadsBack(const KyAppValue& value) {
    const std::string written = value.format();
    KyAppStatement statement;
    std::string error;
    const bool read = KyAppStatementReader::read("set " + written, statement, error);
    kyfuzz::check(read && statement.words.size() == 1,
                  "a value the program prints is one word of a statement",
                  written + (error.empty() ? "" : " (" + error + ")"));
    const KyAppWord& word = statement.words[0];
    const std::optional<KyAppValue> back = KyAppValue::parse(word.text, word.quoted, error);
    kyfuzz::check(back.has_value() && *back == value,
                  "a value the program prints reads back as the same value",
                  written + " read back as " + (back ? back->format() : "an error: " + error));
}

void checkQuoted(const std::string& text) {
    KyAppStatement statement;
    std::string error;
    const bool read =
        KyAppStatementReader::read("echo " + KyAppValue::quote(text), statement, error);
    kyfuzz::check(read && statement.words.size() == 1 && statement.words[0].quoted &&
                      statement.words[0].text == text,
                  "a quoted text reads back as itself", KyAppValue::quote(text));
}

void readLine(const std::string& line) {
    KyAppStatement statement;
    std::string error;
    if (!KyAppStatementReader::read(line, statement, error)) {
        return;
    }
    KyAppStatementReader::commandText(statement.rest);
    for (const KyAppWord& word : statement.words) {
        error.clear();
        const std::optional<KyAppValue> value = KyAppValue::parse(word.text, word.quoted, error);
        kyfuzz::check(value.has_value() != !error.empty(), "a word is either a value or an error",
                      word.text);
        if (value) {
            checkReadsBack(*value);
        }
        checkQuoted(word.text);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // A script is read line by line, as `kydi run` reads it.
    const std::string_view text = kyfuzz::textOf(data, size);
    std::size_t start = 0;
    while (start <= text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string_view::npos) {
            end = text.size();
        }
        readLine(std::string(text.substr(start, end - start)));
        start = end + 1;
    }
    return 0;
}
