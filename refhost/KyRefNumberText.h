// KyRefNumberText: numbers and points as a user types them at the command
// line: a number in the C locale ("2.5", "-1e3"), a point as "x,y" (z is 0)
// or "x,y,z". Blanks around the text and around each part are allowed;
// anything else, or a number that isn't finite, is no value.
#pragma once

#include "ge/KyGePoint3d.h"

class KyRefNumberText {
public:
    static bool parseNumber(const wchar_t* text, double& value);
    static bool parsePoint(const wchar_t* text, KyGePoint3d& point);
};
