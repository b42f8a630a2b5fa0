#include "db/KyDbPlotSettings.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kPlotSettingsRows[] = {
    {L"Name",
     kydbiAccess<&KyDbPlotSettings::plotSettingsName, &KyDbPlotSettings::setPlotSettingsName>(),
     KyDbCategory::kGeneral, 0},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbPlotSettings, KyDbObject, kPlotSettingsRows)

KyDbPlotSettings::KyDbPlotSettings() = default;

KyDbPlotSettings::~KyDbPlotSettings() = default;

Kyro::ErrorStatus KyDbPlotSettings::setPlotSettingsName(const wchar_t* value) {
    return setMember(m_name, KyString(value));
}

Kyro::ErrorStatus KyDbPlotSettings::setSettings(const wchar_t* value) {
    return setMember(m_settings, KyString(value));
}

void KyDbPlotSettings::subSaveState(KyDbStateFiler& filer) const {
    KyDbObject::subSaveState(filer);
    filer.writeString(m_name);
    filer.writeString(m_settings);
}

Kyro::ErrorStatus KyDbPlotSettings::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbObject::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_name);
    filer.read(m_settings);
    return filer.status();
}
