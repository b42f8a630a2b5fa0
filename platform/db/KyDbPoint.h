// KyDbPoint: a point entity at a position.
#pragma once

#include "KyPlatformExport.h"
#include "db/KyDbEntity.h"

class KYPLATFORM_API KyDbPoint : public KyDbEntity {
public:
    KYRX_DECLARE_MEMBERS(KyDbPoint);
    KyDbPoint();
    explicit KyDbPoint(const KyGePoint3d& position);
    ~KyDbPoint() override;

    const KyGePoint3d& position() const { return m_position; }
    Kyro::ErrorStatus setPosition(const KyGePoint3d& position);

protected:
    void subSaveState(KyDbStateFiler& filer) const override;
    Kyro::ErrorStatus subRestoreState(KyDbStateFiler& filer) override;

private:
    KyGePoint3d m_position;
};
