#include "sysvars/VSSilhouetteEdgeWidthSysVar.h"

#include "manager/host/KyDiHostAccess.h"

bool VSSilhouetteEdgeWidthSysVar::subIsActive() {
    short silhouettes = 0;
    return ModelSpaceOnlySysVar::subIsActive() &&
           KyDiHostAccess::readShort(L"VSSILHEDGES", silhouettes) && silhouettes != 0;
}
