#include "db/KyDbSun.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kSunRows[] = {
    {L"Name", kydbiReadOnly<KyString>(&kydbiGetEntryName), KyDbCategory::kGeneral, 0},
    {L"IsOn", kydbiAccess<&KyDbSun::isOn, &KyDbSun::setOn>(), KyDbCategory::kGeneral, 1},
    {L"Intensity", kydbiAccess<&KyDbSun::intensity, &KyDbSun::setIntensity>(),
     KyDbCategory::kGeneral, 2},
    {L"Color", kydbiAccess<&KyDbSun::sunColor, &KyDbSun::setSunColor>(), KyDbCategory::kGeneral, 3},
    {L"ShadowType", kydbiAccess<&KyDbSun::shadowType, &KyDbSun::setShadowType>(),
     KyDbCategory::kGeneral, 4},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbSun, KyDbObject, kSunRows)

KyDbSun::KyDbSun() {
    m_color.setColorIndex(KyCmColor::kACIWhite);
}

KyDbSun::~KyDbSun() = default;

Kyro::ErrorStatus KyDbSun::setOn(bool value) {
    return setMember(m_on, value);
}

Kyro::ErrorStatus KyDbSun::setIntensity(double value) {
    if (value < 0.0) {
        return Kyro::eInvalidInput;
    }
    return setMember(m_intensity, value);
}

Kyro::ErrorStatus KyDbSun::setSunColor(const KyCmColor& value) {
    return setMember(m_color, value);
}

Kyro::ErrorStatus KyDbSun::setShadowType(int value) {
    return setMember(m_shadowType, value);
}

void KyDbSun::subSaveState(KyDbStateFiler& filer) const {
    KyDbObject::subSaveState(filer);
    filer.write(m_on);
    filer.write(m_intensity);
    filer.write(m_color);
    filer.write(m_shadowType);
}

Kyro::ErrorStatus KyDbSun::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbObject::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_on);
    filer.read(m_intensity);
    filer.read(m_color);
    filer.read(m_shadowType);
    return filer.status();
}
