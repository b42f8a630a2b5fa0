// KyDbCircle: a circle by its center and radius.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbEntity.h"

class KYPLATFORM_API KyDbCircle : public KyDbEntity {
public:
    KYRX_DECLARE_MEMBERS(KyDbCircle);
    KyDbCircle();
    KyDbCircle(const KyGePoint3d& center, double radius);
    ~KyDbCircle() override;

    const KyGePoint3d& center() const { return m_center; }
    Kyro::ErrorStatus setCenter(const KyGePoint3d& center);
    // Positive (eInvalidInput otherwise); 1 for a new circle.
    double radius() const { return m_radius; }
    Kyro::ErrorStatus setRadius(double radius);
    double area() const;

protected:
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyGePoint3d m_center;
    double m_radius = 1.0;
};
