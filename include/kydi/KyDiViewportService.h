// KyDiViewportService: the current view of the host's drawing window: which
// viewport is current, where it looks from, and the view settings that live
// in the viewport rather than in the drawing.
#pragma once

#include "base/KyroErrorStatus.h"
#include "db/KyCmColor.h"
#include "db/KyDbObjectId.h"
#include "ge/KyGePoint3d.h"
#include "gi/KyGiPhotographicExposureParameters.h"
#include "kydi/KyDiExport.h"

class KyDbDatabase;
class KyDbViewTableRecord;

class KYDI_API KyDiViewportService {
public:
    // Selectors of getViewPoint and setViewPoint.
    static constexpr int kViewCenter = 0;
    static constexpr int kCameraLocation = 1;

    virtual ~KyDiViewportService() = default;

    // The object that holds the current view: the active viewport record in
    // model space, the viewport entity on a layout.
    virtual Kyro::ErrorStatus getCurrentViewportId(KyDbObjectId& out) = 0;
    // The current viewport entity, whose per-viewport layer settings apply;
    // the null id when none is current.
    virtual Kyro::ErrorStatus viewportId(KyDbObjectId& out) = 0;
    // A key that tells the current viewport apart from the others.
    virtual Kyro::ErrorStatus viewportKey(KyDbObjectId& out) = 0;
    // True when the current viewport shows the view that `view` holds.
    virtual bool matchesView(const KyDbViewTableRecord* view) = 0;
    // Shows the named view `viewId` in the current viewport.
    virtual Kyro::ErrorStatus restoreView(const KyDbObjectId& viewId) = 0;
    // The view centre (kViewCenter) or camera location (kCameraLocation).
    virtual Kyro::ErrorStatus getViewPoint(KyGePoint3d& out, int selector) = 0;
    // Moves the view centre or the camera location of the current view.
    virtual Kyro::ErrorStatus setViewPoint(const KyGePoint3d& point, int selector) = 0;
    // True when the navigation box is switched off in `database`.
    virtual bool isNavBoxOff(KyDbDatabase* database) = 0;
    // True when the current view of `database` is locked.
    virtual bool isViewLocked(KyDbDatabase* database) = 0;
    // The lens length of the current view's camera, in millimetres.
    virtual double getLensLength() = 0;
    // Sets the lens length of the current view's camera.
    virtual Kyro::ErrorStatus setLensLength(double length) = 0;
    // The photographic exposure settings of the current view.
    virtual Kyro::ErrorStatus getExposureParameters(KyGiPhotographicExposureParameters& out) = 0;
    // Sets the photographic exposure settings of the current view.
    virtual Kyro::ErrorStatus setExposureParameters(
        const KyGiPhotographicExposureParameters& parameters) = 0;
    // The background colour that the current viewport shows instead of the
    // drawing's own.
    virtual Kyro::ErrorStatus getBackgroundOverride(KyCmColor& out) = 0;
};
