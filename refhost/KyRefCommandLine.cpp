#include "KyRefCommandLine.h"

void KyRefCommandLine::write(const wchar_t* text) {
    if (m_muted || text == nullptr) {
        return;
    }
    for (const wchar_t* c = text; *c != L'\0'; ++c) {
        if (*c == L'\n') {
            m_lines.push_back(m_current);
            m_current.setEmpty();
        } else {
            m_current.append(*c);
        }
    }
}

void KyRefCommandLine::endLine() {
    if (!m_muted && !m_current.isEmpty()) {
        m_lines.push_back(m_current);
        m_current.setEmpty();
    }
}

void KyRefCommandLine::writeLine(const wchar_t* text) {
    if (m_muted) {
        return;
    }
    endLine();
    write(text);
    m_lines.push_back(m_current);
    m_current.setEmpty();
}

std::vector<KyString> KyRefCommandLine::lines() const {
    std::vector<KyString> all = m_lines;
    if (!m_current.isEmpty()) {
        all.push_back(m_current);
    }
    return all;
}

std::vector<KyString> KyRefCommandLine::takeLines() {
    std::vector<KyString> all = lines();
    m_lines.clear();
    m_current.setEmpty();
    return all;
}

KyString KyRefCommandLine::text() const {
    KyString all;
    for (const KyString& line : lines()) {
        all.append(line);
        all.append(L'\n');
    }
    return all;
}
