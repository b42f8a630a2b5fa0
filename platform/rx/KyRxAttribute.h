// Attributes: objects attached to classes and members that tell clients how to
// show them (name, description, placement, references ...). A collection owns
// its attributes; remove() hands one back without deleting it, which is how a
// member that shares another member's attributes lets go of them.
#pragma once

#include <vector>

#include "KyPlatformExport.h"
#include "rx/KyRxObject.h"

class KyRxClass;

class KYPLATFORM_API KyRxAttribute : public KyRxObject {
public:
    KYRX_DECLARE_MEMBERS(KyRxAttribute);
    ~KyRxAttribute() override;

protected:
    KyRxAttribute() = default;
};

class KYPLATFORM_API KyRxAttributeCollection {
public:
    KyRxAttributeCollection() = default;
    KyRxAttributeCollection(const KyRxAttributeCollection&) = delete;
    KyRxAttributeCollection& operator=(const KyRxAttributeCollection&) = delete;
    ~KyRxAttributeCollection();

    int count() const { return static_cast<int>(m_attributes.size()); }
    KyRxAttribute* getAt(int index);
    const KyRxAttribute* getAt(int index) const;
    // The first attribute of class `cls` (or derived from it), null if none.
    KyRxAttribute* get(const KyRxClass* cls);
    const KyRxAttribute* get(const KyRxClass* cls) const;
    // Adds an attribute and takes it over; a null attribute is refused.
    Kyro::ErrorStatus add(KyRxAttribute* attribute);
    // Takes an attribute out without deleting it; eKeyNotFound when absent.
    Kyro::ErrorStatus remove(const KyRxAttribute* attribute);

private:
    std::vector<KyRxAttribute*> m_attributes;
};
