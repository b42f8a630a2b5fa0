#include "db/KyDbPointCloudFeature.h"

bool pointCloudFeaturePresent() {
    // The platform is built without the point cloud module.
    return false;
}
