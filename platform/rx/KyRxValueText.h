// Internal to the platform, not part of its interface: the texts of numbers
// that the value types share, so that a double reads the same alone, in a
// point and in tone parameters.
#pragma once

#include <string>

// The shortest of "%.15g" and "%.17g" that reads back as the same double:
// 0.1 is "0.1", 0.1 + 0.2 is "0.30000000000000004", 2.0 is "2".
std::wstring kyrxDoubleText(double value);
