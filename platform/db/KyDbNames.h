// Internal to the drawing database; not part of the platform's interface.
//
// KyDbNames: names of records, dictionary keys and header variables, which
// match without regard to case. A folded key (KyString::compareNoCase's own
// folding: through upper case to lower case) makes them hashable.
#pragma once

#include <cstddef>
#include <cwchar>

#include "base/KyString.h"
#include "base/KyroErrorStatus.h"

class KyDbNames {
public:
    // The key under which `name` is indexed: equal for names that
    // compareNoCase finds equal.
    static KyString folded(const wchar_t* name);

    // Checks a record name: not empty, at most 255 characters, none of
    // < > / " : ; ? , = ` and no control character; "*" only as the first
    // character (anonymous and special records such as *Model_Space).
    // "|" is allowed: it marks a record that depends on an external reference.
    static Kyro::ErrorStatus checkRecordName(const wchar_t* name);

    // Hash and equality of folded keys.
    struct Hash {
        std::size_t operator()(const KyString& key) const;
    };
    struct Equal {
        bool operator()(const KyString& a, const KyString& b) const { return a.compare(b) == 0; }
    };

    // Case-insensitive ordering that also takes plain texts, so a lookup by
    // `const wchar_t*` makes no string.
    struct LessNoCase {
        using is_transparent = void;
        bool operator()(const KyString& a, const KyString& b) const {
            return a.compareNoCase(b) < 0;
        }
        bool operator()(const KyString& a, const wchar_t* b) const {
            return a.compareNoCase(b) < 0;
        }
        bool operator()(const wchar_t* a, const KyString& b) const {
            return b.compareNoCase(a) > 0;
        }
    };
};
