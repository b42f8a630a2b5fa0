// KyDiRecentBlockService: the blocks that the user inserted lately.
#pragma once

#include "base/KyArray.h"
#include "base/KyString.h"
#include "base/KyroErrorStatus.h"
#include "kydi/KyDiExport.h"

class KYDI_API KyDiRecentBlockService {
public:
    virtual ~KyDiRecentBlockService() = default;

    // Appends the names of the recently used blocks, in the host's order; the
    // host decides how many.
    virtual Kyro::ErrorStatus getRecentBlockNames(KyArray<KyString>& names) = 0;
};
