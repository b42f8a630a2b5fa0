// KyRefScaleListService: the annotation scales of a drawing: the scales of
// its scale list dictionary, in dictionary order.
#pragma once

#include "kydi/KyDiScaleListService.h"

class KyRefScaleListService : public KyDiScaleListService {
public:
    Kyro::ErrorStatus getScaleNames(KyDbDatabase* database, KyArray<KyString>& names) override;
};
