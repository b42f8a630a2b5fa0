// Not part of the interface: the two functions through which the host's view
// style module reads and writes the section or detail view style of
// annotation entities. The module is optional and demand-loaded; it is never
// loaded from here. Each function is looked up at its first use while the
// module is loaded, and the address is kept from then on: the module answers
// false from either function while it is unloaded, and takes effect again
// once it is loaded.
#pragma once

#include "base/KyArray.h"
#include "base/KyroErrorStatus.h"
#include "db/KyDbObjectId.h"

class KyDbEntity;

class ViewStyleModuleEntries {
public:
    // The kinds of view style.
    static constexpr int kSection = 1;
    static constexpr int kDetail = 2;

    // The style of `kind` that `entity` carries: eOk with `styleId` set when
    // the module answers one of that kind; eNotApplicable otherwise, also
    // when the module isn't loaded.
    static Kyro::ErrorStatus getViewStyle(KyDbEntity* entity, int kind, KyDbObjectId& styleId);
    // Gives the entities of `ids` that carry a style of `kind` the style
    // `styleId`: eOk when the module did, eNotApplicable otherwise.
    static Kyro::ErrorStatus setViewStyle(const KyArray<KyDbObjectId>& ids,
                                          const KyDbObjectId& styleId, int kind);

private:
    // The address of `symbol` in the view style module; null while the
    // module isn't there.
    static void* resolve(const wchar_t* symbol);
};
