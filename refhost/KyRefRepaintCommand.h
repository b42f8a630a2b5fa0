// KyRefRepaintCommand: REPAINT. Regenerates the whole drawing and everything
// shown of it (KyRefHost::regenerateAll): the host's reactors hear
// invalidateAll while the command runs. It takes no answer.
#pragma once

#include "KyRefCommand.h"

class KyRefRepaintCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
