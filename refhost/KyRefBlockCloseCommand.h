// KyRefBlockCloseCommand: BCLOSE. Closes the block editor of the drawing:
// BLOCKEDITOR goes back to 0 and the entity commands draw in the current
// space again. Without a block open it is an error.
#pragma once

#include "KyRefCommand.h"

class KyRefBlockCloseCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
