// KyRefCurrentSpace: where the entity commands draw: the block open in the
// block editor while there is one; else model space when it is shown alone
// (TILEMODE 1) or through a viewport of a layout (CVPORT above 1), the paper
// space of the current layout otherwise. A new entity takes the
// drawing's current layer, colour, linetype, lineweight, transparency and
// material.
#pragma once

#include <memory>

#include "db/KyDbObjectId.h"

class KyDbEntity;
class KyRefCommandContext;

class KyRefCurrentSpace {
public:
    // The block of the current space; null when the drawing lacks it.
    static KyDbObjectId blockId(KyRefCommandContext& context);
    // Appends `entity` to the current space with the current properties and
    // answers its id; a drawing that refuses it ends the command with an
    // error.
    static KyDbObjectId append(KyRefCommandContext& context, std::unique_ptr<KyDbEntity> entity);
};
