#include "sysvars/SysVarValueAccess.h"

#include "kydi/KyDiManager.h"
#include "kydi/KyDiSysVar.h"
#include "sysvars/KyUiImpSysVar.h"

void readSysVar(const wchar_t* name, int& type, KyRxValue& out) {
    KyDiSysVar* sysVar = KyDiManager::getSysVar(name);
    const resbuf* value = sysVar != nullptr ? sysVar->imp()->currentValue() : nullptr;
    if (value == nullptr) {
        return;
    }
    type = value->restype;
    switch (value->restype) {
        case KYRB_REAL:
        case KYRB_ANGLE:
        case KYRB_ORIENT:
            out = value->resval.rreal;
            break;
        case KYRB_SHORT:
            out = value->resval.rint;
            break;
        case KYRB_STRING:
            out = KyString(value->resval.rstring);
            break;
        case KYRB_LONG:
            out = static_cast<int>(value->resval.rlong);
            break;
        default:
            break;
    }
}

void writeSysVar(const wchar_t* name, int type, const KyRxValue& value) {
    if (value.isEmpty()) {
        return;
    }
    KyDiSysVar* sysVar = KyDiManager::getSysVar(name);
    if (sysVar == nullptr) {
        return;
    }
    resbuf record{};
    record.restype = static_cast<short>(type);
    switch (type) {
        case KYRB_REAL:
        case KYRB_ANGLE:
        case KYRB_ORIENT:
            if (const double* real = valueCast<double>(&value)) {
                record.resval.rreal = *real;
                sysVar->setValue(record, false);
            }
            break;
        case KYRB_SHORT:
            if (const short* integer = valueCast<short>(&value)) {
                record.resval.rint = *integer;
                sysVar->setValue(record, false);
            }
            break;
        case KYRB_STRING:
            // The record only lends the text: setValue copies what it keeps.
            if (const KyString* text = valueCast<KyString>(&value)) {
                record.resval.rstring = const_cast<wchar_t*>(text->kwszPtr());
                sysVar->setValue(record, false);
            }
            break;
        case KYRB_LONG:
            if (const int* integer = valueCast<int>(&value)) {
                record.resval.rlong = *integer;
                sysVar->setValue(record, false);
            }
            break;
        default:
            break;
    }
}
