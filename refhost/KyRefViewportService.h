// KyRefViewportService: the current view of the reference host's drawing
// window. Tests and scripts set which viewport is current, the view it shows
// and its settings; the view answers from the drawing where it can (the
// active viewport configuration of model space, named views restored).
#pragma once

#include "db/KyCmColor.h"
#include "ge/KyGePoint3d.h"
#include "gi/KyGiPhotographicExposureParameters.h"
#include "kydi/KyDiViewportService.h"

class KyRefHost;

class KyRefViewportService : public KyDiViewportService {
public:
    // What the current viewport shows.
    struct View {
        KyGePoint3d center;
        double height = 1.0;
        double width = 1.0;
        KyGePoint3d target;
        KyGePoint3d direction{0.0, 0.0, 1.0};
    };

    explicit KyRefViewportService(KyRefHost& host);

    // In model space, unless set: the active viewport configuration
    // ("*Active") of the drawing, null when it has none.
    Kyro::ErrorStatus getCurrentViewportId(KyDbObjectId& out) override;
    Kyro::ErrorStatus viewportId(KyDbObjectId& out) override;
    Kyro::ErrorStatus viewportKey(KyDbObjectId& out) override;
    bool matchesView(const KyDbViewTableRecord* view) override;
    Kyro::ErrorStatus restoreView(const KyDbObjectId& viewId) override;
    // The camera stands at the target plus the direction.
    Kyro::ErrorStatus getViewPoint(KyGePoint3d& out, int selector) override;
    Kyro::ErrorStatus setViewPoint(const KyGePoint3d& point, int selector) override;
    bool isNavBoxOff(KyDbDatabase* database) override;
    bool isViewLocked(KyDbDatabase* database) override;
    double getLensLength() override;
    Kyro::ErrorStatus setLensLength(double length) override;
    Kyro::ErrorStatus getExposureParameters(KyGiPhotographicExposureParameters& out) override;
    Kyro::ErrorStatus setExposureParameters(
        const KyGiPhotographicExposureParameters& parameters) override;
    // None until set.
    Kyro::ErrorStatus getBackgroundOverride(KyCmColor& out) override;

    // ---- State that tests and scripts set
    void setCurrentViewportId(KyDbObjectId id) { m_currentViewport = id; }
    void setViewportEntityId(KyDbObjectId id) { m_viewportEntity = id; }
    const View& view() const { return m_view; }
    void setView(const View& view) { m_view = view; }
    void setNavBoxOff(bool off) { m_navBoxOff = off; }
    void setViewLocked(bool locked) { m_viewLocked = locked; }
    void setBackgroundOverride(const KyCmColor& color) { m_background = color; }

private:
    KyRefHost& m_host;
    KyDbObjectId m_currentViewport;
    KyDbObjectId m_viewportEntity;
    View m_view;
    KyGiPhotographicExposureParameters m_exposure;
    KyCmColor m_background;
    double m_lensLength = 50.0;
    bool m_navBoxOff = false;
    bool m_viewLocked = false;
};
