#include "KyRefResbuf.h"

#include "base/KyString.h"

namespace KyRefResbuf {

KyRefResbufPtr make(short typeCode) {
    return KyRefResbufPtr(kyutNewRb(typeCode));
}

KyRefResbufPtr makeShort(short value) {
    KyRefResbufPtr record = make(KYRB_SHORT);
    record->resval.rint = value;
    return record;
}

KyRefResbufPtr makeLong(int value) {
    KyRefResbufPtr record = make(KYRB_LONG);
    record->resval.rlong = value;
    return record;
}

KyRefResbufPtr makeReal(double value, short typeCode) {
    KyRefResbufPtr record = make(typeCode);
    record->resval.rreal = value;
    return record;
}

KyRefResbufPtr makeString(const wchar_t* text) {
    KyRefResbufPtr record = make(KYRB_STRING);
    kyutNewString(text != nullptr ? text : L"", record->resval.rstring);
    return record;
}

KyRefResbufPtr makePoint(const KyGePoint3d& point, short typeCode) {
    KyRefResbufPtr record = make(typeCode);
    record->resval.rpoint[0] = point.x;
    record->resval.rpoint[1] = point.y;
    record->resval.rpoint[2] = typeCode == KYRB_3DPOINT ? point.z : 0.0;
    return record;
}

KyRefResbufPtr copy(const resbuf& record) {
    resbuf* copied = kyutCopyRb(&record);
    if (copied != nullptr) {
        copied->rbnext = nullptr;
    }
    return KyRefResbufPtr(copied);
}

bool isInteger(short typeCode) {
    return typeCode == KYRB_SHORT || typeCode == KYRB_LONG;
}

bool isReal(short typeCode) {
    return typeCode == KYRB_REAL || typeCode == KYRB_ANGLE || typeCode == KYRB_ORIENT;
}

bool isPoint(short typeCode) {
    return typeCode == KYRB_POINT || typeCode == KYRB_3DPOINT;
}

void fill(resbuf& out, const resbuf& value) {
    out.restype = value.restype;
    if (value.restype == KYRB_STRING) {
        out.resval.rstring = nullptr;
        kyutNewString(value.resval.rstring != nullptr ? value.resval.rstring : L"",
                      out.resval.rstring);
    } else {
        out.resval = value.resval;
    }
}

}  // namespace KyRefResbuf
