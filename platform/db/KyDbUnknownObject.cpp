#include "db/KyDbUnknownObject.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kUnknownObjectRows[] = {
    {L"Name", kydbiReadOnly<KyString>(&kydbiGetEntryName), KyDbCategory::kGeneral, 0},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbUnknownObject, KyDbObject, kUnknownObjectRows)

KyDbUnknownObject::KyDbUnknownObject() = default;

KyDbUnknownObject::~KyDbUnknownObject() = default;

Kyro::ErrorStatus KyDbUnknownObject::setTypeName(const wchar_t* value) {
    return setMember(m_typeName, KyString(value));
}

Kyro::ErrorStatus KyDbUnknownObject::setData(const wchar_t* value) {
    return setMember(m_data, KyString(value));
}

KyString KyDbUnknownObject::subReflectedClassName() const {
    return m_typeName;
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
