// KyRxObject: root of every runtime object. Its class descriptor (isA) names
// the object's runtime class; queryX finds a protocol extension object for a
// class along the object's class chain.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyroErrorStatus.h"

class KyRxClass;

namespace KyRx {
enum Ordering { kLessThan = -1, kEqual = 0, kGreaterThan = 1, kNotOrderable = 2 };
}

class KYPLATFORM_API KyRxObject {
public:
    virtual ~KyRxObject();

    static KyRxClass* desc();
    virtual KyRxClass* isA() const;

    // A copy of the object made through its class's constructor and copyFrom;
    // null when the class can't be constructed.
    virtual KyRxObject* clone() const;
    virtual Kyro::ErrorStatus copyFrom(const KyRxObject* other);
    virtual bool isEqualTo(const KyRxObject* other) const;
    virtual KyRx::Ordering comparedTo(const KyRxObject* other) const;

    // The protocol extension object registered for `protocolClass` on this
    // object's class or one of its parents; the object itself when it is of
    // that class; null otherwise.
    KyRxObject* queryX(const KyRxClass* protocolClass) const;
    KyRxObject* x(const KyRxClass* protocolClass) const { return queryX(protocolClass); }

    bool isKindOf(const KyRxClass* cls) const;

protected:
    KyRxObject() = default;
    KyRxObject(const KyRxObject&) = default;
    KyRxObject& operator=(const KyRxObject&) = default;
    virtual KyRxObject* subQueryX(const KyRxClass* protocolClass) const;
};

// Declares the class descriptor accessors of a runtime class.
#define KYRX_DECLARE_MEMBERS(CLASS) \
    static KyRxClass* desc();       \
    KyRxClass* isA() const override

// A runtime class `CLASS` under `PARENT`, registered by its name at the first
// use of desc(), with an optional constructor and member builder.
#define KYRX_DEFINE_MEMBERS_EX(CLASS, PARENT, CONSTRUCTOR, BUILDER)                     \
    KyRxClass* CLASS::desc() {                                                          \
        static KyRxClass* s_class =                                                     \
            kyrxRegisterBuiltinClass(L## #CLASS, PARENT::desc(), CONSTRUCTOR, BUILDER); \
        return s_class;                                                                 \
    }                                                                                   \
    KyRxClass* CLASS::isA() const {                                                     \
        return CLASS::desc();                                                           \
    }

#define KYRX_DEFINE_MEMBERS(CLASS, PARENT) KYRX_DEFINE_MEMBERS_EX(CLASS, PARENT, nullptr, nullptr)

// The object as a `T` when its runtime class derives from T's class, else null.
template <typename T>
inline T* kyrxCast(KyRxObject* object) {
    return object != nullptr && object->isKindOf(T::desc()) ? static_cast<T*>(object) : nullptr;
}
template <typename T>
inline const T* kyrxCast(const KyRxObject* object) {
    return object != nullptr && object->isKindOf(T::desc()) ? static_cast<const T*>(object)
                                                            : nullptr;
}
