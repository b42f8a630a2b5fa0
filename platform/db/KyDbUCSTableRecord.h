// KyDbUCSTableRecord: a named user coordinate system: its origin and its X
// and Y axes (as the points they reach from the origin of the world).
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbSymbolTableRecord.h"
#include "ge/KyGePoint3d.h"

class KYPLATFORM_API KyDbUCSTableRecord : public KyDbSymbolTableRecord {
public:
    KYRX_DECLARE_MEMBERS(KyDbUCSTableRecord);
    KyDbUCSTableRecord();
    ~KyDbUCSTableRecord() override;

    const KyGePoint3d& origin() const { return m_origin; }
    Kyro::ErrorStatus setOrigin(const KyGePoint3d& origin);
    // An axis can't be of length 0 (eInvalidInput).
    const KyGePoint3d& xAxis() const { return m_xAxis; }
    Kyro::ErrorStatus setXAxis(const KyGePoint3d& axis);
    const KyGePoint3d& yAxis() const { return m_yAxis; }
    Kyro::ErrorStatus setYAxis(const KyGePoint3d& axis);

protected:
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyGePoint3d m_origin;
    KyGePoint3d m_xAxis{1.0, 0.0, 0.0};
    KyGePoint3d m_yAxis{0.0, 1.0, 0.0};
};
