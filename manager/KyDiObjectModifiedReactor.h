// Not part of the interface: a database object reactor that turns the host's
// object notifications into calls on its owner. Each owner takes only the
// notifications it has an operation for:
//   objectErased(const KyDbObject* object, bool erasing)
//   objectGoodbye(const KyDbObject* object)
//   objectClosed(KyDbObjectId id)
// The others stay empty. The owner is not owned.
#pragma once

#include "db/KyDbObjectReactor.h"

template <typename T>
class KyDiObjectModifiedReactor : public KyDbObjectReactor {
public:
    explicit KyDiObjectModifiedReactor(T* owner) : m_owner(owner) {}

    T* owner() const { return m_owner; }

    void erased(const KyDbObject* object, bool erasing) override {
        if constexpr (requires(T & owner) { owner.objectErased(object, erasing); }) {
            m_owner->objectErased(object, erasing);
        }
    }
    void goodbye(const KyDbObject* object) override {
        if constexpr (requires(T & owner) { owner.objectGoodbye(object); }) {
            m_owner->objectGoodbye(object);
        }
    }
    void objectClosed(KyDbObjectId id) override {
        if constexpr (requires(T & owner) { owner.objectClosed(id); }) {
            m_owner->objectClosed(id);
        }
    }

private:
    T* m_owner;
};
