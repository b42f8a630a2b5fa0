// KySampleObjects: the named objects dictionary of the sample drawing:
// layouts, a named page setup, materials, visual styles, multileader and
// table styles, section and detail view styles, scales, plot style names, an
// image and a point cloud definition, suns, render settings and the
// variables kept in the drawing.
#pragma once

#include "io/KyRefJson.h"

class KySampleHandles;

class KySampleObjects {
public:
    static void add(KyRefJson& drawing, KySampleHandles& handles);
};
