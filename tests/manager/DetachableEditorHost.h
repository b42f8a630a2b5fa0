// The reference host with an editor that can be taken away while the layer
// runs: from detachEditor() on, the layer is told there is no editor service,
// as in an application without a command line. Only the layer's view
// changes; the host itself keeps its editor.
#pragma once

#include "KyRefHost.h"

namespace kytest {

class DetachableEditorHost final : public KyRefHost {
public:
    using KyRefHost::KyRefHost;

    KyRefEditor* editor() override { return m_detached ? nullptr : KyRefHost::editor(); }
    void detachEditor() { m_detached = true; }

private:
    bool m_detached = false;
};

}  // namespace kytest
