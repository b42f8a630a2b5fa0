// Not part of the interface: the factories of the contexts that are found by
// name. Modules add their rows at initialize ("SUN" first), the layer its
// own; a factory may add rows while it is called.
#pragma once

class KyDiContext;

using ContextFactory = KyDiContext* (*)(const wchar_t* name);

class ContextFactories {
public:
    // Appends a row.
    static void registerFactory(const wchar_t* name, ContextFactory factory);
    // The context the first row of this exact name builds (a row whose
    // factory answers null hands on to the next of the name); the manager
    // keeps it in its built contexts. Null when no row builds one.
    static KyDiContext* build(const wchar_t* name);
};
