#include "KyAppHostEventPrinter.h"

#include "KyAppValue.h"
#include "KyRefHost.h"

namespace {

const char* boolText(bool value) {
    return value ? "true" : "false";
}

}  // namespace

KyAppHostEventPrinter::KyAppHostEventPrinter(KyRefHost& host, std::ostream& out)
    : m_host(host), m_out(out) {}

void KyAppHostEventPrinter::refreshNeeded(bool force) {
    print("refreshNeeded", boolText(force));
}

void KyAppHostEventPrinter::documentToBeDestroyed(KyDiDocument document) {
    print("documentToBeDestroyed", documentName(document));
}

void KyAppHostEventPrinter::documentDestroyed() {
    print("documentDestroyed");
}

void KyAppHostEventPrinter::documentDestructionDone() {
    print("documentDestructionDone");
}

void KyAppHostEventPrinter::sysVarChanged(const wchar_t* name, bool success) {
    print("sysVarChanged", nameOf(name) + " " + boolText(success));
}

void KyAppHostEventPrinter::sysVarWillChange(const wchar_t* name) {
    print("sysVarWillChange", nameOf(name));
}

void KyAppHostEventPrinter::commandWillStart(const wchar_t* globalCommandName) {
    print("commandWillStart", nameOf(globalCommandName));
}

void KyAppHostEventPrinter::hostStateChanged() {
    print("hostStateChanged");
}

void KyAppHostEventPrinter::invalidateAll() {
    print("invalidateAll");
}

void KyAppHostEventPrinter::drawingContentChanged() {
    print("drawingContentChanged");
}

void KyAppHostEventPrinter::commandEnded(const wchar_t* globalCommandName) {
    print("commandEnded", nameOf(globalCommandName));
}

void KyAppHostEventPrinter::ucsChanged() {
    print("ucsChanged");
}

void KyAppHostEventPrinter::plotSettingsChanged() {
    print("plotSettingsChanged");
}

void KyAppHostEventPrinter::plotSettingsChangedForLayout(const wchar_t* layoutName) {
    print("plotSettingsChangedForLayout", nameOf(layoutName));
}

void KyAppHostEventPrinter::layoutChanged() {
    print("layoutChanged");
}

void KyAppHostEventPrinter::documentBecameQuiet(KyDiDocument document) {
    print("documentBecameQuiet", documentName(document));
}

void KyAppHostEventPrinter::documentBecameBusy(KyDiDocument document) {
    print("documentBecameBusy", documentName(document));
}

void KyAppHostEventPrinter::print(const char* event, const std::string& arguments) {
    m_out << "host " << event << (arguments.empty() ? "" : " ") << arguments << '\n';
}

std::string KyAppHostEventPrinter::nameOf(const wchar_t* name) const {
    return KyAppValue::text(KyString(name).utf8()).format();
}

std::string KyAppHostEventPrinter::documentName(KyDiDocument document) const {
    const KyRefDocument* found = m_host.documents().find(document);
    return found != nullptr ? nameOf(found->name()) : "none";
}
