#include "db/KyDbRenderSettings.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

KYDB_DEFINE_MEMBERS(KyDbRenderSettings, KyDbObject)

KyDbRenderSettings::KyDbRenderSettings() : m_outputSize(L"640x480") {}

KyDbRenderSettings::~KyDbRenderSettings() = default;

Kyro::ErrorStatus KyDbRenderSettings::setName(const wchar_t* value) {
    if (value == nullptr || value[0] == L'\0') {
        return Kyro::eInvalidInput;
    }
    return setMember(m_name, KyString(value));
}

Kyro::ErrorStatus KyDbRenderSettings::setOutputSize(const wchar_t* value) {
    return setMember(m_outputSize, KyString(value));
}

void KyDbRenderSettings::subSaveState(KyDbStateFiler& filer) const {
    KyDbObject::subSaveState(filer);
    filer.writeString(m_name);
    filer.writeString(m_outputSize);
}

Kyro::ErrorStatus KyDbRenderSettings::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbObject::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_name);
    filer.read(m_outputSize);
    return filer.status();
}
