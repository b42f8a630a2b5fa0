// How a line of a kydi script reads: the statement's name and words, quoted
// words, comments, the rest of the line for the statements that take a text,
// and the escapes of command text.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "KyAppStatementReader.h"

namespace {

struct Read {
    bool found = false;
    std::string error;
    KyAppStatement statement;
};

Read read(const std::string& line) {
    Read out;
    out.found = KyAppStatementReader::read(line, out.statement, out.error);
    return out;
}

std::vector<std::string> words(const std::string& line) {
    std::vector<std::string> out;
    for (const KyAppWord& word : read(line).statement.words) {
        out.push_back(word.quoted ? "<" + word.text + ">" : word.text);
    }
    return out;
}

using Words = std::vector<std::string>;

}  // namespace

TEST(StatementReader, NameAndWordsAreSplitAtBlanks) {
    const Read result = read("  set LAYER   Walls\tColor aci:1  ");
    ASSERT_TRUE(result.found);
    EXPECT_EQ(result.statement.name, "set");
    EXPECT_EQ(words("  set LAYER   Walls\tColor aci:1  "),
              (Words{"LAYER", "Walls", "Color", "aci:1"}));
    EXPECT_EQ(result.statement.rest, "LAYER   Walls\tColor aci:1");
    EXPECT_TRUE(read("idle\r").found) << "a line from a file with CR LF ends";
    EXPECT_EQ(read("idle\r").statement.name, "idle");
}

TEST(StatementReader, QuotesHoldBlanksAndMarkAWholeWordAsText) {
    EXPECT_EQ(words("current LAYER \"Hidden Lines\""), (Words{"LAYER", "<Hidden Lines>"}));
    EXPECT_EQ(words("sysvar LUPREC \"3\""), (Words{"LUPREC", "<3>"}));
    EXPECT_EQ(words("echo \"\""), (Words{"<>"}));
    EXPECT_EQ(words("x \"say \\\"hi\\\"\" \"C:\\\\plans\""),
              (Words{"<say \"hi\">", "<C:\\plans>"}));
    EXPECT_EQ(words("x book:\"RAL CLASSIC$RAL 3020\""), (Words{"book:RAL CLASSIC$RAL 3020"}))
        << "a quoted part inside a word leaves the word a form";
}

TEST(StatementReader, CommentsStartAtTheLineOrAtALoneHash) {
    EXPECT_FALSE(read("# a comment").found);
    EXPECT_TRUE(read("# a comment").error.empty());
    EXPECT_FALSE(read("   #select #1F").found);
    EXPECT_FALSE(read("").found);
    EXPECT_FALSE(read("   ").found);
    EXPECT_EQ(words("select #1F #2A # the doors"), (Words{"#1F", "#2A"}));
    EXPECT_EQ(read("echo done # end").statement.rest, "done");
    EXPECT_EQ(read("echo done #").statement.rest, "done");
    EXPECT_EQ(words("echo \"a # b\""), (Words{"<a # b>"})) << "quotes hide a hash";
    EXPECT_EQ(words("echo a#b"), (Words{"a#b"}));
}

TEST(StatementReader, TheRestOfTheLineIsKeptAsWritten) {
    const Read result = read("command '_.-LAYER\\n_COLOR\\n1\\n=Walls\\n\\n");
    EXPECT_EQ(result.statement.name, "command");
    EXPECT_EQ(result.statement.rest, "'_.-LAYER\\n_COLOR\\n1\\n=Walls\\n\\n");
    EXPECT_EQ(read("echo   two  blanks  \"kept\"").statement.rest, "two  blanks  \"kept\"");
    EXPECT_EQ(read("log").statement.rest, "");
}

TEST(StatementReader, UnterminatedQuotesAreAnError) {
    const Read result = read("current LAYER \"Walls");
    EXPECT_FALSE(result.found);
    EXPECT_EQ(result.error, "unterminated quotes in \"Walls");
}

TEST(StatementReader, CommandTextHasNewLinesAndTheCancelCharacter) {
    EXPECT_EQ(KyAppStatementReader::commandText("'_.-LAYER\\n_COLOR\\n1\\n=Walls\\n\\n"),
              "'_.-LAYER\n_COLOR\n1\n=Walls\n\n");
    EXPECT_EQ(KyAppStatementReader::commandText("CLAYER\\n\\e"), "CLAYER\n\x03");
    EXPECT_EQ(KyAppStatementReader::commandText("a\\\\nb"), "a\\nb");
    EXPECT_EQ(KyAppStatementReader::commandText("C:\\plans\\"), "C:\\plans\\")
        << "other backslashes stay";
}
