// KyDbLine: a straight segment from a start point to an end point.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbEntity.h"

class KYPLATFORM_API KyDbLine : public KyDbEntity {
public:
    KYRX_DECLARE_MEMBERS(KyDbLine);
    KyDbLine();
    KyDbLine(const KyGePoint3d& start, const KyGePoint3d& end);
    ~KyDbLine() override;

    const KyGePoint3d& startPoint() const { return m_start; }
    Kyro::ErrorStatus setStartPoint(const KyGePoint3d& point);
    const KyGePoint3d& endPoint() const { return m_end; }
    Kyro::ErrorStatus setEndPoint(const KyGePoint3d& point);
    double length() const { return m_start.distanceTo(m_end); }

protected:
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyGePoint3d m_start;
    KyGePoint3d m_end;
};
