#include "db/KyDbDictionaryWithDefault.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kDictionaryWithDefaultRows[] = {
    {L"DefaultId", kydbiAccess<&KyDbDictionaryWithDefault::defaultId,
                               &KyDbDictionaryWithDefault::setDefaultId>()},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbDictionaryWithDefault, KyDbDictionary, kDictionaryWithDefaultRows)

KyDbDictionaryWithDefault::KyDbDictionaryWithDefault() = default;

KyDbDictionaryWithDefault::~KyDbDictionaryWithDefault() = default;

Kyro::ErrorStatus KyDbDictionaryWithDefault::setDefaultId(KyDbObjectId id) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (!id.isNull() && !has(id)) {
        return Kyro::eKeyNotFound;
    }
    return setMember(m_default, id);
}

void KyDbDictionaryWithDefault::subSaveState(KyDbStateFiler& filer) const {
    KyDbDictionary::subSaveState(filer);
    filer.write(m_default);
}

Kyro::ErrorStatus KyDbDictionaryWithDefault::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbDictionary::subRestoreState(filer);
        status != Kyro::eOk) {
        return status;
    }
    filer.read(m_default);
    return filer.status();
}
