// KyDbViewport: a window of a paper space layout onto model space: its
// center, width and height on the sheet, the view it shows (its center and
// height, the target point, the direction from the target to the viewer, the
// lens length of the camera), whether it is on and whether its view is
// locked.
//
// The first viewport of a paper space layout's block is the paper itself:
// number() counts a layout's viewports in drawing order from 1 (erased ones
// left out), so the paper is number 1.
//
// Layers can be frozen in one viewport alone (freezeLayersInViewport). A
// viewport can be clipped by a boundary other than its rectangle: the clip
// points, at least three, turn the clip on; no points turn it off. It may
// have a visual style and a sun of its own.
//
// Setters need a write-open and change nothing for an equal value; sizes and
// the lens length are positive, the direction is not (0, 0, 0)
// (eInvalidInput); ids must name objects of the right class of the
// viewport's database (eNotThatKindOfClass, eWrongDatabase, eWasErased).
#pragma once

#include "KyPlatformExport.h"
#include "base/KyArray.h"
#include "db/KyDbEntity.h"

class KYPLATFORM_API KyDbViewport : public KyDbEntity {
public:
    KYRX_DECLARE_MEMBERS(KyDbViewport);
    KyDbViewport();
    ~KyDbViewport() override;

    const KyGePoint3d& centerPoint() const { return m_center; }
    Kyro::ErrorStatus setCenterPoint(const KyGePoint3d& center);
    double width() const { return m_width; }
    Kyro::ErrorStatus setWidth(double width);
    double height() const { return m_height; }
    Kyro::ErrorStatus setHeight(double height);
    const KyGePoint3d& viewCenter() const { return m_viewCenter; }
    Kyro::ErrorStatus setViewCenter(const KyGePoint3d& center);
    double viewHeight() const { return m_viewHeight; }
    Kyro::ErrorStatus setViewHeight(double height);
    // The point the view looks at; the origin unless set.
    const KyGePoint3d& viewTarget() const { return m_viewTarget; }
    Kyro::ErrorStatus setViewTarget(const KyGePoint3d& target);
    // The direction from the target to the viewer, as the point it reaches
    // from the origin; (0, 0, 1) looks down on the plan.
    const KyGePoint3d& viewDirection() const { return m_viewDirection; }
    Kyro::ErrorStatus setViewDirection(const KyGePoint3d& direction);
    // The lens length of the camera in millimetres; 50 unless set.
    double lensLength() const { return m_lensLength; }
    Kyro::ErrorStatus setLensLength(double length);

    bool isOn() const { return m_on; }
    Kyro::ErrorStatus setOn(bool on);
    bool isLocked() const { return m_locked; }
    Kyro::ErrorStatus setLocked(bool locked);

    // The place of the viewport among the viewports of its paper space
    // layout, from 1; 0 for a viewport in no such layout, or erased.
    int number() const;
    // True for the first viewport of a paper space layout: the paper.
    bool isPaperViewport() const { return number() == 1; }

    // ---- Layers frozen in this viewport alone

    // The frozen layers that are not erased, in the order they were frozen.
    Kyro::ErrorStatus getFrozenLayerList(KyArray<KyDbObjectId>& layerIds) const;
    bool isLayerFrozenInViewport(KyDbObjectId layerId) const;
    // Freezes the layers not frozen yet; every id must be a layer.
    Kyro::ErrorStatus freezeLayersInViewport(const KyArray<KyDbObjectId>& layerIds);
    // Thaws the layers that are frozen; others are passed by.
    Kyro::ErrorStatus thawLayersInViewport(const KyArray<KyDbObjectId>& layerIds);
    Kyro::ErrorStatus thawAllLayersInViewport();

    // ---- Clip boundary

    bool isNonRectClipOn() const { return !m_clip.isEmpty(); }
    const KyArray<KyGePoint3d>& nonRectClipPoints() const { return m_clip; }
    // At least three points, or none to turn the clip off (eInvalidInput).
    Kyro::ErrorStatus setNonRectClipPoints(const KyArray<KyGePoint3d>& points);

    // ---- Visual style and sun

    // A visual style of the drawing, or null.
    KyDbObjectId visualStyleId() const { return m_visualStyle; }
    Kyro::ErrorStatus setVisualStyle(KyDbObjectId visualStyleId);
    // A sun object of the drawing, or null.
    KyDbObjectId sunId() const { return m_sun; }
    Kyro::ErrorStatus setSun(KyDbObjectId sunId);

protected:
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    // Sets an id that may be null, else of `objectClass`.
    Kyro::ErrorStatus setOptionalReference(KyDbObjectId& member, KyDbObjectId id,
                                           const KyRxClass* objectClass);

    KyGePoint3d m_center;
    KyGePoint3d m_viewCenter;
    KyGePoint3d m_viewTarget;
    KyGePoint3d m_viewDirection{0.0, 0.0, 1.0};
    double m_width = 1.0;
    double m_height = 1.0;
    double m_viewHeight = 1.0;
    double m_lensLength = 50.0;
    bool m_on = true;
    bool m_locked = false;
    KyArray<KyDbObjectId> m_frozenLayers;
    KyArray<KyGePoint3d> m_clip;
    KyDbObjectId m_visualStyle;
    KyDbObjectId m_sun;
};
