#include "DrawingCheck.h"

#include <algorithm>
#include <iterator>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "FuzzTarget.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbOpenObject.h"
#include "io/KyRefDrawingReader.h"
#include "io/KyRefDrawingWriter.h"
#include "io/KyRefJson.h"

namespace kyfuzz {
namespace {

// One step of a JSON path: a member by key, or an item by index.
struct Step {
    std::string key;
    std::size_t index = 0;
    bool isItem = false;
};

bool isWordChar(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

// The path an error begins with (`blocks[2].entities["a b"]: ...`), read
// back from its written form; nothing for an error of the file as a whole.
std::optional<std::vector<Step>> errorPath(const std::string& error, std::string& problem) {
    std::vector<Step> steps;
    std::size_t i = 0;
    while (i < error.size()) {
        if (!steps.empty() && error.compare(i, 2, ": ") == 0) {
            problem = error.substr(i + 2);
            return steps;
        }
        Step step;
        if (error[i] == '[' && i + 1 < error.size() && error[i + 1] == '"') {
            // A quoted key: the JSON string up to its closing quote.
            std::size_t end = i + 2;
            while (end < error.size() && error[end] != '"') {
                end += error[end] == '\\' ? 2 : 1;
            }
            if (end + 1 >= error.size() || error[end + 1] != ']') {
                return std::nullopt;
            }
            const KyRefJson key = KyRefJson::parse(error.substr(i + 1, end - i), nullptr, false);
            if (!key.is_string()) {
                return std::nullopt;
            }
            step.key = key.get<std::string>();
            i = end + 2;
        } else if (error[i] == '[') {
            const std::size_t close = error.find(']', i);
            if (close == std::string::npos || close == i + 1) {
                return std::nullopt;
            }
            for (std::size_t d = i + 1; d < close; ++d) {
                if (error[d] < '0' || error[d] > '9') {
                    return std::nullopt;
                }
                step.index = step.index * 10 + static_cast<std::size_t>(error[d] - '0');
            }
            step.isItem = true;
            i = close + 1;
        } else {
            if (!steps.empty()) {
                if (error[i] != '.') {
                    return std::nullopt;
                }
                ++i;
            }
            const std::size_t start = i;
            while (i < error.size() && isWordChar(error[i])) {
                ++i;
            }
            if (i == start || (error[start] >= '0' && error[start] <= '9')) {
                return std::nullopt;
            }
            step.key = error.substr(start, i - start);
        }
        steps.push_back(std::move(step));
    }
    return std::nullopt;
}

// The error of a refused file names a place of that file: every step of its
// path but the last leads to a value, and the last does too unless the
// member is missing.
void checkErrorPath(std::string_view text, const std::string& error) {
    std::string problem;
    const std::optional<std::vector<Step>> steps = errorPath(error, problem);
    if (!steps) {
        // Without a path, a problem of the file as a whole; any other error
        // would mean that paths are written in a way this check can't read.
        static const char* const kWholeFile[] = {
            "the file is not complete, valid JSON", "the drawing nests", "expected a drawing",
            "the standard content", "expected member names without a NUL"};
        check(std::any_of(std::begin(kWholeFile), std::end(kWholeFile),
                          [&error](const char* head) { return error.rfind(head, 0) == 0; }),
              "an error names a path of the file, or a problem of the file as a whole", error);
        return;
    }
    const KyRefJson document = KyRefJson::parse(text, nullptr, false);
    const KyRefJson* at = &document;
    for (std::size_t i = 0; i < steps->size(); ++i) {
        const Step& step = (*steps)[i];
        const bool last = i + 1 == steps->size();
        const KyRefJson* next = nullptr;
        if (step.isItem && at->is_array() && step.index < at->size()) {
            next = &(*at)[step.index];
        } else if (!step.isItem && at->is_object()) {
            const auto found = at->find(step.key);
            next = found != at->end() ? &*found : nullptr;
        }
        if (next == nullptr) {
            check(last && at->is_object() && !step.isItem && problem.rfind("missing", 0) == 0,
                  "the error names a path that is not in the file", error);
            return;
        }
        at = next;
    }
}

void checkRefused(std::string_view text, const std::string& error) {
    check(!error.empty(), "a refused drawing gives an error");
    check(error.find('\n') == std::string::npos, "the error is one line", error);
    check(error.rfind("the drawing can't be read: ", 0) != 0,
          "a fault of the file passed the reader's checks and the JSON library refused it", error);
    checkErrorPath(text, error);
}

// What the writer wrote reads again and is written the same.
void checkReadsAgain(const std::string& written) {
    KyString error;
    const std::unique_ptr<KyDbDatabase> again = KyRefDrawingReader::readText(written, error);
    check(again != nullptr, "what the writer writes, the reader reads",
          error.utf8() + "\nwritten:\n" + written);
    const std::string rewritten = KyRefDrawingWriter::toText(again.get());
    check(rewritten == written, "a drawing written, read and written again is written the same",
          "first:\n" + written + "\nsecond:\n" + rewritten);
}

std::string shortText(const nlohmann::json& value) {
    std::string text = value.dump();
    return text.size() > 200 ? text.substr(0, 200) + "..." : text;
}

// The first place where `written` differs from `file`, as "path: file ->
// written"; empty when they are equal.
std::string firstDifference(const nlohmann::json& file, const nlohmann::json& written,
                            const std::string& path) {
    if (file == written) {
        return std::string();
    }
    const std::string shown = path.empty() ? "the drawing" : path;
    if (file.is_object() && written.is_object()) {
        for (auto it = file.begin(); it != file.end(); ++it) {
            const auto other = written.find(it.key());
            if (other == written.end()) {
                return path + "." + it.key() + ": " + shortText(*it) + " -> left out";
            }
            std::string found = firstDifference(*it, *other, path + "." + it.key());
            if (!found.empty()) {
                return found;
            }
        }
        for (auto it = written.begin(); it != written.end(); ++it) {
            if (file.find(it.key()) == file.end()) {
                return path + "." + it.key() + ": absent -> " + shortText(*it);
            }
        }
    }
    if (file.is_array() && written.is_array() && file.size() == written.size()) {
        for (std::size_t i = 0; i < file.size(); ++i) {
            std::string found =
                firstDifference(file[i], written[i], path + "[" + std::to_string(i) + "]");
            if (!found.empty()) {
                return found;
            }
        }
    }
    return shown + ": " + shortText(file) + " -> " + shortText(written);
}

// Drops the members that formulas drive: a formula's value stands over the
// number beside it in the file, which the writer replaces with that value.
void dropDrivenMembers(nlohmann::json& value) {
    if (value.is_object()) {
        const auto formulas = value.find("formulas");
        if (formulas != value.end() && formulas->is_object()) {
            for (auto it = formulas->begin(); it != formulas->end(); ++it) {
                if (it.key() != "formulas") {
                    value.erase(it.key());
                }
            }
        }
    }
    if (value.is_structured()) {
        for (nlohmann::json& item : value) {
            dropDrivenMembers(item);
        }
    }
}

void checkRead(std::string_view text, KyDbDatabase* db) {
    const std::string written = KyRefDrawingWriter::toText(db);
    nlohmann::json original = nlohmann::json::parse(text, nullptr, false);
    nlohmann::json back = nlohmann::json::parse(written, nullptr, false);
    dropDrivenMembers(original);
    dropDrivenMembers(back);
    check(original == back, "a drawing read and written back is the file it was read from",
          firstDifference(original, back, std::string()));
    checkReadsAgain(written);
}

}  // namespace

void checkDrawing(std::string_view text) {
    const long long openBefore = kydbOpenObjectCount();
    {
        KyString error;
        const std::unique_ptr<KyDbDatabase> db = KyRefDrawingReader::readText(text, error);
        check(kydbOpenObjectCount() == openBefore, "the reader leaves nothing open", error.utf8());
        if (db == nullptr) {
            checkRefused(text, error.utf8());
        } else {
            check(error.isEmpty(), "a drawing read gives no error", error.utf8());
            checkRead(text, db.get());
        }
    }
    check(kydbOpenObjectCount() == openBefore, "a drawing that goes leaves nothing open");
}

void checkWritten(KyDbDatabase* db) {
    checkReadsAgain(KyRefDrawingWriter::toText(db));
}

}  // namespace kyfuzz
