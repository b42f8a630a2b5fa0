#include "effective/ViewStyleModuleEntries.h"

#include "db/KyDbViewStyleModule.h"
#include "rx/KyRxDictionary.h"
#include "rx/KyRxDynamicLinker.h"

namespace {

using KyDbViewStyleModule::kModuleName;

// Kept once found: the module answers false itself while it is unloaded.
KyModelDocGetViewStyleForEntityFn g_getViewStyle = nullptr;
KyModelDocSetViewStyleForEntitiesFn g_setViewStyle = nullptr;

}  // namespace

void* ViewStyleModuleEntries::resolve(const wchar_t* symbol) {
    KyRxDictionary* registry = kyrxSysRegistry();
    if (registry == nullptr) {
        return nullptr;
    }
    const auto* services = kyrxCast<KyRxDictionary>(registry->at(L"ServiceDictionary"));
    // Without its service the module isn't loaded, and this doesn't load it.
    if (services == nullptr || services->at(KyDbViewStyleModule::kServiceName) == nullptr) {
        return nullptr;
    }
    const auto* linker = kyrxCast<KyRxDynamicLinker>(registry->at(L"DynamicLinker"));
    return linker != nullptr ? linker->getSymbolAddress(kModuleName, symbol) : nullptr;
}

Kyro::ErrorStatus ViewStyleModuleEntries::getViewStyle(KyDbEntity* entity, int kind,
                                                       KyDbObjectId& styleId) {
    if (g_getViewStyle == nullptr) {
        g_getViewStyle = reinterpret_cast<KyModelDocGetViewStyleForEntityFn>(
            resolve(KyDbViewStyleModule::kGetViewStyleForEntity));
        if (g_getViewStyle == nullptr) {
            return Kyro::eNotApplicable;
        }
    }
    KyDbObjectId found;
    int foundKind = 0;
    if (!g_getViewStyle(entity, found, foundKind) || found.isNull() || foundKind != kind) {
        return Kyro::eNotApplicable;
    }
    styleId = found;
    return Kyro::eOk;
}

Kyro::ErrorStatus ViewStyleModuleEntries::setViewStyle(const KyArray<KyDbObjectId>& ids,
                                                       const KyDbObjectId& styleId, int kind) {
    if (g_setViewStyle == nullptr) {
        g_setViewStyle = reinterpret_cast<KyModelDocSetViewStyleForEntitiesFn>(
            resolve(KyDbViewStyleModule::kSetViewStyleForEntities));
        if (g_setViewStyle == nullptr) {
            return Kyro::eNotApplicable;
        }
    }
    return g_setViewStyle(ids, &styleId, kind) ? Kyro::eOk : Kyro::eNotApplicable;
}
