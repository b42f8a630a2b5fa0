// KySampleBlocks: the blocks of the sample drawing: model space with an
// entity of every modelled type on the sample's layers, the two paper spaces
// of the layouts "Plan" and "Details" with their viewports, blocks with
// attributes, a dimension's picture and an external reference. Two hatches
// on layer "Hatch" overlap: the tiled floor of the kitchen and a solid rug
// that lies partly over the floor's hole, so the area they cover together is
// less than the sum of their areas. A section callout and a detail callout on
// layer "Dimensions" are drawn in different view styles.
#pragma once

#include "io/KyRefJson.h"

class KySampleHandles;

class KySampleBlocks {
public:
    static void add(KyRefJson& drawing, KySampleHandles& handles);
    // Adds what came to the sample after its first version, once everything
    // else has its handle: the handles that scripts and tests name stay.
    static void addLater(KyRefJson& drawing, KySampleHandles& handles);
};
