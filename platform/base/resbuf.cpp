// resbuf records on the C heap. A string record owns its text, a free string.
#include "base/resbuf.h"

#include <cstdlib>
#include <cstring>
#include <cwchar>

#include "base/KyString.h"

resbuf* kyutNewRb(int typeCode) {
    auto* record = static_cast<resbuf*>(std::calloc(1, sizeof(resbuf)));
    if (record != nullptr) {
        record->restype = static_cast<short>(typeCode);
    }
    return record;
}

void kyutRelRb(resbuf* chain) {
    while (chain != nullptr) {
        resbuf* next = chain->rbnext;
        if (chain->restype == KYRB_STRING) {
            kyutDelString(chain->resval.rstring);
        }
        std::free(chain);
        chain = next;
    }
}

resbuf* kyutCopyRb(const resbuf* record) {
    if (record == nullptr) {
        return nullptr;
    }
    resbuf* copy = kyutNewRb(record->restype);
    if (copy == nullptr) {
        return nullptr;
    }
    if (record->restype == KYRB_STRING) {
        kyutNewString(record->resval.rstring, copy->resval.rstring);
    } else {
        copy->resval = record->resval;
    }
    return copy;
}

bool kyutRbEqual(const resbuf* a, const resbuf* b) {
    if (a == nullptr || b == nullptr) {
        return a == b;
    }
    if (a->restype != b->restype) {
        return false;
    }
    const KyResbufValue& x = a->resval;
    const KyResbufValue& y = b->resval;
    switch (a->restype) {
        case KYRB_NONE:
            return true;
        case KYRB_REAL:
        case KYRB_ANGLE:
        case KYRB_ORIENT:
            return x.rreal == y.rreal;
        case KYRB_POINT:
            return x.rpoint[0] == y.rpoint[0] && x.rpoint[1] == y.rpoint[1];
        case KYRB_3DPOINT:
            return x.rpoint[0] == y.rpoint[0] && x.rpoint[1] == y.rpoint[1] &&
                   x.rpoint[2] == y.rpoint[2];
        case KYRB_SHORT:
            return x.rint == y.rint;
        case KYRB_LONG:
            return x.rlong == y.rlong;
        case KYRB_STRING:
            if (x.rstring == nullptr || y.rstring == nullptr) {
                return x.rstring == y.rstring;
            }
            return std::wcscmp(x.rstring, y.rstring) == 0;
        case KYRB_ENAME:
        case KYRB_PICKS:
            return x.rlname[0] == y.rlname[0] && x.rlname[1] == y.rlname[1];
        default:
            // A code this library does not know: the values are equal when
            // their bytes are.
            return std::memcmp(&x, &y, sizeof(KyResbufValue)) == 0;
    }
}
