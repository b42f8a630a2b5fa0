#include "currency/SysvarCurrencyTracker.h"

#include "sysvars/SysVarValueAccess.h"

void SysvarCurrencyTracker::getValue(KyRxValue& out) {
    readSysVar(sysVarName().kwszPtr(), m_valueType, out);
}

void SysvarCurrencyTracker::setValue(const KyRxValue& value) {
    // A write takes the record code of the variable, which its first read
    // gives.
    if (m_valueType == kUnread) {
        KyRxValue current;
        getValue(current);
    }
    writeSysVar(sysVarName().kwszPtr(), m_valueType, value);
}
