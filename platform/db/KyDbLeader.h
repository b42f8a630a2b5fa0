// KyDbLeader: a leader line through its points, drawn in a dimension style.
// A leader appended without a style takes the database's current dimension
// style.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyArray.h"
#include "db/KyDbEntity.h"

class KYPLATFORM_API KyDbLeader : public KyDbEntity {
public:
    KYRX_DECLARE_MEMBERS(KyDbLeader);
    KyDbLeader();
    ~KyDbLeader() override;

    const KyArray<KyGePoint3d>& points() const { return m_points; }
    Kyro::ErrorStatus setPoints(const KyArray<KyGePoint3d>& points);
    Kyro::ErrorStatus setPointAt(int index, const KyGePoint3d& point);

    // A dimension style record.
    KyDbObjectId dimensionStyle() const { return m_style; }
    Kyro::ErrorStatus setDimensionStyle(KyDbObjectId styleId);
    Kyro::ErrorStatus setDimensionStyle(const wchar_t* styleName);

protected:
    void subAppended(KyDbDatabase* database) override;
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyArray<KyGePoint3d> m_points;
    KyDbObjectId m_style;
};
