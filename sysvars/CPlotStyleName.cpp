#include "sysvars/CPlotStyleName.h"

#include "kydi/KyDiEditorService.h"
#include "manager/host/KyDiHostAccess.h"

int CPlotStyleName::getVar(resbuf* out) {
    if (out == nullptr) {
        return KYRT_ERROR;
    }
    KyDiEditorService* editor = KyDiHostAccess::editor();
    if (editor == nullptr) {
        return 0;
    }
    // The host answers the reserved names (ByLayer, ByBlock ...) in their
    // global form; they are to be put into their local form here, once the
    // platform knows its reserved strings. Until then the value is shown as
    // the host gives it.
    return editor->getVar(name(), out);
}
