// KyDiCountingService: the host's counts of objects in the drawing.
#pragma once

#include "base/KyArray.h"
#include "base/KyString.h"
#include "base/KyroErrorStatus.h"
#include "kydi/KyDiCountingRecord.h"
#include "kydi/KyDiExport.h"

class KYDI_API KyDiCountingService {
public:
    virtual ~KyDiCountingService() = default;

    // Appends one record per count, in display order.
    virtual Kyro::ErrorStatus getRecords(KyArray<KyDiCountingRecord>& records) = 0;
    // The name and value text of the active count.
    virtual Kyro::ErrorStatus getActiveRecord(KyString& name, KyString& value) = 0;
};
