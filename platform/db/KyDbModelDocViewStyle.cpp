#include "db/KyDbModelDocViewStyle.h"

#include "db/KyDbStateFiler.h"
#include "rx/KyRxClass.h"

KYRX_DEFINE_MEMBERS(KyDbModelDocViewStyle, KyDbObject)

KyDbModelDocViewStyle::KyDbModelDocViewStyle() = default;

KyDbModelDocViewStyle::~KyDbModelDocViewStyle() = default;

Kyro::ErrorStatus KyDbModelDocViewStyle::setName(const wchar_t* value) {
    if (value == nullptr || value[0] == L'\0') {
        return Kyro::eInvalidInput;
    }
    return setMember(m_name, KyString(value));
}

Kyro::ErrorStatus KyDbModelDocViewStyle::setDescription(const wchar_t* value) {
    return setMember(m_description, KyString(value));
}

void KyDbModelDocViewStyle::subSaveState(KyDbStateFiler& filer) const {
    KyDbObject::subSaveState(filer);
    filer.writeString(m_name);
    filer.writeString(m_description);
}

Kyro::ErrorStatus KyDbModelDocViewStyle::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbObject::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_name);
    filer.read(m_description);
    return filer.status();
}
