// Not part of the interface: system variable values as boxed values, for the
// currency trackers that follow a variable.
#pragma once

#include "rx/KyRxValue.h"

// Boxes the value of variable `name` (the value just set, or else the last
// read) and gives its type code in `type`: reals (also angles and
// orientations) as double, shorts as short, texts as KyString, longs as int.
// `out` is left alone for any other code; both are left alone when the
// variable can't be had or holds no value.
void readSysVar(const wchar_t* name, int& type, KyRxValue& out);
// Writes `value` directly to variable `name`, as a record of code `type`.
// Does nothing for other codes than those readSysVar boxes, for a variable
// that can't be had, or for an empty value or one of another type.
void writeSysVar(const wchar_t* name, int type, const KyRxValue& value);
