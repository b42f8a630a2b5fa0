#include "sysvars/VSFacetEdgeSysVar.h"

#include "manager/host/KyDiHostAccess.h"

namespace {

constexpr short kFacetEdges = 2;

}  // namespace

bool VSFacetEdgeSysVar::subIsActive() {
    short edges = 0;
    return ModelSpaceOnlySysVar::subIsActive() && KyDiHostAccess::readShort(L"VSEDGES", edges) &&
           edges == kFacetEdges;
}
