#include "sysvars/SysVarValue.h"

namespace {

bool realsEqual(double a, double b) {
    const double difference = a - b;
    return difference > -1e-6 && difference < 1e-6;
}

const wchar_t* textOf(const resbuf& value) {
    return value.resval.rstring != nullptr ? value.resval.rstring : L"";
}

}  // namespace

bool SysVarValue::equal(const resbuf* a, const resbuf* b) {
    if (a == nullptr || b == nullptr || a->restype != b->restype) {
        return false;
    }
    const KyResbufValue& x = a->resval;
    const KyResbufValue& y = b->resval;
    switch (a->restype) {
        case KYRB_REAL:
        case KYRB_ANGLE:
            return realsEqual(x.rreal, y.rreal);
        case KYRB_POINT:
            return realsEqual(x.rpoint[0], y.rpoint[0]) && realsEqual(x.rpoint[1], y.rpoint[1]);
        case KYRB_3DPOINT:
            return realsEqual(x.rpoint[0], y.rpoint[0]) && realsEqual(x.rpoint[1], y.rpoint[1]) &&
                   realsEqual(x.rpoint[2], y.rpoint[2]);
        case KYRB_SHORT:
            return x.rint == y.rint;
        case KYRB_LONG:
            return x.rlong == y.rlong;
        case KYRB_STRING:
            return KyString(textOf(*a)).compareNoCase(textOf(*b)) == 0;
        default:
            // An orientation, too, counts as changed every time.
            return false;
    }
}

resbuf* SysVarValue::copy(const resbuf& value) {
    resbuf* record = kyutNewRb(KYRB_NONE);
    record->restype = value.restype;
    if (value.restype == KYRB_STRING) {
        kyutUpdString(value.resval.rstring, record->resval.rstring);
    } else {
        record->resval = value.resval;
    }
    record->rbnext = nullptr;
    return record;
}

KyString SysVarValue::commandText(const resbuf& value) {
    const KyResbufValue& v = value.resval;
    switch (value.restype) {
        case KYRB_REAL:
        case KYRB_ANGLE:
        case KYRB_ORIENT:
            return KyString::formatted(L"%f", v.rreal);
        case KYRB_POINT:
            return KyString::formatted(L"%f,%f", v.rpoint[0], v.rpoint[1]);
        case KYRB_SHORT:
            return KyString::formatted(L"%d", static_cast<int>(v.rint));
        case KYRB_STRING:
            return KyString::formatted(L"\"%ls\"", textOf(value));
        case KYRB_3DPOINT:
            return KyString::formatted(L"%f,%f,%f", v.rpoint[0], v.rpoint[1], v.rpoint[2]);
        case KYRB_LONG:
            return KyString::formatted(L"%u", static_cast<unsigned>(v.rlong));
        default:
            return KyString();
    }
}

void SysVarValue::setText(resbuf& out, const wchar_t* text) {
    if (out.restype != KYRB_STRING) {
        out.resval.rstring = nullptr;
    }
    out.restype = KYRB_STRING;
    kyutUpdString(text, out.resval.rstring);
    out.rbnext = nullptr;
}
