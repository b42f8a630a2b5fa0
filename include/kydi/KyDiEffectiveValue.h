// KyDiEffectiveValue: a value by which an effective property asks a tracker
// for the item that shows it. Only the field that `kind` names is meaningful.
#pragma once

#include <cstdint>

#include "db/KyCmColor.h"
#include "db/KyCmTransparency.h"
#include "db/KyDbObjectId.h"

struct KyDiEffectiveValue {
    enum Kind : std::int32_t {
        kObjectId = 1,
        kLineWeight = 2,
        kColor = 3,
        kTransparency = 4,
    };

    std::int32_t kind = 0;
    KyDbObjectId objectId;
    std::int32_t lineWeight = 0;
    KyCmColor color;
    KyCmTransparency transparency;
};
