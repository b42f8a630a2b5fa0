#include "sysvars/KeepValidInZeroDocSysVar.h"

#include "manager/host/KyDiHostAccess.h"

int KeepValidInZeroDocSysVar::getVar(resbuf* out) {
    if (KyDiHostAccess::currentDocument() == kKyDiNoDocument) {
        return KYRT_REJECTED;
    }
    return KyUiImpSysVar::getVar(out);
}

Kyro::ErrorStatus KeepValidInZeroDocSysVar::subSetValue(const resbuf& value, bool viaCommand) {
    if (KyDiHostAccess::currentDocument() == kKyDiNoDocument) {
        return Kyro::eCannotSetSysVar;
    }
    return KyUiImpSysVar::subSetValue(value, viaCommand);
}
