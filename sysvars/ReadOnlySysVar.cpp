#include "sysvars/ReadOnlySysVar.h"

#include "pal/KyPal.h"
#include "rx/KyRxVariablesDictionary.h"

Kyro::ErrorStatus ReadOnlySysVar::subSetValue(const resbuf& value, bool /*viaCommand*/) {
    KyRxVariablesDictionary* variables = KyRxVariablesDictionary::get();
    KyRxVariable* variable = variables != nullptr ? variables->getVariable(name()) : nullptr;
    if (variable == nullptr) {
        return Kyro::eInvalidInput;
    }
    // The write comes from the host's own module, as the host's own writes do.
    void* sender = const_cast<void*>(KyPal::PluginLoader::mainModuleId());
    return variable->setValue(value, sender, nullptr, false);
}
