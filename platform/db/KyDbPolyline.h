// KyDbPolyline: straight segments through a list of points, open or closed,
// with one width for all segments.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyArray.h"
#include "db/KyDbEntity.h"

class KYPLATFORM_API KyDbPolyline : public KyDbEntity {
public:
    KYRX_DECLARE_MEMBERS(KyDbPolyline);
    KyDbPolyline();
    ~KyDbPolyline() override;

    const KyArray<KyGePoint3d>& points() const { return m_points; }
    Kyro::ErrorStatus setPoints(const KyArray<KyGePoint3d>& points);
    int numVerts() const { return m_points.length(); }
    // eInvalidIndex out of range.
    Kyro::ErrorStatus setPointAt(int index, const KyGePoint3d& point);
    // Inserts before `index` (the length appends): eInvalidIndex out of range.
    Kyro::ErrorStatus addVertexAt(int index, const KyGePoint3d& point);
    Kyro::ErrorStatus removeVertexAt(int index);

    bool isClosed() const { return m_closed; }
    Kyro::ErrorStatus setClosed(bool closed);
    // Not negative (eInvalidInput).
    double constantWidth() const { return m_width; }
    Kyro::ErrorStatus setConstantWidth(double width);
    // The length along the segments, the closing one included.
    double length() const;

protected:
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyArray<KyGePoint3d> m_points;
    double m_width = 0.0;
    bool m_closed = false;
};
