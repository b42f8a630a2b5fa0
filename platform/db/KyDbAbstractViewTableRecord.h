// KyDbAbstractViewTableRecord: what views and viewport configurations share:
// the centre of the view (in its own plane), its height and width, the
// target point, the direction from the target to the viewer, the lens length
// of the camera, a sun, and the visual style the view is drawn in.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbSymbolTableRecord.h"
#include "ge/KyGePoint3d.h"

class KYPLATFORM_API KyDbAbstractViewTableRecord : public KyDbSymbolTableRecord {
public:
    KYRX_DECLARE_MEMBERS(KyDbAbstractViewTableRecord);
    ~KyDbAbstractViewTableRecord() override;

    const KyGePoint3d& centerPoint() const { return m_center; }
    Kyro::ErrorStatus setCenterPoint(const KyGePoint3d& center);
    // eInvalidInput for a size that isn't positive.
    double height() const { return m_height; }
    Kyro::ErrorStatus setHeight(double height);
    double width() const { return m_width; }
    Kyro::ErrorStatus setWidth(double width);
    const KyGePoint3d& target() const { return m_target; }
    Kyro::ErrorStatus setTarget(const KyGePoint3d& target);
    // The direction as the point it reaches from the origin; (0, 0, 1) looks
    // down on the plan.
    const KyGePoint3d& viewDirection() const { return m_direction; }
    Kyro::ErrorStatus setViewDirection(const KyGePoint3d& direction);
    // The lens length of the camera in millimetres (50 unless set); a length
    // that isn't positive answers eInvalidInput.
    double lensLength() const { return m_lensLength; }
    Kyro::ErrorStatus setLensLength(double length);
    // A sun object of the database, or null.
    KyDbObjectId sunId() const { return m_sun; }
    Kyro::ErrorStatus setSun(KyDbObjectId sunId);
    // A visual style of the database, or null for the default style.
    KyDbObjectId visualStyleId() const { return m_visualStyle; }
    Kyro::ErrorStatus setVisualStyle(KyDbObjectId visualStyleId);

protected:
    KyDbAbstractViewTableRecord();
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    // Sets an id that may be null, else of `objectClass`.
    Kyro::ErrorStatus setOptionalReference(KyDbObjectId& member, KyDbObjectId id,
                                           const KyRxClass* objectClass);

    KyGePoint3d m_center;
    KyGePoint3d m_target;
    KyGePoint3d m_direction{0.0, 0.0, 1.0};
    KyDbObjectId m_sun;
    KyDbObjectId m_visualStyle;
    double m_height = 1.0;
    double m_width = 1.0;
    double m_lensLength = 50.0;
};
