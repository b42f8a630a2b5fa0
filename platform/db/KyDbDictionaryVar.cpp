#include "db/KyDbDictionaryVar.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kDictionaryVarRows[] = {
    {L"Name", kydbiReadOnly<KyString>(&kydbiGetEntryName), KyDbCategory::kGeneral, 0},
    {L"Value", kydbiAccess<&KyDbDictionaryVar::value, &KyDbDictionaryVar::setValue>(),
     KyDbCategory::kGeneral, 1},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbDictionaryVar, KyDbObject, kDictionaryVarRows)

KyDbDictionaryVar::KyDbDictionaryVar() = default;

KyDbDictionaryVar::~KyDbDictionaryVar() = default;

Kyro::ErrorStatus KyDbDictionaryVar::setValue(const wchar_t* value) {
    return setMember(m_value, KyString(value));
}

void KyDbDictionaryVar::subSaveState(KyDbStateFiler& filer) const {
    KyDbObject::subSaveState(filer);
    filer.writeString(m_value);
}

Kyro::ErrorStatus KyDbDictionaryVar::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbObject::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_value);
    return filer.status();
}
