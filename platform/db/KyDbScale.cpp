#include "db/KyDbScale.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kScaleRows[] = {
    {L"Name", kydbiAccess<&KyDbScale::scaleName, &KyDbScale::setScaleName>(),
     KyDbCategory::kGeneral, 0},
    {L"PaperUnits", kydbiAccess<&KyDbScale::paperUnits, &KyDbScale::setPaperUnits>(),
     KyDbCategory::kGeneral, 1},
    {L"DrawingUnits", kydbiAccess<&KyDbScale::drawingUnits, &KyDbScale::setDrawingUnits>(),
     KyDbCategory::kGeneral, 2},
    {L"Scale", kydbiAccess<&KyDbScale::scale>(), KyDbCategory::kGeneral, 3},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbScale, KyDbObject, kScaleRows)

KyDbScale::KyDbScale() = default;

KyDbScale::~KyDbScale() = default;

Kyro::ErrorStatus KyDbScale::setScaleName(const wchar_t* value) {
    if (value == nullptr || value[0] == L'\0') {
        return Kyro::eInvalidInput;
    }
    return setMember(m_name, KyString(value));
}

Kyro::ErrorStatus KyDbScale::setPaperUnits(double value) {
    if (value <= 0.0) {
        return Kyro::eInvalidInput;
    }
    return setMember(m_paperUnits, value);
}

Kyro::ErrorStatus KyDbScale::setDrawingUnits(double value) {
    if (value <= 0.0) {
        return Kyro::eInvalidInput;
    }
    return setMember(m_drawingUnits, value);
}

void KyDbScale::subSaveState(KyDbStateFiler& filer) const {
    KyDbObject::subSaveState(filer);
    filer.writeString(m_name);
    filer.write(m_paperUnits);
    filer.write(m_drawingUnits);
}

Kyro::ErrorStatus KyDbScale::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbObject::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_name);
    filer.read(m_paperUnits);
    filer.read(m_drawingUnits);
    return filer.status();
}
