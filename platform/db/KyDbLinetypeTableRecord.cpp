#include "db/KyDbLinetypeTableRecord.h"

#include <cmath>

#include "db/KyDbClassSupport.h"
#include "db/KyDbStandardContent.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kLinetypeTableRecordRows[] = {
    {L"Description",
     kydbiAccess<&KyDbLinetypeTableRecord::comments, &KyDbLinetypeTableRecord::setComments>(),
     KyDbCategory::kGeneral, 1},
    {L"PatternLength", kydbiAccess<&KyDbLinetypeTableRecord::patternLength>(),
     KyDbCategory::kGeneral, 2},
    {L"NumDashes", kydbiAccess<&KyDbLinetypeTableRecord::numDashes>(), KyDbCategory::kGeneral, 3},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbLinetypeTableRecord, KyDbSymbolTableRecord, kLinetypeTableRecordRows)

KyDbLinetypeTableRecord::KyDbLinetypeTableRecord() = default;

KyDbLinetypeTableRecord::~KyDbLinetypeTableRecord() = default;

Kyro::ErrorStatus KyDbLinetypeTableRecord::setComments(const wchar_t* comments) {
    return setMember(m_comments, KyString(comments));
}

double KyDbLinetypeTableRecord::dashLengthAt(int index) const {
    return m_dashes.isValid(index) ? m_dashes[index] : 0.0;
}

Kyro::ErrorStatus KyDbLinetypeTableRecord::setPattern(const KyArray<double>& dashes) {
    return setMember(m_dashes, dashes);
}

double KyDbLinetypeTableRecord::patternLength() const {
    double length = 0.0;
    for (double dash : m_dashes) {
        length += std::fabs(dash);
    }
    return length;
}

bool KyDbLinetypeTableRecord::isStandardLinetype() const {
    return name().compareNoCase(KyDbStandardContent::kByBlock) == 0 ||
           name().compareNoCase(KyDbStandardContent::kByLayer) == 0 ||
           name().compareNoCase(KyDbStandardContent::kContinuous) == 0;
}

Kyro::ErrorStatus KyDbLinetypeTableRecord::subCheckRename(const wchar_t* newName) const {
    if (isStandardLinetype()) {
        return Kyro::eCannotBeRenamed;
    }
    return KyDbSymbolTableRecord::subCheckRename(newName);
}

Kyro::ErrorStatus KyDbLinetypeTableRecord::subErase(bool erasing) {
    if (erasing && isStandardLinetype()) {
        return Kyro::eCannotBeErasedByCaller;
    }
    return KyDbSymbolTableRecord::subErase(erasing);
}

void KyDbLinetypeTableRecord::subSaveState(KyDbStateFiler& filer) const {
    KyDbSymbolTableRecord::subSaveState(filer);
    filer.writeString(m_comments);
    filer.write(m_dashes.length());
    for (double dash : m_dashes) {
        filer.write(dash);
    }
}

Kyro::ErrorStatus KyDbLinetypeTableRecord::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbSymbolTableRecord::subRestoreState(filer);
        status != Kyro::eOk) {
        return status;
    }
    filer.read(m_comments);
    int count = 0;
    filer.read(count);
    m_dashes.setLogicalLength(0);
    for (int i = 0; i < count && filer.status() == Kyro::eOk; ++i) {
        double dash = 0.0;
        filer.read(dash);
        m_dashes.append(dash);
    }
    return filer.status();
}
