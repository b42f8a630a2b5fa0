// KyDbObjectId: the identity of an object of a drawing database. One pointer
// wide: the address of the object's stub (KyDbStub), or null. Ids compare by
// that address, so an id is equal to another exactly when both name the same
// object. Because stubs outlive their objects and databases, every query here
// is safe on any id, stale or null.
#pragma once

#include <cstdint>
#include <functional>

#include "KyPlatformExport.h"
#include "db/KyDbStub.h"
#include "rx/KyRxValueType.h"

class KYPLATFORM_API KyDbObjectId {
public:
    constexpr KyDbObjectId() noexcept = default;
    constexpr explicit KyDbObjectId(KyDbStub* stub) noexcept : m_stub(stub) {}

    // The null id.
    static const KyDbObjectId kNull;

    bool isNull() const { return m_stub == nullptr; }
    // A non-null id whose database and object are still there, erased or not.
    bool isValid() const {
        return m_stub != nullptr && m_stub->database != nullptr && m_stub->object != nullptr;
    }
    bool isErased() const { return m_stub != nullptr && (m_stub->flags & KyDbStub::kErased) != 0; }
    KyDbDatabase* database() const { return m_stub != nullptr ? m_stub->database : nullptr; }
    const KyRxClass* objectClass() const {
        return m_stub != nullptr ? m_stub->objectClass : nullptr;
    }
    // The object's handle; 0 for the null id.
    std::uint64_t handle() const { return m_stub != nullptr ? m_stub->handle : 0; }
    KyDbStub* stub() const { return m_stub; }
    void setNull() { m_stub = nullptr; }

    bool operator==(const KyDbObjectId& other) const { return m_stub == other.m_stub; }
    bool operator!=(const KyDbObjectId& other) const { return m_stub != other.m_stub; }
    // An order for sorted containers: the order of the stubs' addresses.
    bool operator<(const KyDbObjectId& other) const {
        return std::less<const KyDbStub*>()(m_stub, other.m_stub);
    }

private:
    KyDbStub* m_stub = nullptr;
};

static_assert(sizeof(KyDbObjectId) == sizeof(void*), "an id is one pointer wide");

// Named "KyDbObjectId"; the text of an id is its handle in upper-case
// hexadecimal ("1F"), "0" for the null id.
template <>
KYPLATFORM_API const KyRxValueType& KyRxValueType::Desc<KyDbObjectId>::value();
