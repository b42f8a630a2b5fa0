// KyDiImageService: the host's analysis of selected objects by kind.
#pragma once

#include "base/KyArray.h"
#include "db/KyDbObjectId.h"
#include "kydi/KyDiExport.h"

class KYDI_API KyDiImageService {
public:
    virtual ~KyDiImageService() = default;

    // A summary that the host computes of the objects `groupIds`, one group of
    // the selection `allIds` (the whole selection when both are the same).
    virtual int analyze(const KyArray<KyDbObjectId>& allIds,
                        const KyArray<KyDbObjectId>& groupIds) = 0;
};
