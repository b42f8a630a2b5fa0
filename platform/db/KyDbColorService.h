// KyDbColorService: the host's colours, offered through
// KyDbHostApplicationServices::colorService when the host has them.
#pragma once

#include "KyPlatformExport.h"

class KYPLATFORM_API KyDbColorService {
public:
    virtual ~KyDbColorService();

    // The colour that palette index `index` shows now, packed: the colour
    // method in the top byte (0xC2 for red, green and blue), then blue, green
    // and red, red in the low byte.
    virtual unsigned int trueColorOf(int index) const = 0;

protected:
    KyDbColorService() = default;
};
