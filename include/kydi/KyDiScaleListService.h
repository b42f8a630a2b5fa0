// KyDiScaleListService: the annotation scales that a drawing offers.
#pragma once

#include "base/KyArray.h"
#include "base/KyString.h"
#include "base/KyroErrorStatus.h"
#include "kydi/KyDiExport.h"

class KyDbDatabase;

class KYDI_API KyDiScaleListService {
public:
    virtual ~KyDiScaleListService() = default;

    // Appends the names of the scales of `database` that are to be listed, in display order.
    virtual Kyro::ErrorStatus getScaleNames(KyDbDatabase* database, KyArray<KyString>& names) = 0;
};
