// KyRefLayerCommand: -LAYER, the layer command of the command line. It shows
// the current layer, asks for an option and runs it, and asks again until an
// empty answer (or a lone "_") ends it:
//   ?                 lists the layers a name list names
//   Make              makes a layer current, creating it when it is missing
//   Set               makes a layer current; a frozen layer is refused
//   New               creates the layers of a comma list
//   ON, OFF           turn layers on or off; turning the current layer off
//                     asks first, and only Yes turns it off
//   Color, Ltype, LWeight, TRansparency, Plot, PStyle, Description
//                     a value, then the layers it goes to
//   Freeze, Thaw      the current layer can't be frozen: that is told, and
//                     the layer stays as it is
//   LOck, Unlock
//   Filter            Set and a filter's name: makes that layer filter current
//   STate             Save, Restore or Delete, then the name of a layer state:
//                     saves the layers (every property; a hidden state of
//                     the name is replaced by a new one), restores a state
//                     with the layer service's restore flags, or deletes
//                     one; in the viewport the host shows, if any. An
//                     unknown name fails the command
// Lists of layer names are read by KyRefLayerNameList (patterns, or every
// name literal behind "="): a name of a list that finds no layer fails the
// command. Make, Set, Filter and STate take one name as it stands, never a
// pattern.
// Values are read by KyRefLayerAnswers.
//
// Each option reads and checks all of its answers before it changes a layer.
// Run on its own, the command is one undo step and an error takes back every
// option it ran; run transparently inside another command, the options that
// ran before an error stay, with that command's changes. The current layer
// filter lies outside the drawing: it changes once the command has read its
// last answer.
#pragma once

#include "KyRefCommand.h"

class KyRefLayerCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
