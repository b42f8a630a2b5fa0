// KyRefLayerNameList: the layers that an answer of a layer command (-LAYER,
// VPLAYER) names. An answer holds one name or several separated by commas;
// blanks around a name and double quotes around it are dropped. Each name is
// a pattern as KyRefNamePattern reads it, in any case; a comma behind a
// backquote belongs to the name and does not split the list.
//
// An answer that begins with "=" names its layers literally: no character of
// it is a pattern or a backquote, and every comma splits (no layer name holds
// one). This is the form the data item layer sends, so that a layer whose
// name holds blanks, "#", "@", "~", ".", "[" or "]" is reached exactly, and
// so is a layer whose name is also a pattern of others ("A#" beside A1, A2).
//
// Each name must find a layer: when one of several names finds none, the
// command fails on that name ("No layer matches" for a pattern, "Cannot find
// layer" for a plain name) and nothing is done to the layers the others
// named.
#pragma once

#include <vector>

#include "KyRefNamePattern.h"
#include "base/KyString.h"
#include "db/KyDbObjectId.h"

class KyRefCommandContext;

class KyRefLayerNameList {
public:
    // The names of `answer`, in order.
    static std::vector<KyRefNamePattern> read(const KyString& answer);

    // The layers `answer` names, in table order, each once.
    static std::vector<KyDbObjectId> resolve(KyRefCommandContext& context, const KyString& answer);
};
