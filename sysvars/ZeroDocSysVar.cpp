#include "sysvars/ZeroDocSysVar.h"

#include "kydi/KyDiDocumentManager.h"
#include "manager/host/KyDiHostAccess.h"

int ZeroDocSysVar::getVar(resbuf* out) {
    KyDiDocumentManager* documents = KyDiHostAccess::documentManager();
    const bool none = documents == nullptr || documents->documentCount() == 0;
    out->restype = KYRB_SHORT;
    out->resval.rint = none ? 1 : 0;
    out->rbnext = nullptr;
    return KYRT_NORM;
}

Kyro::ErrorStatus ZeroDocSysVar::subSetValue(const resbuf& /*value*/, bool /*viaCommand*/) {
    return Kyro::eCannotSetSysVar;
}
