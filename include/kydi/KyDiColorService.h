// KyDiColorService: the localised names of the fixed entries of a colour list.
#pragma once

#include "base/KyString.h"
#include "base/KyroErrorStatus.h"
#include "kydi/KyDiExport.h"

class KYDI_API KyDiColorService {
public:
    virtual ~KyDiColorService() = default;

    // The name shown for fixed entry `position` (0 to 9) of the colour list:
    // 0 the entry of index 257, 1 ByLayer, 2 ByBlock, 3 to 9 the indices 1 to 7.
    virtual Kyro::ErrorStatus name(int position, KyString& out) = 0;
};
