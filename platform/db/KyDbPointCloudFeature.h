// Whether the point cloud module is installed with the platform. The point
// cloud collections of the data item layer exist only where it is.
#pragma once

#include "KyPlatformExport.h"

KYPLATFORM_API bool pointCloudFeaturePresent();
