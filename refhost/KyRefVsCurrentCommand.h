// KyRefVsCurrentCommand: VSCURRENT. Sets the visual style of the current
// viewport: one of the standard styles by its keyword (the style's name
// without blanks, "ShadesofGray"), or with Other any visual style of the
// drawing by name. The host's visual style service then shows it (another
// style regenerates the drawing), and in a layout the viewport entity that is
// current takes it too. A style the
// drawing lacks, or one for internal use, is an error.
#pragma once

#include "KyRefCommand.h"

class KyRefVsCurrentCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
