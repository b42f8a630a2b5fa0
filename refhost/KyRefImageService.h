// KyRefImageService: the host's analysis of a group of selected objects. The
// reference host answers the number of objects of the group that are still
// in a drawing, and keeps the requests for tests.
#pragma once

#include "kydi/KyDiImageService.h"

class KyRefImageService : public KyDiImageService {
public:
    int analyze(const KyArray<KyDbObjectId>& allIds,
                const KyArray<KyDbObjectId>& groupIds) override;

    int requestCount() const { return m_requests; }

private:
    int m_requests = 0;
};
