// KyRefVsCurrentCommand: VSCURRENT. Sets the visual style of the current
// viewport: one of the standard styles by its keyword (the style's name
// without blanks, "ShadesofGray"), or with Other any visual style of the
// drawing by name. The object that holds the view shown takes it (in model
// space the active configuration, on a layout the viewport entered or the
// paper), so the change is undone with the command; another style regenerates
// the drawing. A style the drawing lacks, or one for internal use, is an
// error.
#pragma once

#include "KyRefCommand.h"

class KyRefVsCurrentCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
