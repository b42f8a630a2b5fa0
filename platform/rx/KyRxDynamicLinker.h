// Modules and services. A module registers with the platform by name (from a
// static constructor of its own code) and starts when it is loaded; it may
// register services and name symbols that the dynamic linker hands out.
#pragma once

#include "base/KyString.h"
#include "rx/KyRxObject.h"

struct KyRxModuleSymbol {
    const wchar_t* name;
    void* address;
};

struct KyRxModuleDescriptor {
    const wchar_t* name;              // "KyDbPointCloudObj.dbx"
    bool (*start)();                  // false refuses the load; may be null
    void (*stop)();                   // may be null
    const KyRxModuleSymbol* symbols;  // ends with a null name; may be null
};

// A registered service: an object in "ServiceDictionary" under its name.
class KYPLATFORM_API KyRxService : public KyRxObject {
public:
    KYRX_DECLARE_MEMBERS(KyRxService);
    explicit KyRxService(const wchar_t* name) : m_name(name) {}
    const wchar_t* name() const { return m_name.kwszPtr(); }

private:
    KyString m_name;
};

class KYPLATFORM_API KyRxDynamicLinker : public KyRxObject {
public:
    KYRX_DECLARE_MEMBERS(KyRxDynamicLinker);

    // Loads a registered module and starts it; true when it is loaded (now or
    // already). An unknown module or a refused start answers false, with a
    // message on standard error when `printErrors` is set.
    bool loadModule(const wchar_t* name, bool printErrors, bool asCommand = false);
    bool unloadModule(const wchar_t* name);
    bool isModuleLoaded(const wchar_t* name) const;
    // True for a module made known by kyrxRegisterModule, loaded or not.
    bool isModuleRegistered(const wchar_t* name) const;
    // The address of a symbol of a loaded module; null otherwise.
    void* getSymbolAddress(const wchar_t* module, const wchar_t* symbol) const;
};

// Makes a module known by name. A second registration under the same name
// replaces the descriptor of a module that is not loaded.
KYPLATFORM_API void kyrxRegisterModule(const KyRxModuleDescriptor& descriptor);
KYPLATFORM_API bool kyrxLoadModule(const wchar_t* name, bool printErrors, bool asCommand = false);
KYPLATFORM_API bool kyrxUnloadModule(const wchar_t* name);

// Services: registerService adds a KyRxService under the name (answering the
// one there already); the others ask and remove.
KYPLATFORM_API KyRxService* kyrxRegisterService(const wchar_t* name);
KYPLATFORM_API bool kyrxServiceIsRegistered(const wchar_t* name);
KYPLATFORM_API bool kyrxUnregisterService(const wchar_t* name);
