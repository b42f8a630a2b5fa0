#include "sysvars/VSIntersectionEdgeColorSysVar.h"

#include "manager/host/KyDiHostAccess.h"

namespace {

constexpr short kFacetEdges = 2;

}  // namespace

bool VSIntersectionEdgeColorSysVar::subIsActive() {
    short edges = 0;
    short intersections = 0;
    return ModelSpaceOnlySysVar::subIsActive() && KyDiHostAccess::readShort(L"VSEDGES", edges) &&
           edges == kFacetEdges &&
           KyDiHostAccess::readShort(L"VSINTERSECTIONEDGES", intersections) && intersections != 0;
}
