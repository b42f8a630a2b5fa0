// KyRefRegenerationService: the host has no display to redraw; it keeps the
// requests, so that a test sees which layers were to be redrawn and how, and
// counts the regenerations of the whole drawing (KyRefHost::regenerateAll).
#pragma once

#include <vector>

#include "kydi/KyDiRegenerationService.h"

class KyRefRegenerationService : public KyDiRegenerationService {
public:
    struct Request {
        std::vector<KyDbObjectId> layerIds;
        int mode = 0;
    };

    void regenLayers(const KyArray<KyDbObjectId>& layerIds, int mode) override;
    int regenMode() override { return m_mode; }
    // The whole drawing is regenerated.
    void regenerateAll() { ++m_fullRegenerations; }

    // ---- State that tests and scripts set and read
    void setRegenMode(int mode) { m_mode = mode; }
    const std::vector<Request>& requests() const { return m_requests; }
    void clearRequests() { m_requests.clear(); }
    int fullRegenerations() const { return m_fullRegenerations; }

private:
    std::vector<Request> m_requests;
    int m_mode = 0;
    int m_fullRegenerations = 0;
};
