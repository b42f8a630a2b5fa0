// Modules and services. Modules register from static constructors, possibly
// before anything else of the platform exists, so their table is made at
// first use and kept for the process.
#include "rx/KyRxDynamicLinker.h"

#include <cstdio>
#include <cwchar>
#include <map>

#include "rx/KyRxClass.h"
#include "rx/KyRxDictionary.h"

KYRX_DEFINE_MEMBERS(KyRxService, KyRxObject)
KYRX_DEFINE_MEMBERS(KyRxDynamicLinker, KyRxObject)

namespace {

struct ModuleEntry {
    KyRxModuleDescriptor descriptor{};
    bool loaded = false;
};

// Module names are file names, matched without regard to case.
using ModuleTable = std::map<KyString, ModuleEntry, KyStringLessNoCase>;

ModuleTable& modules() {
    static auto* s_modules = new ModuleTable;
    return *s_modules;
}

ModuleEntry* findModule(const wchar_t* name) {
    if (name == nullptr) {
        return nullptr;
    }
    const auto found = modules().find(KyString(name));
    return found != modules().end() ? &found->second : nullptr;
}

KyRxDynamicLinker* sysLinker() {
    return dynamic_cast<KyRxDynamicLinker*>(kyrxSysRegistry()->at(KYRX_DYNAMIC_LINKER));
}

KyRxDictionary* serviceDictionary() {
    return dynamic_cast<KyRxDictionary*>(kyrxSysRegistry()->at(KYRX_SERVICE_DICTIONARY));
}

}  // namespace

bool KyRxDynamicLinker::loadModule(const wchar_t* name, bool printErrors, bool /*asCommand*/) {
    ModuleEntry* module = findModule(name);
    if (module == nullptr) {
        if (printErrors) {
            std::fprintf(stderr, "Unable to load module %ls: not found.\n",
                         name != nullptr ? name : L"(null)");
        }
        return false;
    }
    if (module->loaded) {
        return true;
    }
    // Counted as loaded while it starts, so that a start which asks for its
    // own module does not start it twice.
    module->loaded = true;
    if (module->descriptor.start != nullptr && !module->descriptor.start()) {
        module->loaded = false;
        if (printErrors) {
            std::fprintf(stderr, "Unable to load module %ls: its start failed.\n", name);
        }
        return false;
    }
    return true;
}

bool KyRxDynamicLinker::unloadModule(const wchar_t* name) {
    ModuleEntry* module = findModule(name);
    if (module == nullptr || !module->loaded) {
        return false;
    }
    module->loaded = false;
    if (module->descriptor.stop != nullptr) {
        module->descriptor.stop();
    }
    return true;
}

bool KyRxDynamicLinker::isModuleLoaded(const wchar_t* name) const {
    const ModuleEntry* module = findModule(name);
    return module != nullptr && module->loaded;
}

bool KyRxDynamicLinker::isModuleRegistered(const wchar_t* name) const {
    return findModule(name) != nullptr;
}

void* KyRxDynamicLinker::getSymbolAddress(const wchar_t* module, const wchar_t* symbol) const {
    const ModuleEntry* entry = findModule(module);
    if (entry == nullptr || !entry->loaded || symbol == nullptr ||
        entry->descriptor.symbols == nullptr) {
        return nullptr;
    }
    for (const KyRxModuleSymbol* s = entry->descriptor.symbols; s->name != nullptr; ++s) {
        if (std::wcscmp(s->name, symbol) == 0) {
            return s->address;
        }
    }
    return nullptr;
}

void kyrxRegisterModule(const KyRxModuleDescriptor& descriptor) {
    if (descriptor.name == nullptr || descriptor.name[0] == L'\0') {
        return;
    }
    const KyString name(descriptor.name);
    ModuleEntry& entry = modules()[name];
    if (entry.loaded) {
        return;  // a running module keeps the descriptor it started with
    }
    entry.descriptor = descriptor;
}

bool kyrxLoadModule(const wchar_t* name, bool printErrors, bool asCommand) {
    KyRxDynamicLinker* linker = sysLinker();
    return linker != nullptr && linker->loadModule(name, printErrors, asCommand);
}

bool kyrxUnloadModule(const wchar_t* name) {
    KyRxDynamicLinker* linker = sysLinker();
    return linker != nullptr && linker->unloadModule(name);
}

KyRxService* kyrxRegisterService(const wchar_t* name) {
    KyRxDictionary* services = serviceDictionary();
    if (services == nullptr || name == nullptr || name[0] == L'\0') {
        return nullptr;
    }
    if (KyRxObject* existing = services->at(name)) {
        return dynamic_cast<KyRxService*>(existing);
    }
    auto* service = new KyRxService(name);
    services->atPut(name, service);
    return service;
}

bool kyrxServiceIsRegistered(const wchar_t* name) {
    KyRxDictionary* services = serviceDictionary();
    return services != nullptr && services->has(name);
}

bool kyrxUnregisterService(const wchar_t* name) {
    KyRxDictionary* services = serviceDictionary();
    if (services == nullptr) {
        return false;
    }
    KyRxObject* service = services->remove(name);
    delete service;
    return service != nullptr;
}
