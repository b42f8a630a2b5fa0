#include "db/KyDbModelDocViewStyle.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStandardContent.h"
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

bool KyDbModelDocViewStyle::hasFixedName() const {
    return m_name.compareNoCase(KyDbStandardContent::kStandard) == 0;
}

Kyro::ErrorStatus KyDbModelDocViewStyle::setName(const wchar_t* value) {
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

Kyro::ErrorStatus KyDbModelDocViewStyle::subErase(bool erasing) {
    return erasing && hasFixedName() ? Kyro::eCannotBeErasedByCaller : Kyro::eOk;
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
