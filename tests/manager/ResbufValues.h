// Values as the layer's clients give them: records on the stack, a text
// borrowed from the caller.
#pragma once

#include "base/resbuf.h"

namespace kytest {

inline resbuf shortValue(short value) {
    resbuf record{};
    record.restype = KYRB_SHORT;
    record.resval.rint = value;
    return record;
}

inline resbuf realValue(double value, short code = KYRB_REAL) {
    resbuf record{};
    record.restype = code;
    record.resval.rreal = value;
    return record;
}

inline resbuf pointValue(double x, double y) {
    resbuf record{};
    record.restype = KYRB_POINT;
    record.resval.rpoint[0] = x;
    record.resval.rpoint[1] = y;
    return record;
}

inline resbuf pointValue(double x, double y, double z) {
    resbuf record{};
    record.restype = KYRB_3DPOINT;
    record.resval.rpoint[0] = x;
    record.resval.rpoint[1] = y;
    record.resval.rpoint[2] = z;
    return record;
}

inline resbuf longValue(int value) {
    resbuf record{};
    record.restype = KYRB_LONG;
    record.resval.rlong = value;
    return record;
}

inline resbuf textValue(const wchar_t* text) {
    resbuf record{};
    record.restype = KYRB_STRING;
    record.resval.rstring = const_cast<wchar_t*>(text);
    return record;
}

}  // namespace kytest
