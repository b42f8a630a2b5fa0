// KyRefRedoCommand: REDO, which makes again the last command that U or UNDO
// took back. A command the host took back itself (cancelled or failed) can't
// be made again.
#pragma once

#include "KyRefCommand.h"

class KyRefRedoCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
