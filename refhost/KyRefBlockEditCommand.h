// KyRefBlockEditCommand: BEDIT. Opens a block of the drawing in the block
// editor, by name: BLOCKEDITOR becomes 1 and the entity commands draw in the
// block until BCLOSE. A block the drawing lacks, the block of a layout and an
// external reference can't be edited, nor can a second block while one is
// open; an empty name leaves things as they are.
#pragma once

#include "KyRefCommand.h"

class KyRefBlockEditCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
