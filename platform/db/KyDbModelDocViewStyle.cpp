#include "db/KyDbModelDocViewStyle.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"
#include "rx/KyRxClass.h"

namespace {

const KyDbPropertyRow kModelDocViewStyleRows[] = {
    {L"Name", kydbiAccess<&KyDbModelDocViewStyle::name, &KyDbModelDocViewStyle::setName>(),
     KyDbCategory::kGeneral, 0},
    {L"Description",
     kydbiAccess<&KyDbModelDocViewStyle::description, &KyDbModelDocViewStyle::setDescription>(),
     KyDbCategory::kGeneral, 1},
};

}  // namespace

KYDB_DEFINE_BASE_CLASS(KyDbModelDocViewStyle, KyDbObject, kModelDocViewStyleRows)

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
