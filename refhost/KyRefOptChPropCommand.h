// KyRefOptChPropCommand: OPTCHPROP. Changes the styles of annotation objects,
// chosen as CHPROP chooses them (objects on locked layers left alone). Then,
// until an empty answer, a style property and the name of a style of the
// drawing:
//   Dimstyle      dimensions and leaders
//   Textstyle     texts and multiline texts (a dimension or a multileader
//                 takes the text style of its own style and has none to set)
//   MLstyle       multileaders
//   TAblestyle    tables (their cells keep their cell styles)
// Objects that don't have the property are left alone. A style the drawing
// lacks ends the command with an error, and nothing is changed.
#pragma once

#include "KyRefCommand.h"

class KyRefOptChPropCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
