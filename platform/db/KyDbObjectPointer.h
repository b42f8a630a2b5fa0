// KyDbObjectPointer<T>: an open of one object for the length of a scope. The
// object is closed when the pointer goes, on every path.
//
//   KyDbObjectPointer<KyDbLayerTableRecord> layer(id, KyDb::kForWrite);
//   if (layer.openStatus() == Kyro::eOk) {
//       layer->setIsOff(true);
//   }
#pragma once

#include "db/KyDbOpenObject.h"

template <typename T>
class KyDbObjectPointer {
public:
    KyDbObjectPointer() = default;
    KyDbObjectPointer(KyDbObjectId id, KyDb::OpenMode mode, bool openErased = false) {
        open(id, mode, openErased);
    }
    ~KyDbObjectPointer() { close(); }
    KyDbObjectPointer(const KyDbObjectPointer&) = delete;
    KyDbObjectPointer& operator=(const KyDbObjectPointer&) = delete;

    // Closes what was open, and opens `id`.
    Kyro::ErrorStatus open(KyDbObjectId id, KyDb::OpenMode mode, bool openErased = false) {
        close();
        m_status = kydbOpenObject(m_object, id, mode, openErased);
        return m_status;
    }
    // Closes the object now; eOk when nothing was open.
    Kyro::ErrorStatus close() {
        T* object = m_object;
        m_object = nullptr;
        m_status = Kyro::eNullObjectPointer;
        return object != nullptr ? object->close() : Kyro::eOk;
    }
    // Gives up the object without closing it: the caller closes it.
    T* release() {
        T* object = m_object;
        m_object = nullptr;
        m_status = Kyro::eNullObjectPointer;
        return object;
    }

    Kyro::ErrorStatus openStatus() const { return m_status; }
    T* object() const { return m_object; }
    T* operator->() const { return m_object; }
    explicit operator bool() const { return m_object != nullptr; }

private:
    T* m_object = nullptr;
    Kyro::ErrorStatus m_status = Kyro::eNullObjectPointer;
};
