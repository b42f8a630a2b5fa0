// KyRefCircleCommand: CIRCLE by its center point and a positive radius.
#pragma once

#include "KyRefCommand.h"

class KyRefCircleCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
