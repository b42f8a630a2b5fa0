#include "db/KyDbTableStyle.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kTableStyleRows[] = {
    {L"Name", kydbiAccess<&KyDbTableStyle::name, &KyDbTableStyle::setName>(),
     KyDbCategory::kGeneral, 0},
    {L"CellStyles", kydbiAccess<&KyDbTableStyle::cellStyles, &KyDbTableStyle::setCellStyles>(),
     KyDbCategory::kGeneral, 1},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbTableStyle, KyDbObject, kTableStyleRows)

KyDbTableStyle::KyDbTableStyle() {
    m_cellStyles.append(KyString(L"Title"));
    m_cellStyles.append(KyString(L"Header"));
    m_cellStyles.append(KyString(L"Data"));
}

KyDbTableStyle::~KyDbTableStyle() = default;

bool KyDbTableStyle::hasFixedName() const {
    return m_name.compareNoCase(KyDbStandardContent::kStandard) == 0;
}

Kyro::ErrorStatus KyDbTableStyle::setName(const wchar_t* value) {
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

Kyro::ErrorStatus KyDbTableStyle::subErase(bool erasing) {
    return erasing && hasFixedName() ? Kyro::eCannotBeErasedByCaller : Kyro::eOk;
}

Kyro::ErrorStatus KyDbTableStyle::setCellStyles(const KyStringArray& value) {
    return setMember(m_cellStyles, value);
}

bool KyDbTableStyle::hasCellStyle(const wchar_t* name) const {
    for (const KyString& style : m_cellStyles) {
        if (style.compareNoCase(name) == 0) {
            return true;
        }
    }
    return false;
}

void KyDbTableStyle::subSaveState(KyDbStateFiler& filer) const {
    KyDbObject::subSaveState(filer);
    filer.writeString(m_name);
    filer.write(m_cellStyles);
}

Kyro::ErrorStatus KyDbTableStyle::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbObject::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_name);
    filer.read(m_cellStyles);
    return filer.status();
}
