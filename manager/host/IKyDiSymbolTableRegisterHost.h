// Not part of the interface: the optional module that adds collections of
// its own to the known collections, at the start of the layer. One static
// object implements it; while that object lives, instance() answers it.
#pragma once

class IKyDiSymbolTableRegisterHost {
public:
    // The module's object; null before the static objects are built and
    // after they are gone.
    static IKyDiSymbolTableRegisterHost* instance() { return s_instance; }

    // Appends the module's data item factories, ahead of the layer's own
    // known-collection rows.
    virtual void registerDataItemFactories() = 0;
    // Behind the registration: hosts built against this order keep it.
    virtual ~IKyDiSymbolTableRegisterHost();

protected:
    IKyDiSymbolTableRegisterHost() = default;
    static void setInstance(IKyDiSymbolTableRegisterHost* host) { s_instance = host; }

private:
    static IKyDiSymbolTableRegisterHost* s_instance;
};
