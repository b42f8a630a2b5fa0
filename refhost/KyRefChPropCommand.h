// KyRefChPropCommand: CHPROP. Changes the properties of objects: those
// selected before the command (with PICKFIRST on), or else those given by
// handle. Objects on locked layers are left alone. Then, until an empty
// answer, a property and its new value:
//   Color         an index, a colour name, ByLayer, ByBlock, "r,g,b", a named
//                 colour; Truecolor then "r,g,b"; COlorbook then the book and
//                 the colour name
//   LAyer, LType, Material
//                 a record or entry of the drawing by name
//   ltScale       a positive number
//   LWeight       ByLayer, ByBlock, Default or a width (KyRefLineweightText)
//   Thickness     a number; objects here keep no thickness
//   TRansparency  ByLayer, ByBlock or a percentage 0 to 90
//   PLotstyle     ByLayer, ByBlock or a named plot style of the drawing
// An empty value keeps the property; a value the host can't read or a name the
// drawing lacks ends the command with an error, and nothing is changed.
#pragma once

#include "KyRefCommand.h"

class KyRefChPropCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
