// KyRefEraseCommand: ERASE. Erases the objects selected before the command
// (when PICKFIRST is on), or else the objects given by handle, one answer
// each, up to an empty answer. Objects on locked layers are left alone. The
// selection is empty afterwards.
#pragma once

#include "KyRefCommand.h"

class KyRefEraseCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
