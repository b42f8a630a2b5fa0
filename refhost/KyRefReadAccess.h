// KyRefReadAccess<T>: read access to a database object for the length of a
// scope, also when the object is open already (then it is used as it stands
// and left open). What this scope opened it closes, on every path.
#pragma once

#include "db/KyDbOpenObject.h"

template <typename T>
class KyRefReadAccess {
public:
    explicit KyRefReadAccess(KyDbObjectId id, bool openErased = false) {
        KyDbObject* object = nullptr;
        m_status = accessKyDbObjectForRead(object, id, &T::desc, m_openedHere, openErased);
        m_object = static_cast<T*>(object);
    }
    ~KyRefReadAccess() {
        if (m_openedHere && m_object != nullptr) {
            m_object->close();
        }
    }
    KyRefReadAccess(const KyRefReadAccess&) = delete;
    KyRefReadAccess& operator=(const KyRefReadAccess&) = delete;

    Kyro::ErrorStatus status() const { return m_status; }
    const T* object() const { return m_object; }
    const T* operator->() const { return m_object; }
    explicit operator bool() const { return m_object != nullptr; }

private:
    T* m_object = nullptr;
    bool m_openedHere = false;
    Kyro::ErrorStatus m_status = Kyro::eNullObjectPointer;
};
