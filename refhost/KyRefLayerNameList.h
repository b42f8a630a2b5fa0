// KyRefLayerNameList: the layers that an answer of a layer command names. An
// answer holds one name or several separated by commas, in any case. In a
// name "*" stands for any run of characters and "?" for any one character,
// unless the answer begins with "=": then every name of it is taken as it
// stands (a name never holds a comma, so the list still splits). Double
// quotes around a name are dropped.
#pragma once

#include <vector>

#include "base/KyString.h"
#include "db/KyDbObjectId.h"

class KyRefCommandContext;

class KyRefLayerNameList {
public:
    // The names of `answer`, in order, without the "=" and the quotes.
    // `literal` tells whether the answer began with "=".
    static std::vector<KyString> split(const KyString& answer, bool& literal);

    // The layers `answer` names, in table order, each once. A name that finds
    // no layer fails the command: nothing is done to the others.
    static std::vector<KyDbObjectId> resolve(KyRefCommandContext& context, const KyString& answer);

    // True when `name` matches the pattern, in any case.
    static bool matches(const wchar_t* pattern, const wchar_t* name);
};
