#include "db/KyDbAttribute.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kAttributeRows[] = {
    {L"Tag", kydbiAccess<&KyDbAttribute::tag, &KyDbAttribute::setTag>(), KyDbCategory::kText, 0},
};

}  // namespace

KYDB_DEFINE_ENTITY(KyDbAttribute, KyDbText, kAttributeRows, L"ATTRIB")

KyDbAttribute::KyDbAttribute() = default;

KyDbAttribute::KyDbAttribute(const wchar_t* tag, const wchar_t* text) : m_tag(tag) {
    setTextString(text);
}

KyDbAttribute::~KyDbAttribute() = default;

Kyro::ErrorStatus KyDbAttribute::setTag(const wchar_t* tag) {
    if (tag == nullptr || tag[0] == L'\0') {
        return Kyro::eInvalidInput;
    }
    return setMember(m_tag, KyString(tag));
}

void KyDbAttribute::subSaveState(KyDbStateFiler& filer) const {
    KyDbText::subSaveState(filer);
    filer.writeString(m_tag);
}

Kyro::ErrorStatus KyDbAttribute::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbText::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_tag);
    return filer.status();
}
