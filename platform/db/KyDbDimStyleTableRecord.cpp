#include "db/KyDbDimStyleTableRecord.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbRecordReference.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbStateFiler.h"
#include "db/KyDbTextStyleTableRecord.h"

namespace {

const KyDbPropertyRow kDimStyleTableRecordRows[] = {
    {L"TextStyleId",
     kydbiAccess<&KyDbDimStyleTableRecord::dimtxsty, &KyDbDimStyleTableRecord::setDimtxsty>(),
     KyDbCategory::kText, 1, L"/TextStyleTableId/Items"},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbDimStyleTableRecord, KyDbSymbolTableRecord, kDimStyleTableRecordRows)

KyDbDimStyleTableRecord::KyDbDimStyleTableRecord() = default;

KyDbDimStyleTableRecord::~KyDbDimStyleTableRecord() = default;

Kyro::ErrorStatus KyDbDimStyleTableRecord::setDimtxsty(KyDbObjectId textStyleId) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (const Kyro::ErrorStatus status =
            KyDbRecordReference::check(this, textStyleId, KyDbTextStyleTableRecord::desc());
        status != Kyro::eOk) {
        return status;
    }
    return setMember(m_textStyle, textStyleId);
}

int KyDbDimStyleTableRecord::indexOf(const wchar_t* name) const {
    for (std::size_t i = 0; i < m_values.size(); ++i) {
        if (m_values[i].first.compareNoCase(name) == 0) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

Kyro::ErrorStatus KyDbDimStyleTableRecord::getValue(const wchar_t* name, KyRxValue& value) const {
    const int index = indexOf(name);
    if (index < 0) {
        return Kyro::eKeyNotFound;
    }
    value = m_values[static_cast<std::size_t>(index)].second;
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbDimStyleTableRecord::setValue(const wchar_t* name, const KyRxValue& value) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (name == nullptr || name[0] == L'\0') {
        return Kyro::eInvalidInput;
    }
    const int index = indexOf(name);
    if (value.isEmpty()) {
        if (index >= 0) {
            assertWriteEnabled();
            m_values.erase(m_values.begin() + index);
        }
        return Kyro::eOk;
    }
    if (index >= 0) {
        return setMember(m_values[static_cast<std::size_t>(index)].second, value);
    }
    assertWriteEnabled();
    m_values.emplace_back(KyString(name), value);
    return Kyro::eOk;
}

KyStringArray KyDbDimStyleTableRecord::valueNames() const {
    KyStringArray names;
    for (const auto& entry : m_values) {
        names.append(entry.first);
    }
    return names;
}

void KyDbDimStyleTableRecord::subAppended(KyDbDatabase* database) {
    KyDbSymbolTableRecord::subAppended(database);
    if (m_textStyle.isNull()) {
        m_textStyle = KyDbRecordReference::recordNamed(database, database->textStyleTableId(),
                                                       KyDbStandardContent::kStandard);
    }
}

Kyro::ErrorStatus KyDbDimStyleTableRecord::subCheckRename(const wchar_t* newName) const {
    if (name().compareNoCase(KyDbStandardContent::kStandard) == 0) {
        return Kyro::eCannotBeRenamed;
    }
    return KyDbSymbolTableRecord::subCheckRename(newName);
}

Kyro::ErrorStatus KyDbDimStyleTableRecord::subErase(bool erasing) {
    if (erasing && name().compareNoCase(KyDbStandardContent::kStandard) == 0) {
        return Kyro::eCannotBeErasedByCaller;
    }
    return KyDbSymbolTableRecord::subErase(erasing);
}

void KyDbDimStyleTableRecord::subSaveState(KyDbStateFiler& filer) const {
    KyDbSymbolTableRecord::subSaveState(filer);
    filer.write(m_textStyle);
    filer.write(static_cast<int>(m_values.size()));
    for (const auto& entry : m_values) {
        filer.writeString(entry.first);
        filer.write(entry.second);
    }
}

Kyro::ErrorStatus KyDbDimStyleTableRecord::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbSymbolTableRecord::subRestoreState(filer);
        status != Kyro::eOk) {
        return status;
    }
    filer.read(m_textStyle);
    int count = 0;
    filer.read(count);
    m_values.clear();
    for (int i = 0; i < count && filer.status() == Kyro::eOk; ++i) {
        KyString name;
        filer.read(name);
        const KyRxValue* value = filer.next();
        if (value != nullptr) {
            m_values.emplace_back(name, *value);
        }
    }
    return filer.status();
}
