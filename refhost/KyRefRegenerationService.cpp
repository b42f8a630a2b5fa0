#include "KyRefRegenerationService.h"

void KyRefRegenerationService::regenLayers(const KyArray<KyDbObjectId>& layerIds, int mode) {
    Request request;
    request.mode = mode;
    for (int i = 0; i < layerIds.length(); ++i) {
        request.layerIds.push_back(layerIds[i]);
    }
    m_requests.push_back(std::move(request));
}
