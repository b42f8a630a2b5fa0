// KyRefVpLayerCommand: VPLAYER, the layer settings of single viewports of a
// layout. It asks for an option, its value, the layers and the viewports,
// runs it, and asks again until an empty answer (or a lone "_") ends it:
//   Color, Ltype, LWeight, TRansparency, PStyle
//                 the layers show another value than their own in those
//                 viewports (the viewport forms of KyDbLayerTableRecord)
//   Freeze, Thaw  the layers are frozen or thawed in those viewports alone
//                 (the viewport's own list of frozen layers)
// The viewports: Current (the default: the viewport that the host's viewport
// service names current), All (every viewport of the current layout but the
// paper itself) or Select (viewports given by handle).
//
// Values and layer names are read as -LAYER reads them (KyRefLayerAnswers,
// KyRefLayerNameList): an error line, such as a name of the list that finds
// no layer, fails the command and takes back what it did, and an empty
// answer to a value leaves the option, so that the lines after it are read
// as the next answers. Only a layout has viewports: with TILEMODE on, the
// command refuses at once and changes nothing.
#pragma once

#include "KyRefCommand.h"

class KyRefVpLayerCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
