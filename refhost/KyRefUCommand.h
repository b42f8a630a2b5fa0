// KyRefUCommand: U, which takes back the last command.
#pragma once

#include "KyRefCommand.h"

class KyRefUCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
