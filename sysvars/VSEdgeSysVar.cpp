#include "sysvars/VSEdgeSysVar.h"

#include "manager/host/KyDiHostAccess.h"

bool VSEdgeSysVar::subIsActive() {
    short edges = 0;
    return ModelSpaceOnlySysVar::subIsActive() && KyDiHostAccess::readShort(L"VSEDGES", edges) &&
           edges != 0;
}
