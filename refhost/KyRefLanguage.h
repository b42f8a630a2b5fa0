// KyRefLanguage: which of its two languages the host speaks. Command names
// and keywords have a global form, always understood after "_", and a local
// form in the user's language, understood without it. The platform's second
// language switches the host to its local names; in the base language the
// local forms are the global ones.
#pragma once

class KyRefLanguage {
public:
    // True when the platform's current language is the host's second one.
    static bool isLocal();
    // `local` when the host speaks its second language, else `global`.
    static const wchar_t* pick(const wchar_t* global, const wchar_t* local);
};
