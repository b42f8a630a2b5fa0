#include "contexts/ContextFactories.h"

#include <cwchar>

#include "manager/KyDiManagerState.h"

void ContextFactories::registerFactory(const wchar_t* name, ContextFactory factory) {
    if (name != nullptr && factory != nullptr) {
        kydiManagerState().contextFactories.push_back({name, factory});
    }
}

KyDiContext* ContextFactories::build(const wchar_t* name) {
    if (name == nullptr) {
        return nullptr;
    }
    // A factory may register further rows: the walk goes over a copy.
    const auto rows = kydiManagerState().contextFactories;
    const std::size_t length = std::wcslen(name);
    for (const auto& [rowName, factory] : rows) {
        if (rowName.length() != static_cast<int>(length) ||
            std::wcsncmp(rowName.kwszPtr(), name, length) != 0) {
            continue;
        }
        if (KyDiContext* context = factory(rowName.kwszPtr())) {
            kydiManagerState().builtContexts.append(context);
            return context;
        }
    }
    return nullptr;
}
