// KySampleBlocks: the blocks of the sample drawing: model space with an
// entity of every modelled type on the sample's layers, the two paper spaces
// of the layouts "Plan" and "Details" with their viewports, blocks with
// attributes, a dimension's picture and an external reference.
#pragma once

#include "io/KyRefJson.h"

class KySampleHandles;

class KySampleBlocks {
public:
    static void add(KyRefJson& drawing, KySampleHandles& handles);
};
