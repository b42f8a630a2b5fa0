// KyRefLayerStateRows: the top-level "layerStates" of a drawing file, read
// into the layer states of the database (KyDbLayerState objects in the
// dictionary of KyDbLayerStateManager) and written back from them, in
// dictionary order. A state's "name" is its key; its "mask" is written
// without the sign bit that a hidden state carries in the database, so bit
// 0x8000 alone marks it hidden in the file. Members the file left out stay
// out while they hold their default, and members nobody models come back, in
// a state and in its layers.
#pragma once

#include "KyRefJson.h"
#include "KyRefJsonNode.h"

class KyRefReadContext;
class KyRefWriteContext;

class KyRefLayerStateRows {
public:
    // Reads the array at `node`; the dictionary is made with the first state.
    static void read(KyRefReadContext& context, const KyRefJsonNode& node);
    // The states of the database as the file holds them; [] when none.
    static KyRefJson write(KyRefWriteContext& context);
};
