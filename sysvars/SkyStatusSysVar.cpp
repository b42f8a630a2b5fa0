#include "sysvars/SkyStatusSysVar.h"

#include "kydi/KyDiManager.h"
#include "kydi/KyDiSysVar.h"
#include "manager/RefreshPass.h"
#include "manager/host/KyDiHostAccess.h"

bool SkyStatusSysVar::subIsActive() {
    short perspective = 0;
    return !RefreshPass::inPaperSpace() && !RefreshPass::inBlockEditor() &&
           KyDiHostAccess::readShort(L"PERSPECTIVE", perspective) && perspective != 0;
}

Kyro::ErrorStatus SkyStatusSysVar::subSetValue(const resbuf& value, bool viaCommand) {
    // A sky is only seen in perspective; the view is switched first, by the
    // same road as the sky itself.
    if (!RefreshPass::inPaperSpace()) {
        if (KyDiSysVar* perspective = KyDiManager::getSysVar(L"PERSPECTIVE")) {
            resbuf on{};
            on.restype = KYRB_SHORT;
            on.resval.rint = 1;
            perspective->setValue(on, viaCommand);
        }
    }
    if (KyDiHostAccess::currentDocument() == kKyDiNoDocument) {
        return Kyro::eCannotSetSysVar;
    }
    return KyUiImpSysVar::subSetValue(value, viaCommand);
}
