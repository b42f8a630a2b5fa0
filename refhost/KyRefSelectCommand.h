// KyRefSelectCommand: SELECT. The objects given by handle, one answer each,
// up to an empty answer, become the selection of the document.
#pragma once

#include "KyRefCommand.h"

class KyRefSelectCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
