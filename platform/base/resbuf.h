// resbuf: the host's tagged value record, used for system variables. Strings
// in a record belong to it: kyutRelRb frees them with the chain.
#pragma once

#include <cstdint>

#include "KyPlatformExport.h"

// Type codes.
enum KyResbufType : short {
    KYRB_NONE = 5000,    // neutral code of an empty record
    KYRB_REAL = 5001,    // double
    KYRB_POINT = 5002,   // two doubles
    KYRB_SHORT = 5003,   // 16-bit integer
    KYRB_ANGLE = 5004,   // double, an angle
    KYRB_STRING = 5005,  // string
    KYRB_ENAME = 5006,
    KYRB_PICKS = 5007,
    KYRB_ORIENT = 5008,   // double, an orientation
    KYRB_3DPOINT = 5009,  // three doubles
    KYRB_LONG = 5010,     // 32-bit integer
};

union KyResbufValue {
    double rreal;
    double rpoint[3];
    short rint;
    wchar_t* rstring;
    int32_t rlong;
    int64_t rlname[2];
};

struct resbuf {
    resbuf* rbnext;
    short restype;
    KyResbufValue resval;
};

// A new zeroed record of the given type code.
KYPLATFORM_API resbuf* kyutNewRb(int typeCode);
// Frees a chain of records and the strings they own.
KYPLATFORM_API void kyutRelRb(resbuf* chain);
// A deep copy of one record (its string copied, `rbnext` null).
KYPLATFORM_API resbuf* kyutCopyRb(const resbuf* record);
// Equality of two records: same type code and same value (strings compared
// exactly, doubles by value).
KYPLATFORM_API bool kyutRbEqual(const resbuf* a, const resbuf* b);
