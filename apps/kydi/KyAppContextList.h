// KyAppContextList: the contexts as the program shows them. The contexts
// that the layer's factories make are made first (the manager makes a context
// when it is first asked for), then every context the manager holds is listed
// by name, each with the properties it lists and their values.
#pragma once

#include <string>
#include <utility>
#include <vector>

class KyDiContext;

class KyAppContextList {
public:
    using Property = std::pair<std::string, std::string>;

    // Asks the manager for every context that has a factory, then runs a
    // refresh pass so that each is bound to the drawing.
    static void makeAll();
    // The contexts the manager holds, in name order.
    static std::vector<std::pair<std::string, KyDiContext*>> inNameOrder();
    // The context of this name, made if a factory has it; null otherwise.
    static KyDiContext* find(const std::string& name);
    // The properties the context lists, in its order, with their values'
    // texts; a property that can't be read now shows "none".
    static std::vector<Property> properties(KyDiContext* context);
};
