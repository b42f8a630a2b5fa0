#include "KyRefImageService.h"

int KyRefImageService::analyze(const KyArray<KyDbObjectId>&,
                               const KyArray<KyDbObjectId>& groupIds) {
    ++m_requests;
    int present = 0;
    for (int i = 0; i < groupIds.length(); ++i) {
        if (groupIds[i].isValid() && !groupIds[i].isErased()) {
            ++present;
        }
    }
    return present;
}
