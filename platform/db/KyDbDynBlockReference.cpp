#include "db/KyDbDynBlockReference.h"

#include "db/KyDbBlockReference.h"

KyDbDynBlockReference::KyDbDynBlockReference(KyDbObjectId referenceId)
    : m_referenceId(referenceId) {}

KyDbDynBlockReference::KyDbDynBlockReference(const KyDbEntity* entity)
    : m_entity(kyrxCast<KyDbBlockReference>(entity)) {
    if (m_entity != nullptr) {
        m_referenceId = m_entity->objectId();
    }
}

KyDbDynBlockReference::~KyDbDynBlockReference() = default;

const KyDbBlockReference* KyDbDynBlockReference::reference() const {
    if (m_entity != nullptr) {
        return m_entity;
    }
    // Read through the id, without an open: the helper asks, it doesn't hold.
    return m_referenceId.isValid() ? kyrxCast<KyDbBlockReference>(m_referenceId.stub()->object)
                                   : nullptr;
}

bool KyDbDynBlockReference::isDynamicBlock() const {
    const KyDbBlockReference* found = reference();
    return found != nullptr && found->isDynamic();
}

KyDbObjectId KyDbDynBlockReference::blockReferenceId() const {
    return reference() != nullptr ? m_referenceId : KyDbObjectId();
}

KyDbObjectId KyDbDynBlockReference::dynamicBlockTableRecord() const {
    const KyDbBlockReference* found = reference();
    return found != nullptr ? found->blockTableRecord() : KyDbObjectId();
}
