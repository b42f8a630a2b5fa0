// KySampleTables: the symbol tables of the sample drawing: linetypes, text
// styles, layers in every state, dimension styles, named views, named UCSs
// and the tiled viewport configuration. The blocks are KySampleBlocks'.
#pragma once

#include "io/KyRefJson.h"

class KySampleHandles;

class KySampleTables {
public:
    static void add(KyRefJson& drawing, KySampleHandles& handles);
};
