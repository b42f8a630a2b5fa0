// KySampleDrawing: the drawing that the kydi program opens when none is
// named, described as the data of a drawing file: a small house with layers
// in every state, the styles, blocks, layouts and named objects a drawing
// has, so that every collection of the data item layer has something to show.
#pragma once

#include "io/KyRefJson.h"

class KySampleDrawing {
public:
    static KyRefJson json();
};
