#include "KyRefCommandInput.h"

namespace {

bool isBlank(wchar_t c) {
    return c == L' ' || c == L'\t';
}

}  // namespace

KyRefCommandInput::Mark KyRefCommandInput::markAt(std::size_t at, std::size_t& length) const {
    const wchar_t c = m_text[at];
    length = 1;
    if (c == L'\x03' || c == L'\x1b') {
        return Mark::kCancel;
    }
    if (c == L'\r') {
        return Mark::kIgnored;
    }
    if (c == L'^' && at + 1 < m_text.size()) {
        const wchar_t next = m_text[at + 1];
        length = 2;
        if (next == L'C' || next == L'c') {
            return Mark::kCancel;
        }
        if (next == L'Q' || next == L'q' || next == L'P' || next == L'p') {
            return Mark::kIgnored;
        }
    }
    length = 0;
    return Mark::kNone;
}

KyRefCommandInput::Answer KyRefCommandInput::read(bool stopAtBlank) {
    const std::size_t start = m_position;
    std::size_t at = m_position;
    if (stopAtBlank) {
        while (at < m_text.size() && isBlank(m_text[at])) {
            ++at;
        }
    }
    KyString text;
    bool quoted = false;
    while (at < m_text.size()) {
        std::size_t length = 0;
        const Mark mark = markAt(at, length);
        if (mark == Mark::kCancel) {
            m_position = at + length;
            return Answer{Kind::kCancel, KyString()};
        }
        if (mark == Mark::kIgnored) {
            at += length;
            continue;
        }
        const wchar_t c = m_text[at];
        if (c == L'"' && stopAtBlank) {
            quoted = !quoted;
        }
        if (c == L'\n' || (stopAtBlank && !quoted && isBlank(c))) {
            m_position = at + 1;
            return Answer{Kind::kAnswer, stopAtBlank ? text : text.trim()};
        }
        text.append(c);
        ++at;
    }
    m_position = start;
    return Answer{Kind::kIncomplete, KyString()};
}

KyRefCommandInput::Answer KyRefCommandInput::readWord() {
    return read(true);
}

KyRefCommandInput::Answer KyRefCommandInput::readLine() {
    return read(false);
}

KyRefCommandInput::Answer KyRefCommandInput::readCommandWord() {
    while (m_position < m_text.size()) {
        const wchar_t c = m_text[m_position];
        std::size_t length = 0;
        const Mark mark = markAt(m_position, length);
        if (mark == Mark::kCancel) {
            m_position += length;
            return Answer{Kind::kCancel, KyString()};
        }
        if (mark == Mark::kIgnored) {
            m_position += length;
        } else if (isBlank(c) || c == L'\n') {
            ++m_position;
        } else {
            return read(true);
        }
    }
    return Answer{Kind::kIncomplete, KyString()};
}
