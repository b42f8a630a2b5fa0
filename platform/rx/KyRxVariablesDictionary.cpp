// System variables as runtime objects, and the dictionary a host installs.
#include "rx/KyRxVariablesDictionary.h"

#include "rx/KyRxClass.h"

KYRX_DEFINE_MEMBERS(KyRxVariable, KyRxObject)

namespace {
KyRxVariablesDictionary* g_installed = nullptr;
}  // namespace

KyRxVariable::KyRxVariable(const wchar_t* name) : m_name(name) {}

KyRxVariable::~KyRxVariable() {
    kyutRelRb(m_value);
}

Kyro::ErrorStatus KyRxVariable::setValue(const resbuf& value, void* sender, KyString* error,
                                         bool disableUndoRecording) {
    return subSetValue(value, sender, error, disableUndoRecording);
}

Kyro::ErrorStatus KyRxVariable::subSetValue(const resbuf& value, void* /*sender*/,
                                            KyString* /*error*/, bool /*disableUndoRecording*/) {
    storeValue(value);
    return Kyro::eOk;
}

void KyRxVariable::storeValue(const resbuf& value) {
    // Copy before releasing: `value` may be the stored record itself.
    resbuf* copy = kyutCopyRb(&value);
    kyutRelRb(m_value);
    m_value = copy;
}

KyRxVariablesDictionary* KyRxVariablesDictionary::get() {
    return g_installed;
}

void KyRxVariablesDictionary::install(KyRxVariablesDictionary* dictionary) {
    g_installed = dictionary;
}

KyRxVariablesDictionary::~KyRxVariablesDictionary() {
    if (g_installed == this) {
        g_installed = nullptr;
    }
    for (auto& entry : m_variables) {
        delete entry.second;
    }
}

KyRxVariable* KyRxVariablesDictionary::getVariable(const wchar_t* name) const {
    if (name == nullptr) {
        return nullptr;
    }
    const auto found = m_variables.find(KyString(name));
    return found != m_variables.end() ? found->second : nullptr;
}

bool KyRxVariablesDictionary::addVariable(KyRxVariable* variable) {
    if (variable == nullptr) {
        return false;
    }
    return m_variables.emplace(KyString(variable->name()), variable).second;
}
