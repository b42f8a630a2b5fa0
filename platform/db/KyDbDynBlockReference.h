// KyDbDynBlockReference: a look at a block reference as a reference of a
// dynamic block, made on the stack for the length of a question:
//
//   KyDbDynBlockReference dynamic(reference);
//   if (dynamic.isDynamicBlock()) { ... }
//
// It opens nothing and keeps nothing open: made from an id it reads the
// reference through its id, made from an entity it reads the entity, which
// the caller keeps open while the helper lives.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbObjectId.h"

class KyDbBlockReference;
class KyDbEntity;

class KYPLATFORM_API KyDbDynBlockReference {
public:
    explicit KyDbDynBlockReference(KyDbObjectId referenceId);
    // An entity of another class than KyDbBlockReference makes a helper that
    // answers false and null.
    explicit KyDbDynBlockReference(const KyDbEntity* entity);
    KyDbDynBlockReference(const KyDbDynBlockReference&) = delete;
    KyDbDynBlockReference& operator=(const KyDbDynBlockReference&) = delete;
    ~KyDbDynBlockReference();

    // True for a reference of a block with parameters of its own.
    bool isDynamicBlock() const;
    // The reference's id; null for a helper made from an entity in no
    // database or of another class.
    KyDbObjectId blockReferenceId() const;
    // The block the reference shows; null for a helper that has no reference.
    KyDbObjectId dynamicBlockTableRecord() const;

private:
    const KyDbBlockReference* reference() const;

    KyDbObjectId m_referenceId;
    const KyDbBlockReference* m_entity = nullptr;
};
