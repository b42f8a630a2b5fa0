// KyXRefLayerPropertyOverride: whether the host drawing changed properties
// of a layer that comes from an external reference. The layer record keeps
// the names of the changed properties (KyDbLayerTableRecord::xrefOverrides);
// these calls read them by the layer's id, also while the caller has the
// layer open.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbObjectId.h"

class KYPLATFORM_API KyXRefLayerPropertyOverride {
public:
    // True when the layer has at least one overridden property. False for an
    // id that is not a layer, or that can't be read.
    static bool hasAnyXRefLayerOverrides(KyDbObjectId layerId);
    // True when the property of that reflected name ("Color") is overridden,
    // without regard to case.
    static bool hasXRefLayerOverride(KyDbObjectId layerId, const wchar_t* propertyName);
};
