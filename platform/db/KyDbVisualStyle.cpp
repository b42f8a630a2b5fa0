#include "db/KyDbVisualStyle.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kVisualStyleRows[] = {
    {L"Name", kydbiAccess<&KyDbVisualStyle::name, &KyDbVisualStyle::setName>(),
     KyDbCategory::kGeneral, 0},
    {L"Type", kydbiAccess<&KyDbVisualStyle::type, &KyDbVisualStyle::setType>(),
     KyDbCategory::kGeneral, 1},
    {L"IsInternalUseOnly",
     kydbiAccess<&KyDbVisualStyle::isInternalUseOnly, &KyDbVisualStyle::setInternalUseOnly>(),
     KyDbCategory::kGeneral, 2},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbVisualStyle, KyDbObject, kVisualStyleRows)

KyDbVisualStyle::KyDbVisualStyle() = default;

KyDbVisualStyle::~KyDbVisualStyle() = default;

bool KyDbVisualStyle::hasFixedName() const {
    return KyDbStandardContent::isStandardVisualStyle(m_name);
}

Kyro::ErrorStatus KyDbVisualStyle::setName(const wchar_t* value) {
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

Kyro::ErrorStatus KyDbVisualStyle::subErase(bool erasing) {
    return erasing && hasFixedName() ? Kyro::eCannotBeErasedByCaller : Kyro::eOk;
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
