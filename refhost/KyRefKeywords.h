// KyRefKeywords: the options a command offers at a prompt. A keyword is
// written with the letters a user must type in capitals ("Mark", "RIght"): an
// answer matches when it is the start of the keyword, in any case, at least as
// long as those capitals. "_" before the answer matches the global forms;
// without it the local forms of the host's language.
#pragma once

#include <span>

#include "base/KyString.h"

struct KyRefKeyword {
    const wchar_t* global;
    const wchar_t* local;
};

class KyRefKeywords {
public:
    // The index of the keyword `answer` names; -1 when none.
    static int match(std::span<const KyRefKeyword> keywords, const wchar_t* answer);
    // The keywords as a prompt shows them: "[Mark/Back]" in the local forms.
    static KyString options(std::span<const KyRefKeyword> keywords);
};
