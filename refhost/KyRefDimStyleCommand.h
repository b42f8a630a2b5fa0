// KyRefDimStyleCommand: -DIMSTYLE. Its Restore option (the default) makes a
// dimension style of the drawing current by name: the drawing's DIMSTYLE. A
// name the drawing lacks is an error; the other options are not supported by
// this host and end the command with an error line.
#pragma once

#include "KyRefCommand.h"

class KyRefDimStyleCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
