// Not part of the interface: whether an entity is a reference of a dynamic
// block, asked by the parts that treat such references apart. One static
// object implements it; while that object lives, instance() answers it.
#pragma once

class KyDbEntity;

class IKyDbDynBlockReferenceHost {
public:
    // The static object; null before the static objects are built and after
    // they are gone.
    static IKyDbDynBlockReferenceHost* instance() { return s_instance; }

    // True for a block reference whose block has parameters of its own; false
    // for null and for any other entity.
    virtual bool isDynamicBlockReference(KyDbEntity* entity) = 0;
    // Behind the question: hosts built against this order keep it.
    virtual ~IKyDbDynBlockReferenceHost();

protected:
    IKyDbDynBlockReferenceHost() = default;
    static void setInstance(IKyDbDynBlockReferenceHost* host) { s_instance = host; }

private:
    static IKyDbDynBlockReferenceHost* s_instance;
};
