// KyRefLineweightText: lineweights as a user types them: ByLayer, ByBlock
// and Default (global with or without "_", or local, in any case), or a width
// in the units lineweights are shown in (gLineWeightUnits: 0 inches, as
// "0.010", otherwise millimetres, as "0.25"). A width takes the standard
// lineweight nearest to it; a negative or unreadable width is no lineweight.
#pragma once

#include "db/KyDbEnums.h"

class KyRefLineweightText {
public:
    static bool parse(const wchar_t* text, KyDb::LineWeight& weight);
    // True for the widths of the standard list, in hundredths of a millimetre.
    static bool isStandard(long hundredths);
};
