// KyRefViewStyleModule: the host's module "KYSYNERGYOBJ", which gives the
// view styles of section and detail callouts to a client that loads it
// (KyDbViewStyleModule.h). The host makes the module known to the platform
// when it starts, and does not load it: a client loads it by name. Its start
// registers the service "KYSYNERGYOBJ", its stop takes it away. It exports
// KyModelDocGetViewStyleForEntity and KyModelDocSetViewStyleForEntities;
// while it is unloaded both answer false, also through addresses a client
// kept from an earlier load.
//
// A change of styles is one step of the host's undo, labelled "View style",
// in each drawing it touches: a `U` takes all of it back.
#pragma once

class KyRefViewStyleModule {
public:
    // Makes the module known to the platform; a module that is loaded keeps
    // running as it is.
    static void registerModule();
    // The label of the undo step of a change of styles.
    static const wchar_t* undoLabel();
};
