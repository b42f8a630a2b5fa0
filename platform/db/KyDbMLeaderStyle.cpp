#include "db/KyDbMLeaderStyle.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbRecordReference.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbStateFiler.h"
#include "db/KyDbTextStyleTableRecord.h"

namespace {

const KyDbPropertyRow kMLeaderStyleRows[] = {
    {L"Name", kydbiAccess<&KyDbMLeaderStyle::name, &KyDbMLeaderStyle::setName>(),
     KyDbCategory::kGeneral, 0},
    {L"TextStyleId",
     kydbiAccess<&KyDbMLeaderStyle::textStyleId, &KyDbMLeaderStyle::setTextStyleId>(),
     KyDbCategory::kGeneral, 1, L"/TextStyleTableId/Items"},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbMLeaderStyle, KyDbObject, kMLeaderStyleRows)

KyDbMLeaderStyle::KyDbMLeaderStyle() = default;

KyDbMLeaderStyle::~KyDbMLeaderStyle() = default;

bool KyDbMLeaderStyle::hasFixedName() const {
    return m_name.compareNoCase(KyDbStandardContent::kStandard) == 0;
}

Kyro::ErrorStatus KyDbMLeaderStyle::setName(const wchar_t* value) {
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

Kyro::ErrorStatus KyDbMLeaderStyle::subErase(bool erasing) {
    return erasing && hasFixedName() ? Kyro::eCannotBeErasedByCaller : Kyro::eOk;
}

Kyro::ErrorStatus KyDbMLeaderStyle::setTextStyleId(KyDbObjectId value) {
    if (!value.isNull()) {
        if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
            return status;
        }
        if (const Kyro::ErrorStatus status =
                KyDbRecordReference::check(this, value, KyDbTextStyleTableRecord::desc());
            status != Kyro::eOk) {
            return status;
        }
    }
    return setMember(m_textStyle, value);
}

void KyDbMLeaderStyle::subAppended(KyDbDatabase* database) {
    KyDbObject::subAppended(database);
    if (m_textStyle.isNull()) {
        m_textStyle = KyDbRecordReference::recordNamed(database, database->textStyleTableId(),
                                                       KyDbStandardContent::kStandard);
    }
}

void KyDbMLeaderStyle::subSaveState(KyDbStateFiler& filer) const {
    KyDbObject::subSaveState(filer);
    filer.writeString(m_name);
    filer.write(m_textStyle);
}

Kyro::ErrorStatus KyDbMLeaderStyle::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbObject::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_name);
    filer.read(m_textStyle);
    return filer.status();
}
