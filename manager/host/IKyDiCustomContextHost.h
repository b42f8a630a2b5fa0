// Not part of the interface: the optional context module, through which the
// "SUN" context joins the data item layer. One static object implements it;
// while that object lives, instance() answers it.
#pragma once

class IKyDiCustomContextHost {
public:
    // The module's object; null before the static objects are built and
    // after they are gone.
    static IKyDiCustomContextHost* instance() { return s_instance; }

    virtual ~IKyDiCustomContextHost();
    // Registers the module's runtime classes, under the guard of the class
    // registration.
    virtual void registerClasses() = 0;
    // Deletes them.
    virtual void unregisterClasses() = 0;
    // Appends the module's context factories, ahead of the layer's own.
    virtual void registerContextFactories() = 0;

protected:
    IKyDiCustomContextHost() = default;
    static void setInstance(IKyDiCustomContextHost* host) { s_instance = host; }

private:
    static IKyDiCustomContextHost* s_instance;
};
