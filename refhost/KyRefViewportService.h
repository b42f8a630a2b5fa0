// KyRefViewportService: the current view of the reference host's drawing
// window. The view lives in the drawing, in the object that holds the view
// shown (KyRefLayoutViewports::viewHolder): the active configuration
// "*Active" in model space, on a layout the viewport the user entered
// (KyRefHost::enterViewport) or else the paper viewport. Reads open that
// object for read; a change opens it for write inside the document lock and
// closes it, so its reactors hear objectClosed. A drawing without "*Active"
// shows the default view in model space and gets the record at its first
// change of view; a layout without a paper viewport has no view to change
// (eNotApplicable).
//
// A viewport entity that is locked keeps its view: changes answer
// eNotApplicable. Model space is never locked. Whether the navigation box is
// shown is the host's session variable NAVBOX (1 shown, 0 off).
#pragma once

#include <functional>

#include "KyRefView.h"
#include "db/KyCmColor.h"
#include "gi/KyGiPhotographicExposureParameters.h"
#include "kydi/KyDiViewportService.h"

class KyRefHost;

class KyRefViewportService : public KyDiViewportService {
public:
    explicit KyRefViewportService(KyRefHost& host);

    // Null when the drawing has no object that holds the view shown.
    Kyro::ErrorStatus getCurrentViewportId(KyDbObjectId& out) override;
    // The viewport entity entered; null on the paper and in model space.
    Kyro::ErrorStatus viewportId(KyDbObjectId& out) override;
    // The object that holds the view shown.
    Kyro::ErrorStatus viewportKey(KyDbObjectId& out) override;
    bool matchesView(const KyDbViewTableRecord* view) override;
    // Writes the named view into the current viewport; the host then
    // regenerates the drawing (invalidateAll).
    Kyro::ErrorStatus restoreView(const KyDbObjectId& viewId) override;
    // The camera stands at the target plus the direction.
    Kyro::ErrorStatus getViewPoint(KyGePoint3d& out, int selector) override;
    Kyro::ErrorStatus setViewPoint(const KyGePoint3d& point, int selector) override;
    bool isNavBoxOff(KyDbDatabase* database) override;
    // The lock of the viewport entity that holds the view shown in
    // `database`; false in model space.
    bool isViewLocked(KyDbDatabase* database) override;
    // 0 without a current drawing.
    double getLensLength() override;
    Kyro::ErrorStatus setLensLength(double length) override;
    Kyro::ErrorStatus getExposureParameters(KyGiPhotographicExposureParameters& out) override;
    Kyro::ErrorStatus setExposureParameters(
        const KyGiPhotographicExposureParameters& parameters) override;
    // None until set.
    Kyro::ErrorStatus getBackgroundOverride(KyCmColor& out) override;

    // ---- State that tests and scripts set
    void setBackgroundOverride(const KyCmColor& color) { m_background = color; }

private:
    using Change = std::function<Kyro::ErrorStatus(KyRefView&)>;

    // The view shown in the current drawing: the default view when the
    // drawing has no object that holds it.
    Kyro::ErrorStatus currentView(KyRefView& out) const;
    // Changes the view shown: `change` edits a copy, which is written back
    // into its holder.
    Kyro::ErrorStatus changeView(const Change& change);

    KyRefHost& m_host;
    KyGiPhotographicExposureParameters m_exposure;
    KyCmColor m_background;
};
