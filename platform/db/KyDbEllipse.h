// KyDbEllipse: an ellipse, or a part of one, by its center, its major axis
// (the vector from the center to the end of the axis), the ratio of its minor
// to its major radius, and start and end angles in degrees (0 and 360 for a
// whole ellipse).
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbEntity.h"

class KYPLATFORM_API KyDbEllipse : public KyDbEntity {
public:
    KYRX_DECLARE_MEMBERS(KyDbEllipse);
    KyDbEllipse();
    ~KyDbEllipse() override;

    const KyGePoint3d& center() const { return m_center; }
    Kyro::ErrorStatus setCenter(const KyGePoint3d& center);
    // Not of length 0 (eInvalidInput); (1, 0, 0) for a new ellipse.
    const KyGePoint3d& majorAxis() const { return m_majorAxis; }
    Kyro::ErrorStatus setMajorAxis(const KyGePoint3d& axis);
    // Above 0 and at most 1 (eInvalidInput).
    double radiusRatio() const { return m_radiusRatio; }
    Kyro::ErrorStatus setRadiusRatio(double ratio);
    double startAngle() const { return m_startAngle; }
    Kyro::ErrorStatus setStartAngle(double degrees);
    double endAngle() const { return m_endAngle; }
    Kyro::ErrorStatus setEndAngle(double degrees);

protected:
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyGePoint3d m_center;
    KyGePoint3d m_majorAxis{1.0, 0.0, 0.0};
    double m_radiusRatio = 1.0;
    double m_startAngle = 0.0;
    double m_endAngle = 360.0;
};
