// KyRefPageSetupCommand: -PAGESETUP. Changes the plot settings of the current
// layout, one option at a time until an empty answer:
// - Name: the page setup the layout's settings come from, or None;
// - Table: a plot style table on offer of the kind the drawing uses (? lists
//   them), or None for the host's default;
// - Resolution: dots per inch of raster output, 100 to 32767, or 0 for none.
// An empty answer to an option keeps the value. A table not on offer or a
// resolution out of range is an error: the command ends and changes nothing.
// The host tells the changes when the command ends (plotSettingsChanged in
// both forms, then layoutChanged), and U takes them back.
#pragma once

#include "KyRefCommand.h"

class KyRefPageSetupCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
