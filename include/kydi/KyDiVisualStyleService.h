// KyDiVisualStyleService: the visual style of the current view, and which of
// a drawing's visual styles a user is offered.
#pragma once

#include "base/KyArray.h"
#include "base/KyroErrorStatus.h"
#include "db/KyDbObjectId.h"
#include "kydi/KyDiExport.h"

class KyDbDatabase;

class KYDI_API KyDiVisualStyleService {
public:
    // The kind that styleKind answers for a style that no list shows.
    static constexpr int kUnlistedStyle = 20067;

    virtual ~KyDiVisualStyleService() = default;

    // The visual style of the current viewport.
    virtual Kyro::ErrorStatus getCurrent(KyDbObjectId& out) = 0;
    // The classification of style `id`; kUnlistedStyle for one that no list shows.
    virtual int styleKind(const KyDbObjectId& id) = 0;
    // Makes style `id` current in the current viewport; `mode` 0 is the plain way.
    virtual Kyro::ErrorStatus setCurrent(const KyDbObjectId& id, int mode) = 0;
    // Appends the styles of `database` that are to be listed, in display order.
    virtual Kyro::ErrorStatus getListedStyles(KyDbDatabase* database,
                                              KyArray<KyDbObjectId>& ids) = 0;
    // True when the current visual style is a two-dimensional one.
    virtual bool isTwoDimensional() = 0;
    // The resolution of curved surfaces in the current view.
    virtual int getViewResolution() = 0;
    // Sets the resolution of curved surfaces in the current view.
    virtual Kyro::ErrorStatus setViewResolution(int resolution) = 0;
};
