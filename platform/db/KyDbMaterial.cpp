#include "db/KyDbMaterial.h"

#include "db/KyDbClassSupport.h"
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

Kyro::ErrorStatus KyDbMaterial::setName(const wchar_t* value) {
    if (value == nullptr || value[0] == L'\0') {
        return Kyro::eInvalidInput;
    }
    return setMember(m_name, KyString(value));
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
