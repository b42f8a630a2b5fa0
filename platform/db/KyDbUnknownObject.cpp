#include "db/KyDbUnknownObject.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

KYDB_DEFINE_MEMBERS(KyDbUnknownObject, KyDbObject)

KyDbUnknownObject::KyDbUnknownObject() = default;

KyDbUnknownObject::~KyDbUnknownObject() = default;

Kyro::ErrorStatus KyDbUnknownObject::setTypeName(const wchar_t* value) {
    return setMember(m_typeName, KyString(value));
}

Kyro::ErrorStatus KyDbUnknownObject::setData(const wchar_t* value) {
    return setMember(m_data, KyString(value));
}

void KyDbUnknownObject::subSaveState(KyDbStateFiler& filer) const {
    KyDbObject::subSaveState(filer);
    filer.writeString(m_typeName);
    filer.writeString(m_data);
}

Kyro::ErrorStatus KyDbUnknownObject::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbObject::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_typeName);
    filer.read(m_data);
    return filer.status();
}
