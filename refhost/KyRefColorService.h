// KyRefColorService: the names of the fixed entries of a colour list, in the
// language of the platform: None (the entry of index 257), ByLayer, ByBlock
// and the colours of the indices 1 to 7.
#pragma once

#include "kydi/KyDiColorService.h"

class KyRefColorService : public KyDiColorService {
public:
    static constexpr int kEntryCount = 10;

    Kyro::ErrorStatus name(int position, KyString& out) override;
};
