#include "db/KyDbRenderSettings.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kRenderSettingsRows[] = {
    {L"Name", kydbiAccess<&KyDbRenderSettings::name, &KyDbRenderSettings::setName>(),
     KyDbCategory::kGeneral, 0},
    {L"OutputSize",
     kydbiAccess<&KyDbRenderSettings::outputSize, &KyDbRenderSettings::setOutputSize>(),
     KyDbCategory::kGeneral, 1},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbRenderSettings, KyDbObject, kRenderSettingsRows)

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
