#include "sysvars/VSObscuredColorSysVar.h"

#include "manager/host/KyDiHostAccess.h"

namespace {

constexpr short kFacetEdges = 2;

}  // namespace

bool VSObscuredColorSysVar::subIsActive() {
    short edges = 0;
    short obscured = 0;
    return ModelSpaceOnlySysVar::subIsActive() && KyDiHostAccess::readShort(L"VSEDGES", edges) &&
           edges == kFacetEdges && KyDiHostAccess::readShort(L"VSOBSCUREDEDGES", obscured) &&
           obscured != 0;
}
