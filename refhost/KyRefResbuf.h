// KyRefResbuf: ownership of resbuf records for the reference host, and the
// few ways it makes them. A record made here is released with its string by
// kyutRelRb when its owner goes.
#pragma once

#include <memory>

#include "base/resbuf.h"
#include "ge/KyGePoint3d.h"

struct KyRefResbufRelease {
    void operator()(resbuf* record) const { kyutRelRb(record); }
};
using KyRefResbufPtr = std::unique_ptr<resbuf, KyRefResbufRelease>;

namespace KyRefResbuf {

KyRefResbufPtr make(short typeCode);
KyRefResbufPtr makeShort(short value);
KyRefResbufPtr makeLong(int value);
KyRefResbufPtr makeReal(double value, short typeCode = KYRB_REAL);
KyRefResbufPtr makeString(const wchar_t* text);
KyRefResbufPtr makePoint(const KyGePoint3d& point, short typeCode = KYRB_3DPOINT);
// A deep copy of one record, without what follows it.
KyRefResbufPtr copy(const resbuf& record);

// Family tests of type codes: the integers (short, long), the reals (real,
// angle, orientation) and the points (two or three coordinates).
bool isInteger(short typeCode);
bool isReal(short typeCode);
bool isPoint(short typeCode);

// Writes `value` into `out` as a caller of a host function receives it: the
// type and value are replaced, a string is copied and then belongs to `out`,
// and `rbnext` is left as it is.
void fill(resbuf& out, const resbuf& value);

}  // namespace KyRefResbuf
