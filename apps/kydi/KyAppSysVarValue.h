// KyAppSysVarValue: system variable values (resbuf records) as script values
// and back. Integers and reals are numbers, texts are texts, points are
// texts of their coordinates joined by commas ("0,0,0"). A value written to
// a variable takes the variable's type: a number for an integer or a real, x,y
// or x,y,z for a point, and for a text variable the text of any value as the
// host's command line writes it (a colour as "1", "RGB:255,0,0" or
// "BYLAYER", a transparency as a percentage).
#pragma once

#include <string>

#include "KyAppValue.h"
#include "KyRefResbuf.h"

class KyAppSysVarValue {
public:
    static KyAppValue toValue(const resbuf& record);
    // A record of `typeCode` holding `value`; false with `error` when the
    // value does not fit the type.
    static bool toRecord(const KyAppValue& value, short typeCode, KyRefResbufPtr& out,
                         std::string& error);
};
