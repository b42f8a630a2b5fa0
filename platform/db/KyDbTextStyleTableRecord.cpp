#include "db/KyDbTextStyleTableRecord.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kTextStyleTableRecordRows[] = {
    {L"FileName",
     kydbiAccess<&KyDbTextStyleTableRecord::fileName, &KyDbTextStyleTableRecord::setFileName>(),
     KyDbCategory::kText, 1},
    {L"BigFontFileName",
     kydbiAccess<&KyDbTextStyleTableRecord::bigFontFileName,
                 &KyDbTextStyleTableRecord::setBigFontFileName>(),
     KyDbCategory::kText, 2},
    {L"Height",
     kydbiAccess<&KyDbTextStyleTableRecord::textSize, &KyDbTextStyleTableRecord::setTextSize>(),
     KyDbCategory::kText, 3},
    {L"WidthFactor",
     kydbiAccess<&KyDbTextStyleTableRecord::xScale, &KyDbTextStyleTableRecord::setXScale>(),
     KyDbCategory::kText, 4},
    {L"ObliquingAngle",
     kydbiAccess<&KyDbTextStyleTableRecord::obliquingAngle,
                 &KyDbTextStyleTableRecord::setObliquingAngle>(),
     KyDbCategory::kText, 5},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbTextStyleTableRecord, KyDbSymbolTableRecord, kTextStyleTableRecordRows)

KyDbTextStyleTableRecord::KyDbTextStyleTableRecord() = default;

KyDbTextStyleTableRecord::~KyDbTextStyleTableRecord() = default;

Kyro::ErrorStatus KyDbTextStyleTableRecord::setFileName(const wchar_t* fileName) {
    return setMember(m_fileName, KyString(fileName));
}

Kyro::ErrorStatus KyDbTextStyleTableRecord::setBigFontFileName(const wchar_t* fileName) {
    return setMember(m_bigFontFileName, KyString(fileName));
}

Kyro::ErrorStatus KyDbTextStyleTableRecord::setTextSize(double height) {
    return height < 0.0 ? Kyro::eInvalidInput : setMember(m_textSize, height);
}

Kyro::ErrorStatus KyDbTextStyleTableRecord::setXScale(double widthFactor) {
    return widthFactor <= 0.0 ? Kyro::eInvalidInput : setMember(m_xScale, widthFactor);
}

Kyro::ErrorStatus KyDbTextStyleTableRecord::setObliquingAngle(double degrees) {
    return setMember(m_obliquingAngle, degrees);
}

Kyro::ErrorStatus KyDbTextStyleTableRecord::subCheckRename(const wchar_t* newName) const {
    if (name().compareNoCase(KyDbStandardContent::kStandard) == 0) {
        return Kyro::eCannotBeRenamed;
    }
    return KyDbSymbolTableRecord::subCheckRename(newName);
}

Kyro::ErrorStatus KyDbTextStyleTableRecord::subErase(bool erasing) {
    if (erasing && name().compareNoCase(KyDbStandardContent::kStandard) == 0) {
        return Kyro::eCannotBeErasedByCaller;
    }
    return KyDbSymbolTableRecord::subErase(erasing);
}

void KyDbTextStyleTableRecord::subSaveState(KyDbStateFiler& filer) const {
    KyDbSymbolTableRecord::subSaveState(filer);
    filer.writeString(m_fileName);
    filer.writeString(m_bigFontFileName);
    filer.write(m_textSize);
    filer.write(m_xScale);
    filer.write(m_obliquingAngle);
}

Kyro::ErrorStatus KyDbTextStyleTableRecord::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbSymbolTableRecord::subRestoreState(filer);
        status != Kyro::eOk) {
        return status;
    }
    filer.read(m_fileName);
    filer.read(m_bigFontFileName);
    filer.read(m_textSize);
    filer.read(m_xScale);
    filer.read(m_obliquingAngle);
    return filer.status();
}
