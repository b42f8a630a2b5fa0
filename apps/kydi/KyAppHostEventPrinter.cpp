#include "KyAppHostEventPrinter.h"

#include "KyAppValue.h"
#include "KyRefHost.h"

KyAppHostEventPrinter::KyAppHostEventPrinter(KyRefHost& host, std::ostream& out)
    : m_host(host), m_out(out) {}

void KyAppHostEventPrinter::line(const std::string& text) {
    m_out << "host " << text << '\n';
}

std::string KyAppHostEventPrinter::nameText(const wchar_t* name) const {
    return KyAppValue::text(KyString(name).utf8()).format();
}

std::string KyAppHostEventPrinter::documentText(KyDiDocument document) const {
    const KyRefDocument* found = m_host.documents().find(document);
    return found != nullptr ? nameText(found->name()) : "none";
}
