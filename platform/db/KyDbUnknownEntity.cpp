#include "db/KyDbUnknownEntity.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

KYDB_DEFINE_MEMBERS(KyDbUnknownEntity, KyDbEntity)

KyDbUnknownEntity::KyDbUnknownEntity() = default;

KyDbUnknownEntity::~KyDbUnknownEntity() = default;

Kyro::ErrorStatus KyDbUnknownEntity::setTypeName(const wchar_t* value) {
    return setMember(m_typeName, KyString(value));
}

Kyro::ErrorStatus KyDbUnknownEntity::setData(const wchar_t* value) {
    return setMember(m_data, KyString(value));
}

KyString KyDbUnknownEntity::subReflectedClassName() const {
    return m_typeName;
}

void KyDbUnknownEntity::subSaveState(KyDbStateFiler& filer) const {
    KyDbEntity::subSaveState(filer);
    filer.writeString(m_typeName);
    filer.writeString(m_data);
}

Kyro::ErrorStatus KyDbUnknownEntity::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbEntity::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_typeName);
    filer.read(m_data);
    return filer.status();
}
