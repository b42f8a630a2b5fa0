// KyRefLineCommand: LINE. A first point, then each next point draws a
// segment from the point before it; an empty answer ends the command.
#pragma once

#include "KyRefCommand.h"

class KyRefLineCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
