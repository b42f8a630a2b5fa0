// The system variable fixture over a host whose editor the test can take
// away while the layer runs (DetachableEditorHost).
#pragma once

#include <memory>

#include "manager/DetachableEditorHost.h"
#include "sysvars/SysVarFixture.h"

namespace kytest {

class EditorLosingFixture : public SysVarFixture {
protected:
    EditorLosingFixture()
        : SysVarFixture(std::make_unique<DetachableEditorHost>(onManualClock())) {}

    void detachEditor() { static_cast<DetachableEditorHost&>(host).detachEditor(); }
};

}  // namespace kytest
