#include "db/KyDbVisualStyle.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

KYDB_DEFINE_MEMBERS(KyDbVisualStyle, KyDbObject)

KyDbVisualStyle::KyDbVisualStyle() = default;

KyDbVisualStyle::~KyDbVisualStyle() = default;

Kyro::ErrorStatus KyDbVisualStyle::setName(const wchar_t* value) {
    if (value == nullptr || value[0] == L'\0') {
        return Kyro::eInvalidInput;
    }
    return setMember(m_name, KyString(value));
}

Kyro::ErrorStatus KyDbVisualStyle::setType(int value) {
    return setMember(m_kind, value);
}

Kyro::ErrorStatus KyDbVisualStyle::setInternalUseOnly(bool value) {
    return setMember(m_internal, value);
}

void KyDbVisualStyle::subSaveState(KyDbStateFiler& filer) const {
    KyDbObject::subSaveState(filer);
    filer.writeString(m_name);
    filer.write(m_kind);
    filer.write(m_internal);
}

Kyro::ErrorStatus KyDbVisualStyle::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbObject::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_name);
    filer.read(m_kind);
    filer.read(m_internal);
    return filer.status();
}
