// KyDbArc: a part of a circle, from its start angle counterclockwise to its
// end angle. Angles are in degrees.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbEntity.h"

class KYPLATFORM_API KyDbArc : public KyDbEntity {
public:
    KYRX_DECLARE_MEMBERS(KyDbArc);
    KyDbArc();
    KyDbArc(const KyGePoint3d& center, double radius, double startAngle, double endAngle);
    ~KyDbArc() override;

    const KyGePoint3d& center() const { return m_center; }
    Kyro::ErrorStatus setCenter(const KyGePoint3d& center);
    // Positive (eInvalidInput otherwise); 1 for a new arc.
    double radius() const { return m_radius; }
    Kyro::ErrorStatus setRadius(double radius);
    double startAngle() const { return m_startAngle; }
    Kyro::ErrorStatus setStartAngle(double degrees);
    double endAngle() const { return m_endAngle; }
    Kyro::ErrorStatus setEndAngle(double degrees);
    // The angle swept, above 0 and at most 360 degrees.
    double totalAngle() const;
    // The length along the arc.
    double length() const;

protected:
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyGePoint3d m_center;
    double m_radius = 1.0;
    double m_startAngle = 0.0;
    double m_endAngle = 90.0;
};
