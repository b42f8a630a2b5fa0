#include "db/KyDbRasterImageDef.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kRasterImageDefRows[] = {
    {L"Name", kydbiReadOnly<KyString>(&kydbiGetEntryName), KyDbCategory::kGeneral, 0},
    {L"SourceFileName",
     kydbiAccess<&KyDbRasterImageDef::sourceFileName, &KyDbRasterImageDef::setSourceFileName>(),
     KyDbCategory::kGeneral, 1},
    {L"Width", kydbiAccess<&KyDbRasterImageDef::width, &KyDbRasterImageDef::setWidth>(),
     KyDbCategory::kGeneral, 2},
    {L"Height", kydbiAccess<&KyDbRasterImageDef::height, &KyDbRasterImageDef::setHeight>(),
     KyDbCategory::kGeneral, 3},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbRasterImageDef, KyDbObject, kRasterImageDefRows)

KyDbRasterImageDef::KyDbRasterImageDef() = default;

KyDbRasterImageDef::~KyDbRasterImageDef() = default;

Kyro::ErrorStatus KyDbRasterImageDef::setSourceFileName(const wchar_t* value) {
    return setMember(m_path, KyString(value));
}

Kyro::ErrorStatus KyDbRasterImageDef::setWidth(double value) {
    if (value < 0.0) {
        return Kyro::eInvalidInput;
    }
    return setMember(m_width, value);
}

Kyro::ErrorStatus KyDbRasterImageDef::setHeight(double value) {
    if (value < 0.0) {
        return Kyro::eInvalidInput;
    }
    return setMember(m_height, value);
}

void KyDbRasterImageDef::subSaveState(KyDbStateFiler& filer) const {
    KyDbObject::subSaveState(filer);
    filer.writeString(m_path);
    filer.write(m_width);
    filer.write(m_height);
}

Kyro::ErrorStatus KyDbRasterImageDef::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbObject::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_path);
    filer.read(m_width);
    filer.read(m_height);
    return filer.status();
}
