#include "rx/KyRxObject.h"

#include "rx/KyRxClass.h"

KyRxClass* KyRxObject::desc() {
    static KyRxClass* s_class = kyrxRegisterBuiltinClass(L"KyRxObject", nullptr, nullptr, nullptr);
    return s_class;
}

KyRxClass* KyRxObject::isA() const {
    return KyRxObject::desc();
}

KyRxObject::~KyRxObject() = default;

KyRxObject* KyRxObject::clone() const {
    KyRxObject* copy = isA()->create();
    if (copy != nullptr && copy->copyFrom(this) != Kyro::eOk) {
        delete copy;
        return nullptr;
    }
    return copy;
}

Kyro::ErrorStatus KyRxObject::copyFrom(const KyRxObject* other) {
    if (other == nullptr) {
        return Kyro::eInvalidInput;
    }
    // The root has no data to copy; a class with data copies it itself.
    return other == this ? Kyro::eOk : Kyro::eNotApplicable;
}

bool KyRxObject::isEqualTo(const KyRxObject* other) const {
    return other == this;
}

KyRx::Ordering KyRxObject::comparedTo(const KyRxObject* other) const {
    return other == this ? KyRx::kEqual : KyRx::kNotOrderable;
}

KyRxObject* KyRxObject::queryX(const KyRxClass* protocolClass) const {
    if (protocolClass == nullptr) {
        return nullptr;
    }
    if (isKindOf(protocolClass)) {
        return const_cast<KyRxObject*>(this);
    }
    return subQueryX(protocolClass);
}

KyRxObject* KyRxObject::subQueryX(const KyRxClass* protocolClass) const {
    return isA()->queryX(protocolClass);
}

bool KyRxObject::isKindOf(const KyRxClass* cls) const {
    return KyRxClass::isDerivedFrom(isA(), cls);
}
