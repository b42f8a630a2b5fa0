#include "KyRefCommandContext.h"

#include <algorithm>
#include <cstdarg>
#include <cwchar>

#include "KyRefCommandInterpreter.h"
#include "KyRefCommandLine.h"
#include "KyRefCommandOutcome.h"
#include "KyRefDocument.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbEntity.h"
#include "db/KyDbHandle.h"

KyRefCommandContext::KyRefCommandContext(KyRefCommandInterpreter& interpreter,
                                         KyRefCommandInput& input, KyRefDocument* document,
                                         const KyString& globalName, int level, Shared& shared)
    : m_interpreter(interpreter),
      m_input(input),
      m_document(document),
      m_globalName(globalName),
      m_level(level),
      m_shared(shared) {}

KyRefHost& KyRefCommandContext::host() const {
    return m_interpreter.host();
}

KyDbDatabase* KyRefCommandContext::database() const {
    return m_document != nullptr ? m_document->database() : nullptr;
}

KyString KyRefCommandContext::read(const wchar_t* prompt, bool word) {
    KyRefCommandLine& line = m_interpreter.line();
    for (;;) {
        const std::size_t start = m_input.position();
        m_interpreter.showPrompt(prompt, m_level, start);
        const KyRefCommandInput::Answer answer = word ? m_input.readWord() : m_input.readLine();
        if (answer.kind == KyRefCommandInput::Kind::kIncomplete) {
            throw KyRefCommandWaiting{start};
        }
        if (answer.kind == KyRefCommandInput::Kind::kCancel) {
            line.write(L"*Cancel*");
            line.endLine();
            throw KyRefCommandCancelled();
        }
        line.write(answer.text);
        line.endLine();
        if (!m_interpreter.runTransparent(answer.text, *this)) {
            return answer.text;
        }
    }
}

KyString KyRefCommandContext::literal(const KyString& answer) {
    KyString text = KyString(answer).trim();
    if (text.kwszPtr()[0] == L'=') {
        text = text.mid(1);
    }
    if (text.length() >= 2 && text.kwszPtr()[0] == L'"' &&
        text.kwszPtr()[text.length() - 1] == L'"') {
        text = text.mid(1, text.length() - 2);
    }
    return text;
}

KyString KyRefCommandContext::readName(const wchar_t* prompt) {
    return literal(read(prompt, false));
}

KyString KyRefCommandContext::readWord(const wchar_t* prompt) {
    return read(prompt, true);
}

KyString KyRefCommandContext::readLine(const wchar_t* prompt) {
    return read(prompt, false);
}

int KyRefCommandContext::readInteger(const wchar_t* prompt, int minimum, int maximum,
                                     std::optional<int> defaultValue) {
    for (;;) {
        const KyString answer = readWord(prompt);
        if (answer.isEmpty() && defaultValue.has_value()) {
            return *defaultValue;
        }
        wchar_t* end = nullptr;
        const long value = std::wcstol(answer.kwszPtr(), &end, 10);
        if (!answer.isEmpty() && end != nullptr && *end == L'\0' && value >= minimum &&
            value <= maximum) {
            return static_cast<int>(value);
        }
        message(L"Requires an integer between %d and %d.", minimum, maximum);
    }
}

int KyRefCommandContext::readKeyword(const wchar_t* prompt, std::span<const KyRefKeyword> keywords,
                                     bool emptyAllowed) {
    for (;;) {
        const KyString answer = readWord(prompt);
        if (answer.isEmpty() && emptyAllowed) {
            return -1;
        }
        const int index = KyRefKeywords::match(keywords, answer);
        if (index >= 0) {
            return index;
        }
        message(L"Invalid option keyword.");
    }
}

std::vector<KyDbObjectId> KyRefCommandContext::readEntities(const wchar_t* prompt) {
    std::vector<KyDbObjectId> ids;
    KyDbDatabase* db = database();
    for (;;) {
        KyString answer = readWord(prompt);
        if (answer.isEmpty()) {
            return ids;
        }
        if (answer.kwszPtr()[0] == L'#') {
            answer = answer.mid(1);
        }
        KyDbHandle handle;
        KyDbObjectId id;
        const bool found = db != nullptr && KyDbHandle::fromText(answer, handle) &&
                           db->getKyDbObjectId(id, handle) == Kyro::eOk && id.isValid() &&
                           !id.isErased() && id.objectClass() != nullptr &&
                           id.objectClass()->isDerivedFrom(KyDbEntity::desc());
        if (!found) {
            message(L"*Invalid selection*");
            continue;
        }
        if (std::find(ids.begin(), ids.end(), id) == ids.end()) {
            ids.push_back(id);
            message(L"1 found, %d total", static_cast<int>(ids.size()));
        } else {
            message(L"1 found (1 duplicate), %d total", static_cast<int>(ids.size()));
        }
    }
}

bool KyRefCommandContext::runAsBatch(std::wstring text) {
    if (m_interpreter.isRunningBatch()) {
        return false;
    }
    m_shared.batch = std::move(text);
    return true;
}

void KyRefCommandContext::message(const wchar_t* format, ...) {
    va_list args;
    va_start(args, format);
    KyString text;
    text.formatV(format, args);
    va_end(args);
    m_interpreter.line().writeLine(text);
}

void KyRefCommandContext::fail(const wchar_t* format, ...) {
    va_list args;
    va_start(args, format);
    KyString text;
    text.formatV(format, args);
    va_end(args);
    m_interpreter.line().writeLine(text);
    throw KyRefCommandFailed();
}
