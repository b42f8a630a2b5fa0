// KyRefPointCommand: POINT. A point entity at the point given.
#pragma once

#include "KyRefCommand.h"

class KyRefPointCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
