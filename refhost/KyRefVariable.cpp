#include "KyRefVariable.h"

#include "KyRefHost.h"
#include "KyRefSysVarStore.h"

KyRefVariable::KyRefVariable(const wchar_t* name, KyRefHost& host)
    : KyRxVariable(name), m_host(host) {}

Kyro::ErrorStatus KyRefVariable::subSetValue(const resbuf& value, void*, KyString* error,
                                             bool disableUndoRecording) {
    unsigned flags = KyRefSysVarStore::kIgnoreReadOnly;
    if (disableUndoRecording) {
        flags |= KyRefSysVarStore::kWithoutUndoRecord;
    }
    switch (m_host.setVariable(name(), value, flags, error)) {
        case KyRefSysVarStatus::kOk:
            storeValue(value);
            return Kyro::eOk;
        case KyRefSysVarStatus::kNoDocument:
            return Kyro::eNoCurrentDocument;
        case KyRefSysVarStatus::kRefused:
            return Kyro::eLockViolation;
        case KyRefSysVarStatus::kReadOnly:
            return Kyro::eCannotSetSysVar;
        default:
            return Kyro::eInvalidInput;
    }
}
