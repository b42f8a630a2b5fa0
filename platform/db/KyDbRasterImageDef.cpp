#include "db/KyDbRasterImageDef.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

KYDB_DEFINE_MEMBERS(KyDbRasterImageDef, KyDbObject)

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
