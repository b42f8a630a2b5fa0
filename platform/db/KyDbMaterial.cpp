#include "db/KyDbMaterial.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kMaterialRows[] = {
    {L"Name", kydbiAccess<&KyDbMaterial::name, &KyDbMaterial::setName>(), KyDbCategory::kGeneral,
     0},
    {L"Description", kydbiAccess<&KyDbMaterial::description, &KyDbMaterial::setDescription>(),
     KyDbCategory::kGeneral, 1},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbMaterial, KyDbObject, kMaterialRows)

KyDbMaterial::KyDbMaterial() = default;

KyDbMaterial::~KyDbMaterial() = default;

bool KyDbMaterial::hasFixedName() const {
    return KyDbStandardContent::isStandardMaterial(m_name);
}

Kyro::ErrorStatus KyDbMaterial::setName(const wchar_t* value) {
    if (value == nullptr || value[0] == L'\0') {
        return Kyro::eInvalidInput;
    }
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    // One being made or read takes any name; in a drawing the name stays.
    if (isDatabaseResident() && hasFixedName() && m_name.compare(value) != 0) {
        return Kyro::eCannotBeRenamed;
    }
    return setMember(m_name, KyString(value));
}

Kyro::ErrorStatus KyDbMaterial::subErase(bool erasing) {
    return erasing && hasFixedName() ? Kyro::eCannotBeErasedByCaller : Kyro::eOk;
}

Kyro::ErrorStatus KyDbMaterial::setDescription(const wchar_t* value) {
    return setMember(m_description, KyString(value));
}

void KyDbMaterial::subSaveState(KyDbStateFiler& filer) const {
    KyDbObject::subSaveState(filer);
    filer.writeString(m_name);
    filer.writeString(m_description);
}

Kyro::ErrorStatus KyDbMaterial::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbObject::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_name);
    filer.read(m_description);
    return filer.status();
}
