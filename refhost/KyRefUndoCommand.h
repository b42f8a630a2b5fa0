// KyRefUndoCommand: UNDO. Takes back a number of commands (1 by default),
// sets a mark (Mark), or takes back everything up to the last mark (Back;
// everything when there is none).
#pragma once

#include "KyRefCommand.h"

class KyRefUndoCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;

    // Takes back up to `count` commands of the context's document, each told
    // on the command line; answers how many. Shared with U.
    static int takeBack(KyRefCommandContext& context, int count);
};
