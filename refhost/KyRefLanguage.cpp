#include "KyRefLanguage.h"

#include "base/KyRxResourceInstance.h"
#include "base/KyString.h"

namespace {
// The language tag of the platform's second language.
constexpr const wchar_t* kSecondLanguage = L"de";
}  // namespace

bool KyRefLanguage::isLocal() {
    return KyString(KyRxResourceInstance::language()).compareNoCase(kSecondLanguage) == 0;
}

const wchar_t* KyRefLanguage::pick(const wchar_t* global, const wchar_t* local) {
    return isLocal() && local != nullptr ? local : global;
}
