// The functions through which a host gives the view style of section and
// detail view callouts, and the module that exports them. The module is one
// of the host's own, loaded on demand: a client loads it by name
// (kyrxLoadModule), resolves each function by its symbol name
// (KyRxDynamicLinker::getSymbolAddress) and may keep the addresses; while
// the module is unloaded both functions answer false.
//
// Kinds are those of KyDbViewCallout: 1 section, 2 detail.
#pragma once

#include "base/KyArray.h"
#include "db/KyDbObjectId.h"

class KyDbEntity;

namespace KyDbViewStyleModule {

// The module's name, and the service it registers while it is loaded.
inline constexpr const wchar_t* kModuleName = L"KYSYNERGYOBJ";
inline constexpr const wchar_t* kServiceName = L"KYSYNERGYOBJ";

// The symbol names of the two functions.
inline constexpr const wchar_t* kGetViewStyleForEntity = L"KyModelDocGetViewStyleForEntity";
inline constexpr const wchar_t* kSetViewStyleForEntities = L"KyModelDocSetViewStyleForEntities";

}  // namespace KyDbViewStyleModule

// For a callout open for read, its style and its kind, and true; false for
// anything else, a null entity, or while the module is unloaded.
using KyModelDocGetViewStyleForEntityFn = bool (*)(KyDbEntity* entity, KyDbObjectId& id, int& kind);
// Gives the style `*styleId` to every callout among `ids` whose kind is
// `kind`, as one step of undo; the caller holds the document lock. True when
// at least one callout changed; false for a null style, a style that is not
// of the kind's dictionary, when none changed, or while the module is
// unloaded.
using KyModelDocSetViewStyleForEntitiesFn = bool (*)(const KyArray<KyDbObjectId>& ids,
                                                     const KyDbObjectId* styleId, int kind);
