#include "sysvars/ModelSpaceOnlySysVar.h"

#include "manager/RefreshPass.h"

bool ModelSpaceOnlySysVar::subIsActive() {
    return !RefreshPass::inPaperSpace() && !RefreshPass::inBlockEditor();
}
