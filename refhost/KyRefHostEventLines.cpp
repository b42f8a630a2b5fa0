#include "KyRefHostEventLines.h"

#include "base/KyString.h"

namespace {

std::string flag(bool value) {
    return value ? "true" : "false";
}

}  // namespace

void KyRefHostEventLines::refreshNeeded(bool force) {
    event("refreshNeeded", flag(force));
}

void KyRefHostEventLines::documentToBeDestroyed(KyDiDocument document) {
    event("documentToBeDestroyed", documentText(document));
}

void KyRefHostEventLines::documentDestroyed() {
    event("documentDestroyed");
}

void KyRefHostEventLines::documentDestructionDone() {
    event("documentDestructionDone");
}

void KyRefHostEventLines::sysVarChanged(const wchar_t* name, bool success) {
    event("sysVarChanged", nameText(name) + " " + flag(success));
}

void KyRefHostEventLines::sysVarWillChange(const wchar_t* name) {
    event("sysVarWillChange", nameText(name));
}

void KyRefHostEventLines::commandWillStart(const wchar_t* globalCommandName) {
    event("commandWillStart", nameText(globalCommandName));
}

void KyRefHostEventLines::hostStateChanged() {
    event("hostStateChanged");
}

void KyRefHostEventLines::invalidateAll() {
    event("invalidateAll");
}

void KyRefHostEventLines::drawingContentChanged() {
    event("drawingContentChanged");
}

void KyRefHostEventLines::commandEnded(const wchar_t* globalCommandName) {
    event("commandEnded", nameText(globalCommandName));
}

void KyRefHostEventLines::ucsChanged() {
    event("ucsChanged");
}

void KyRefHostEventLines::plotSettingsChanged() {
    event("plotSettingsChanged");
}

void KyRefHostEventLines::plotSettingsChangedForLayout(const wchar_t* layoutName) {
    event("plotSettingsChangedForLayout", nameText(layoutName));
}

void KyRefHostEventLines::layoutChanged() {
    event("layoutChanged");
}

void KyRefHostEventLines::documentBecameQuiet(KyDiDocument document) {
    event("documentBecameQuiet", documentText(document));
}

void KyRefHostEventLines::documentBecameBusy(KyDiDocument document) {
    event("documentBecameBusy", documentText(document));
}

std::string KyRefHostEventLines::nameText(const wchar_t* name) const {
    return KyString(name).utf8();
}

std::string KyRefHostEventLines::documentText(KyDiDocument document) const {
    return std::to_string(document);
}

void KyRefHostEventLines::event(const char* name, const std::string& arguments) {
    line(arguments.empty() ? std::string(name) : std::string(name) + " " + arguments);
}
